#include "ui/wizard/clock_words.h"

#include "matching/matching_outlets.h"
#include "ui/roles.h"

namespace pinmora {

ClockWords::ClockWords(MatchingOutlets &outlets, QWidget *parent)
    : QLabel(parent), outlets_(outlets) {
    setRole(this, Role::Quiet);
    setAccessibleName(tr("Correction of the camera clock"));
    for (Stepper *stepper : {&outlets.stepperHour, &outlets.stepperMin, &outlets.stepperSec}) {
        bindings_.watch(stepper->value, [this](int) { showOffset(); });
    }
    bindings_.watch(outlets.plusMinus.selectedTag, [this](int) { showOffset(); });
}

void ClockWords::showOffset() {
    const int hours = outlets_.stepperHour.value.get();
    const int minutes = outlets_.stepperMin.value.get();
    const int seconds = outlets_.stepperSec.value.get();
    if (hours == 0 && minutes == 0 && seconds == 0) {
        setText(tr("The camera clock is not corrected."));
        return;
    }
    const QString sign =
        outlets_.plusMinus.selectedTag.get() == 1 ? QStringLiteral("+") : QStringLiteral("−");
    setText(tr("Camera clock corrected by %1%2 h %3 min %4 s.")
                .arg(sign)
                .arg(hours)
                .arg(minutes)
                .arg(seconds));
}

} // namespace pinmora
