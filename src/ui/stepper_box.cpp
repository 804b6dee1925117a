#include "ui/stepper_box.h"

#include "outlets/stepper.h"
#include "ui/bindings.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>

#include <limits>

namespace pinmora {

StepperBox::StepperBox(Stepper &stepper, Bindings &bindings, QWidget *parent)
    : QSpinBox(parent), stepper_(stepper) {
    // Any value can be shown; what is typed or stepped to is limited by the stepper.
    setRange(0, std::numeric_limits<int>::max());
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    setAlignment(Qt::AlignRight);
    bindings.follow(stepper, this);
    bindings.watch(stepper.value, [this](int) { showValue(); });
}

void StepperBox::showValue() {
    const QSignalBlocker quiet(this);
    setValue(stepper_.value.get());
    lineEdit()->setModified(false);
}

void StepperBox::takeOverTyped() {
    if (lineEdit()->isModified()) {
        lineEdit()->setModified(false);
        bool isNumber = false;
        const int typed = locale().toInt(lineEdit()->text().trimmed(), &isNumber);
        if (isNumber) {
            stepper_.set(typed);
        }
    }
    // Always: the number may be the same and only written otherwise ("07"), or none.
    lineEdit()->setText(textFromValue(stepper_.value.get()));
    showValue();
}

void StepperBox::stepBy(int steps) {
    takeOverTyped();
    stepper_.stepBy(steps);
    selectAll();
}

QAbstractSpinBox::StepEnabled StepperBox::stepEnabled() const {
    StepEnabled enabled = StepNone;
    enabled.setFlag(StepUpEnabled, stepper_.wraps || value() < stepper_.maximum);
    enabled.setFlag(StepDownEnabled, stepper_.wraps || value() > stepper_.minimum);
    return enabled;
}

void StepperBox::focusOutEvent(QFocusEvent *event) {
    takeOverTyped();
    QSpinBox::focusOutEvent(event);
}

void StepperBox::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        takeOverTyped();
        selectAll();
    } else if (event->key() == Qt::Key_Escape && lineEdit()->isModified()) {
        lineEdit()->setModified(false);
        takeOverTyped();
        selectAll();
    } else {
        QSpinBox::keyPressEvent(event);
    }
}

/// A wheel turned over the box while something around it is scrolled is not meant for it.
void StepperBox::wheelEvent(QWheelEvent *event) {
    if (hasFocus()) {
        QSpinBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

} // namespace pinmora
