#include "shell/pinmora_app_delegate.h"

#include "gps/reading_setting.h"
#include "map/map_settings.h"
#include "persistence/context.h"
#include "places/place_settings.h"
#include "shell/subsystems.h"

#include <algorithm>
#include <any>
#include <string_view>
#include <utility>

namespace pinmora {

Pinmora_AppDelegate::Pinmora_AppDelegate(std::filesystem::path resourceFolder, PixelSize screen,
                                         BuiltInServices services)
    : library(notifications, interface.errors), resourceFolder_(std::move(resourceFolder)),
      screen_(screen), services_(std::move(services)) {}

Pinmora_AppDelegate::~Pinmora_AppDelegate() = default;

void Pinmora_AppDelegate::awakeFromNib() {
    if (!std::exchange(firstLoad_, false)) {
        return;
    }
    photoTypes.setMorePhotoTypes(takesMorePhotoTypes(defaults));
    loadMapPages();
    observeNotifications();
    subsystems_ = std::make_unique<Subsystems>(*this, resourceFolder_, screen_);
    subsystems_->makeRecords(library.managedObjectContext(), interface.degreeObj);
    for (MapView *view : {&interface.webView1, &interface.webView2}) {
        view->publish("controlObj");
    }
    interface.saveFlags = {};
    setMissingDefaults();
    observeSettings();
    subsystems_->gps.setReading(logReadingFrom(defaults));
    subsystems_->versionCheck.start();
    subsystems_->wizard.setStartWindow(startsInWizard(defaults) ? 1 : 0);
    subsystems_->inspector.tableSelectionChanged();
    subsystems_->fileBrowser.setUp();
    subsystems_->recoveryOffers.post();
}

/// From the server that the settings name, else from the built-in one. Without a server, the map
/// views stay empty.
void Pinmora_AppDelegate::loadMapPages() {
    services_.setTileServer(defaults.text(tileServerKey).value_or(""));
    std::string chosen = defaults.text(mapServerKey).value_or("");
    while (chosen.ends_with('/')) {
        chosen.pop_back();
    }
    const std::string server = chosen.empty() ? services_.address() : chosen;
    if (server.empty()) {
        return;
    }
    for (MapView *view : {&interface.webView1, &interface.webView2}) {
        view->load({.address = server + "/maps/index3.php?w=434&h=400", .ignoresCache = true});
    }
}

void Pinmora_AppDelegate::observeNotifications() {
    const auto observe = [this](std::string_view name, NotificationCentre::Handler handler) {
        observations_.push_back(notifications.addObserver(name, std::move(handler)));
    };
    const auto onField = [this](void (Inspector::*told)(const TextField &)) {
        return [this, told](const Notification &notice) {
            const auto *field = std::any_cast<const TextField *>(&notice.object);
            if (field) {
                (subsystems_->inspector.*told)(**field);
            }
        };
    };
    observe(controlTextDidBeginEditing, onField(&Inspector::textDidBeginEditing));
    observe(tableSelectionDidChange,
            [this](const Notification &) { subsystems_->inspector.tableSelectionChanged(); });
    observe(controlTextDidChange, onField(&Inspector::textDidChange));
    observe(locationChange, [this](const Notification &notice) {
        const auto *position = std::any_cast<PositionTexts>(&notice.object);
        if (position && subsystems_) {
            subsystems_->markers.updateMap(*position);
        }
    });
}

/// What is chosen while the program runs holds from then on.
void Pinmora_AppDelegate::observeSettings() {
    const auto observe = [this](std::string_view key, std::function<void()> told) {
        observations_.push_back(defaults.onChange(key, std::move(told)));
    };
    observe(morePhotoTypesKey,
            [this] { photoTypes.setMorePhotoTypes(takesMorePhotoTypes(defaults)); });
    for (const std::string_view key : {tileServerKey, mapServerKey}) {
        observe(key, [this] { loadMapPages(); });
    }
    observe(lookUpPlacesKey,
            [this] { subsystems_->placeNames.setEnabled(looksUpPlaces(defaults)); });
    for (const std::string_view key : {placeServerKey, placeHostKey, placeNamespaceKey}) {
        observe(key, [this] { subsystems_->placeNames.serviceChanged(); });
    }
}

PlaceService Pinmora_AppDelegate::placeService() const {
    return placeServiceFrom(defaults, services_.address, services_.placeNamespace);
}

void Pinmora_AppDelegate::setMissingDefaults() {
    for (const auto &[key, value] : {std::pair(useWizardKey, "1"), std::pair(versionCheckKey, "0"),
                                     std::pair(morePhotoTypesKey, "0")}) {
        if (!defaults.text(key)) {
            defaults.setText(key, value);
            defaults.synchronize();
        }
    }
}

TerminateReply Pinmora_AppDelegate::applicationShouldTerminate() {
    if (!library.hasManagedObjectContext()) {
        return TerminateReply::Now;
    }
    if (subsystems_->savePipeline.isRunning()) {
        subsystems_->savePipeline.quitWhenDone();
        return TerminateReply::Cancel;
    }
    if (!subsystems_->preferences.takeOver()) {
        subsystems_->preferencesWindow.makeKeyAndOrderFront(); // it shows what is not stored
        return TerminateReply::Cancel;
    }
    Context &context = library.managedObjectContext();
    if (!context.commitEditing()) {
        return TerminateReply::Cancel;
    }
    if (!context.hasChanges() || !interface.saveFlags.firstQuit) {
        return TerminateReply::Now;
    }
    const bool found = somePhotoHasChanges();
    if (found) {
        subsystems_->quitWarning.openQuitWarning();
    }
    interface.saveFlags.firstQuit = false;
    return found ? TerminateReply::Cancel : TerminateReply::Now;
}

bool Pinmora_AppDelegate::somePhotoHasChanges() {
    const std::vector<image *> photos = subsystems_->arrays.pictureArray.arrangedObjects();
    return std::any_of(photos.begin(), photos.end(),
                       [](const image *photo) { return photo->getHasChanges(); });
}

} // namespace pinmora
