#pragma once

#include "ui/bindings.h"

#include <QFrame>

#include <array>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace pinmora {

class Wizard;
struct WizardOutlets;

/// The steps of the wizard, of which those that have been reached can be gone to, and at its foot
/// the way to the main window.
class StepList : public QFrame {
    Q_OBJECT

public:
    /// Both must outlive it.
    StepList(WizardOutlets &outlets, Wizard &wizard, QWidget *parent = nullptr);

private:
    struct Step {
        QPushButton *button = nullptr;
        QLabel *number = nullptr;
        QLabel *name = nullptr;
    };

    void addStep(QVBoxLayout &column, std::size_t place);
    void nameSteps();
    void show(std::size_t place);

    WizardOutlets &outlets_;
    Wizard &wizard_;
    std::array<Step, 6> steps_;
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
