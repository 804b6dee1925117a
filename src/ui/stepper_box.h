#pragma once

#include <QSpinBox>

namespace pinmora {

class Bindings;
struct Stepper;

/// A stepper with its number, which can be typed as well: that is taken over when the box is left
/// or Return pressed, and kept within the stepper's range. Escape takes it back.
class StepperBox : public QSpinBox {
    Q_OBJECT

public:
    /// The stepper must outlive the box; `bindings` end no later than it.
    StepperBox(Stepper &stepper, Bindings &bindings, QWidget *parent = nullptr);

    /// Takes over a number that has been typed, if any.
    void takeOverTyped();
    void stepBy(int steps) override;

protected:
    StepEnabled stepEnabled() const override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void showValue();

    Stepper &stepper_;
};

} // namespace pinmora
