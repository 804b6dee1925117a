#pragma once

#include "outlets/editing.h"
#include "photos/photo_types.h"
#include "places/place_names.h"
#include "platform/defaults.h"
#include "platform/notification_centre.h"
#include "shell/interface.h"
#include "store/image.h"
#include "store/library.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace pinmora {

struct Subsystems;

enum class TerminateReply { Now, Cancel };

/// The services that come with the program, for whom the settings name no others.
struct BuiltInServices {
    /// Base URL of the map page and the place names, started at the first call; "" without any.
    std::function<std::string()> address = [] { return std::string(); };
    std::string placeNamespace{}; ///< of the place names
    /// Where the map page gets its tiles when it is loaded next, by the setting.
    std::function<void(const std::string &)> setTileServer = [](const std::string &) {};
};

/// The one controller: it owns the library and all subsystems, wires them, and answers for the
/// program's life. Interface and subsystems are there for whoever shows them.
class Pinmora_AppDelegate {
public:
    /// `init`: nothing is read or shown yet. `resourceFolder` is the program's own.
    explicit Pinmora_AppDelegate(std::filesystem::path resourceFolder,
                                 PixelSize screen = {1920, 1080}, BuiltInServices services = {});
    ~Pinmora_AppDelegate();
    Pinmora_AppDelegate(const Pinmora_AppDelegate &) = delete;
    Pinmora_AppDelegate &operator=(const Pinmora_AppDelegate &) = delete;

    /// The one-time set-up: opens the library and shows the window. Later calls do nothing.
    void awakeFromNib();

    /// Where place names are asked for, by the settings, else the built-in service.
    PlaceService placeService() const;

    TerminateReply applicationShouldTerminate();
    /// Asks whoever runs the event loop to quit, which asks applicationShouldTerminate().
    Signal<> terminate;

    Interface interface;
    Defaults defaults;
    NotificationCentre notifications;
    Editing editing; ///< who may hold half-typed text
    PhotoTypes photoTypes;
    Library library;

    /// All that stands on the open library; to be asked for after awakeFromNib() only.
    Subsystems &subsystems() { return *subsystems_; }

private:
    void loadMapPages();
    void observeNotifications();
    void observeSettings();
    void setMissingDefaults();
    bool somePhotoHasChanges();

    const std::filesystem::path resourceFolder_;
    const PixelSize screen_;
    const BuiltInServices services_;
    bool firstLoad_ = true;
    std::vector<NotificationCentre::Observation> observations_;
    std::unique_ptr<Subsystems> subsystems_;
};

/// The minor version of a 10.x system by its version file, else 0.
int getOSVersion(
    const std::filesystem::path &file = "/System/Library/CoreServices/SystemVersion.plist");

} // namespace pinmora
