#include "shell/wizard_end.h"

namespace pinmora {

WizardEnd::WizardEnd(const Outlets &outlets, LibraryCounts &counts)
    : outlets_(outlets), counts_(counts.counts.get()) {
    connections_.push_back(counts.counts.onChange([this](const Counts &now) { follow(now); }));
    connections_.push_back(
        outlets.savePhotosButton.enabled.onChange([this](bool) { enableSave(); }));
    connections_.push_back(outlets.congrats1.visible.onChange([this](bool) { enableSave(); }));
    for (Button *button : {&outlets_.changeName, &outlets_.changeName2, &outlets_.changeName3}) {
        connections_.push_back(button->pressed.connect([this] { nameWaits_ = false; }));
    }
    for (Control *control : {&outlets_.congrats1, &outlets_.congrats2}) {
        control->visible.set(false);
    }
    enableSave();
}

void WizardEnd::takeName() {
    if (nameWaits_ && outlets_.inWizard) {
        outlets_.changeName3.press();
    }
}

/// What has been applied says nothing of photos and tracks that have come since.
void WizardEnd::follow(const Counts &counts) {
    const bool isApplied = counts.photos == counts_.photos && counts.points == counts_.points;
    counts_ = counts;
    if (!isApplied) {
        outlets_.congrats1.visible.set(false);
        outlets_.congrats2.visible.set(false);
    }
    enableSave();
}

/// Where there is a log, it is to be applied first, unless photos have positions already.
void WizardEnd::enableSave() {
    const bool isPlaced =
        outlets_.congrats1.visible.get() || counts_.withPosition > 0 || counts_.points == 0;
    outlets_.nextButtonAppliedAll.enabled.set(counts_.photos > 0 && isPlaced &&
                                              outlets_.savePhotosButton.enabled.get());
}

} // namespace pinmora
