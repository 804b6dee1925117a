#pragma once

#include "gps/log_reading.h"
#include "outlets/signal.h"
#include "outlets/stepper.h"
#include "saving/tool_settings.h"
#include "shell/address_preference.h"
#include "shell/appearance.h"
#include "shell/preference.h"

#include <array>
#include <vector>

namespace pinmora {

/// What a person can set in the window of the preferences. Each choice is stored at once, and holds
/// from then on for whoever goes by it.
class Preferences {
public:
    /// The settings must outlive it.
    explicit Preferences(Defaults &defaults);
    Preferences(const Preferences &) = delete;
    Preferences &operator=(const Preferences &) = delete;
    ~Preferences() = default;

    Preference<bool> startsInWizard;
    Preference<Appearance> appearance;
    Preference<bool> checksVersion; ///< at start
    AddressPreference versionInfo;  ///< that of the build, or one's own

    AddressPreference tiles;   ///< OpenStreetMap's, none, or one's own
    AddressPreference mapPage; ///< the built-in one, or one's own

    Preference<bool> looksUpPlaces;
    AddressPreference placeService; ///< the built-in one, or one's own
    // What a service of one's own expects besides; both can be edited only while there is one.
    AddressPreference placeHost;
    AddressPreference placeNamespace;

    Preference<LogReading> logReading;

    Preference<bool> morePhotoTypes;
    Preference<ToolLane> toolLane;
    Preference<int> toolPatience; ///< seconds
    Stepper patience;             ///< chooses it

    /// Stores what has been typed and is fit; false when something is left that is not.
    bool takeOver();
    /// All of them that can be unfit.
    std::array<AddressPreference *, 6> addresses();

private:
    void followPlaceService();
    void followPatience();

    std::vector<Connection> connections_;
};

} // namespace pinmora
