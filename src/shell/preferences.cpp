#include "shell/preferences.h"

#include "gps/reading_setting.h"
#include "map/map_settings.h"
#include "photos/photo_types.h"
#include "places/place_settings.h"
#include "shell/address_rules.h"
#include "shell/version_check.h"
#include "shell/wizard.h"

namespace pinmora {
namespace {

std::string flagWord(bool on) {
    return on ? "1" : "0";
}

std::string readingWord(LogReading reading) {
    return std::string(policyOf(reading).name);
}

std::string laneWord(ToolLane lane) {
    return std::string(laneName(lane));
}

int patienceIn(const Defaults &defaults) {
    const auto patience = toolSettingsFrom(defaults).patience;
    return static_cast<int>(std::chrono::ceil<std::chrono::seconds>(patience).count());
}

} // namespace

Preferences::Preferences(Defaults &defaults)
    : startsInWizard(defaults, useWizardKey, pinmora::startsInWizard, flagWord),
      appearance(defaults, appearanceKey, appearanceFrom, wordFor),
      checksVersion(defaults, versionCheckKey, checksVersionAtStart,
                    [](bool checks) { return flagWord(!checks); }),
      versionInfo(defaults, versionInfoUrlKey, {""}, webAddressProblem),
      tiles(defaults, tileServerKey, {"", std::string(noTiles)}, tileAddressProblem),
      mapPage(defaults, mapServerKey, {""}, webAddressProblem),
      looksUpPlaces(defaults, lookUpPlacesKey, pinmora::looksUpPlaces, flagWord),
      placeService(defaults, placeServerKey, {""}, webAddressProblem),
      placeHost(defaults, placeHostKey, {}, placeHostProblem),
      placeNamespace(defaults, placeNamespaceKey, {}, placeNamespaceProblem),
      logReading(defaults, logReadingKey, logReadingFrom, readingWord),
      morePhotoTypes(defaults, morePhotoTypesKey, takesMorePhotoTypes, flagWord),
      toolLane(
          defaults, toolLaneKey,
          [](const Defaults &settings) { return toolSettingsFrom(settings).lane; }, laneWord),
      toolPatience(defaults, toolPatienceKey, patienceIn,
                   [](int seconds) { return std::to_string(seconds); }) {
    followPlaceService();
    connections_.push_back(
        placeService.choice.onChange([this](std::size_t) { followPlaceService(); }));
    followPatience();
}

std::array<AddressPreference *, 6> Preferences::addresses() {
    return {&versionInfo, &tiles, &mapPage, &placeService, &placeHost, &placeNamespace};
}

void Preferences::followPlaceService() {
    for (AddressPreference *const besides : {&placeHost, &placeNamespace}) {
        if (!placeService.isOwn()) {
            besides->takeBack();
        }
        besides->field.enabled.set(placeService.isOwn());
    }
}

void Preferences::followPatience() {
    patience.minimum = 10; // a tool that only starts takes a second or two on a slow machine
    patience.maximum = 3600;
    patience.increment = 10;
    patience.value.set(toolPatience.value().get());
    connections_.push_back(toolPatience.value().onChange([this](int s) { patience.value.set(s); }));
    connections_.push_back(
        patience.stepped.connect([this] { toolPatience.choose(patience.value.get()); }));
}

bool Preferences::takeOver() {
    bool isAll = true;
    for (AddressPreference *const address : addresses()) {
        isAll = address->takeOver() && isAll;
    }
    return isAll;
}

} // namespace pinmora
