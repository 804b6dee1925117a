#pragma once

#include "outlets/controls.h"
#include "outlets/image_well.h"
#include "outlets/map_view.h"
#include "outlets/tab_view.h"
#include "outlets/window.h"
#include "platform/defaults.h"
#include "shell/wizard_details.h"
#include "shell/wizard_pages.h"

#include <array>
#include <functional>
#include <vector>

namespace pinmora {

/// The setting that says with which window the program begins: "1" for the wizard.
inline constexpr std::string_view useWizardKey = "useWizard";
bool startsInWizard(const Defaults &defaults);

/// A step of the list at the left of the wizard.
struct WizardStep {
    Observable<bool> reached{false}; ///< a click goes there
    Observable<bool> current{false};
};

/// The controls that switch between the two windows, and those of the wizard that are nobody
/// else's.
struct WizardOutlets {
    // Others have their hands in these as well.
    Window &window;
    Window &wizardWindow;
    bool &inWizard;
    MapView &webView2; ///< the wizard's
    ImageWell &theImageView2;

    Button useWizard{};   ///< menu item: to the wizard
    Button useAdvanced{}; ///< menu item: to the main window
    CheckBox dontShowWizardButton{};
    TabView wizardTabs{};

    Button nextButton{};
    Button backButton{};
    // The four ways on from the page that asks about the camera's clock.
    Button byMapButton{};
    Button byLatLonButton{};
    Button byKnownButton{};
    Button clockWasRightButton{};
    Button loadLogInstead{}; ///< on pages that stand in for a log: to the page that loads one
    /// In the order of the list. The three pages of the routes share one step.
    std::array<WizardStep, 6> steps{};
};

/// Which of the two windows is worked in, and the way through the pages of the wizard.
class Wizard {
public:
    /// What the wizard needs of others.
    struct Surroundings {
        Defaults &defaults;
        std::function<bool()> hasTrackData;
        /// The other window has come to the front, with another map.
        std::function<void()> windowChanged;
    };

    /// All must outlive it.
    Wizard(WizardOutlets &outlets, WizardDetails &details, Surroundings surroundings);
    Wizard(const Wizard &) = delete;
    Wizard &operator=(const Wizard &) = delete;
    ~Wizard() = default;

    /// 1 shows the wizard, anything else the main window.
    void setStartWindow(int useWizard);
    void changeToWizard();
    void changeToMain();
    /// Whether a menu item is enabled.
    bool validateMenuItem(const Button &item) const;
    /// Flips whether the wizard is shown at the next start.
    void dontShowWizardAtStart();
    /// Shows map, picture and details on the pages that have them.
    void didSelectTabViewItem(int identifier);

    void nextTab();
    void previousTab();
    void goGPSWizard();
    void goToOffsetSelect();
    /// Back to the first page of the way that was chosen.
    void goToOffsetStart();
    void goToMatchAll();
    void offsetByMap();
    void offsetByLatLon();
    void offsetByKnown();
    /// What a click in the list of steps does: nothing for a step that has not been reached.
    void goToStep(std::size_t step);

    WizardPage page() const;
    /// 0: none chosen; 1: by the map; 2: by latitude and longitude; 3: a known offset.
    int wizardRouteNumber() const { return wizardRouteNumber_; }

private:
    void connectButtons();
    void goOn();
    void goBack();
    void show(WizardPage page);
    void work(bool inWizard);
    void validateMenu();
    void markSteps();

    WizardOutlets &outlets_;
    WizardDetails &details_;
    Surroundings surroundings_;
    int wizardRouteNumber_ = 0;
    std::vector<Connection> connections_;
    NotificationCentre::Observation settingChanged_;
};

} // namespace pinmora
