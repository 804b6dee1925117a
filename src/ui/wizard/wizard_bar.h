#pragma once

#include "ui/bindings.h"

#include <QFrame>

class QHBoxLayout;

namespace pinmora {

class LibraryCounts;
struct MatchingOutlets;
struct WizardOutlets;

/// The row at the bottom of every page: whether the wizard is shown at the start, Back, and Next,
/// in whose place the last page saves.
class WizardBar : public QFrame {
    Q_OBJECT

public:
    /// All must outlive it.
    WizardBar(WizardOutlets &outlets, MatchingOutlets &matching, LibraryCounts &counts,
              QWidget *parent = nullptr);

private:
    void addSave(QHBoxLayout &row, WizardOutlets &outlets, MatchingOutlets &matching,
                 LibraryCounts &counts);

    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
