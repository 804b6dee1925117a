#pragma once

#include "ui/bindings.h"

#include <QFrame>

namespace pinmora {

struct MatchingOutlets;
struct WizardOutlets;

/// The row at the bottom of every page: whether the wizard is shown at the start, Back, and Next,
/// in whose place the last page saves.
class WizardBar : public QFrame {
    Q_OBJECT

public:
    /// Both must outlive it.
    WizardBar(WizardOutlets &outlets, MatchingOutlets &matching, QWidget *parent = nullptr);

private:
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
