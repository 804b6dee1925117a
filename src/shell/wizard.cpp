#include "shell/wizard.h"

#include "platform/number_text.h"

#include <algorithm>
#include <utility>

namespace pinmora {
namespace {

enum Step : std::size_t { welcomeStep, photosStep, gpsStep, clockStep, routeStep, saveStep };

constexpr std::array stepOfPage{welcomeStep, photosStep, gpsStep,   clockStep,
                                routeStep,   routeStep,  routeStep, saveStep};

} // namespace

bool startsInWizard(const Defaults &defaults) {
    return leadingInt(defaults.text(useWizardKey).value_or("")) == 1;
}

Wizard::Wizard(WizardOutlets &outlets, WizardDetails &details, Surroundings surroundings)
    : outlets_(outlets), details_(details), surroundings_(std::move(surroundings)) {
    connections_.push_back(
        outlets.wizardTabs.selectedIdentifier.onChange([this](const std::string &identifier) {
            didSelectTabViewItem(leadingInt(identifier));
            markSteps();
        }));
    settingChanged_ = surroundings_.defaults.onChange(useWizardKey, [this] {
        outlets_.dontShowWizardButton.on.set(!startsInWizard(surroundings_.defaults));
    });
    connectButtons();
    show(WizardPage::Welcome);
    validateMenu();
}

void Wizard::connectButtons() {
    const auto on = [this](Button &button, void (Wizard::*act)()) {
        connections_.push_back(button.pressed.connect([this, act] { (this->*act)(); }));
    };
    on(outlets_.useWizard, &Wizard::changeToWizard);
    on(outlets_.useAdvanced, &Wizard::changeToMain);
    on(outlets_.nextButton, &Wizard::goOn);
    on(outlets_.backButton, &Wizard::goBack);
    on(outlets_.byMapButton, &Wizard::offsetByMap);
    on(outlets_.byLatLonButton, &Wizard::offsetByLatLon);
    on(outlets_.byKnownButton, &Wizard::offsetByKnown);
    on(outlets_.clockWasRightButton, &Wizard::goToMatchAll);
    on(outlets_.loadLogInstead, &Wizard::goGPSWizard);
    connections_.push_back(
        outlets_.dontShowWizardButton.clicked.connect([this] { dontShowWizardAtStart(); }));
}

void Wizard::setStartWindow(int useWizard) {
    outlets_.inWizard = useWizard == 1;
    outlets_.dontShowWizardButton.on.set(!outlets_.inWizard);
    validateMenu();
    (outlets_.inWizard ? outlets_.wizardWindow : outlets_.window).makeKeyAndOrderFront();
}

void Wizard::changeToWizard() {
    work(true);
}

void Wizard::changeToMain() {
    work(false);
}

void Wizard::work(bool inWizard) {
    Window &left = inWizard ? outlets_.window : outlets_.wizardWindow;
    Window &entered = inWizard ? outlets_.wizardWindow : outlets_.window;
    left.close();
    outlets_.inWizard = inWizard;
    entered.makeKeyAndOrderFront();
    validateMenu();
    surroundings_.windowChanged();
}

bool Wizard::validateMenuItem(const Button &item) const {
    return &item == &outlets_.useAdvanced ? outlets_.inWizard
           : &item == &outlets_.useWizard ? !outlets_.inWizard
                                          : true;
}

void Wizard::validateMenu() {
    for (Button *item : {&outlets_.useWizard, &outlets_.useAdvanced}) {
        item->enabled.set(validateMenuItem(*item));
    }
}

/// What the box itself says does not count: each click flips what is stored.
void Wizard::dontShowWizardAtStart() {
    const std::string stored = surroundings_.defaults.text(useWizardKey).value_or("");
    surroundings_.defaults.setText(useWizardKey, leadingInt(stored) != 0 ? "0" : "1");
    surroundings_.defaults.synchronize();
}

void Wizard::didSelectTabViewItem(int identifier) {
    const bool seen = identifier > static_cast<int>(WizardPage::OffsetSelect);
    outlets_.webView2.visible.set(seen);
    outlets_.theImageView2.visible.set(seen);
    for (Control *control : details_.controls()) {
        control->visible.set(seen);
    }
}

void Wizard::nextTab() {
    show(static_cast<WizardPage>(std::min(static_cast<int>(page()) + 1, wizardPageCount - 1)));
}

void Wizard::previousTab() {
    show(static_cast<WizardPage>(std::max(static_cast<int>(page()) - 1, 0)));
}

void Wizard::goGPSWizard() {
    wizardRouteNumber_ = 0;
    outlets_.steps[routeStep].reached.set(false); // it leads nowhere until a way is chosen again
    show(WizardPage::GpsData);
}

void Wizard::goToOffsetSelect() {
    show(WizardPage::OffsetSelect);
}

void Wizard::goToOffsetStart() {
    constexpr std::array starts{WizardPage::OffsetSelect, WizardPage::OffsetByMap,
                                WizardPage::OffsetByLatLon, WizardPage::OffsetByKnown};
    show(starts.at(static_cast<std::size_t>(wizardRouteNumber_)));
}

void Wizard::goToMatchAll() {
    show(WizardPage::MatchAll);
}

void Wizard::offsetByMap() {
    wizardRouteNumber_ = 1;
    goToOffsetStart();
}

void Wizard::offsetByLatLon() {
    wizardRouteNumber_ = 2;
    goToOffsetStart();
}

void Wizard::offsetByKnown() {
    wizardRouteNumber_ = 3;
    goToOffsetStart();
}

void Wizard::goOn() {
    switch (page()) {
    case WizardPage::GpsData: // without a log there is no clock to be set
        surroundings_.hasTrackData() ? nextTab() : offsetByMap();
        break;
    case WizardPage::OffsetSelect:
        break; // the four ways lead on
    case WizardPage::OffsetByMap:
    case WizardPage::OffsetByLatLon:
    case WizardPage::OffsetByKnown:
        goToMatchAll();
        break;
    default:
        nextTab();
    }
}

void Wizard::goBack() {
    switch (page()) {
    case WizardPage::OffsetByMap:
    case WizardPage::OffsetByLatLon:
    case WizardPage::OffsetByKnown:
        goToOffsetSelect();
        break;
    case WizardPage::MatchAll:
        goToOffsetStart();
        break;
    default:
        previousTab();
    }
}

void Wizard::goToStep(std::size_t step) {
    if (!outlets_.steps.at(step).reached.get()) {
        return;
    }
    switch (step) {
    case gpsStep:
        goGPSWizard();
        break;
    case routeStep:
        goToOffsetStart();
        break;
    case saveStep:
        goToMatchAll();
        break;
    default:
        show(static_cast<WizardPage>(step));
    }
}

WizardPage Wizard::page() const {
    return static_cast<WizardPage>(leadingInt(outlets_.wizardTabs.selectedIdentifier.get()));
}

void Wizard::show(WizardPage page) {
    outlets_.wizardTabs.selectedIdentifier.set(identifierOf(page));
}

void Wizard::markSteps() {
    const std::size_t now = stepOfPage.at(static_cast<std::size_t>(page()));
    for (std::size_t step = 0; step < outlets_.steps.size(); ++step) {
        outlets_.steps[step].current.set(step == now);
    }
    outlets_.steps[now].reached.set(true);
    outlets_.backButton.enabled.set(page() != WizardPage::Welcome);
    outlets_.nextButton.enabled.set(page() != WizardPage::OffsetSelect);
    outlets_.nextButton.visible.set(page() != WizardPage::MatchAll);
}

} // namespace pinmora
