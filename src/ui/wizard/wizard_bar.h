#pragma once

#include "ui/bindings.h"

#include <QFrame>

class QHBoxLayout;
class QPushButton;

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

    /// Not as its focus proxy: Tab would pass over what stands before it.
    void focusNext();

private:
    void addSave(QHBoxLayout &row, WizardOutlets &outlets, MatchingOutlets &matching,
                 LibraryCounts &counts);

    QPushButton *next_ = nullptr;
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
