#pragma once

#include "ui/bindings.h"

#include <QWidget>

#include <vector>

class QHBoxLayout;

namespace pinmora {

class Editing;
class StepperBox;
struct Selector;
struct Stepper;

/// What an offset is set with. The tags of the sign's cells: 1 adds it, 0 subtracts it.
struct OffsetControls {
    Selector &sign;
    Stepper &hours;
    Stepper &minutes;
    Stepper &seconds;
};

/// Sign, hours, minutes and seconds of a camera clock's offset, in a row.
class OffsetSteppers : public QWidget {
    Q_OBJECT

public:
    /// All must outlive it.
    OffsetSteppers(const OffsetControls &controls, Editing &editing, QWidget *parent = nullptr);

private:
    void addSigns(QHBoxLayout &row, Selector &sign);
    void addBoxes(QHBoxLayout &row, const OffsetControls &controls);

    std::vector<StepperBox *> boxes_;
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
