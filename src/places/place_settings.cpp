#include "places/place_settings.h"

#include "platform/defaults.h"

namespace pinmora {

bool looksUpPlaces(const Defaults &defaults) {
    return defaults.text(lookUpPlacesKey) != "0";
}

PlaceService placeServiceFrom(const Defaults &defaults,
                              const std::function<std::string()> &builtInAddress,
                              std::string_view builtInNamespace) {
    PlaceService service{.address = defaults.text(placeServerKey).value_or(""),
                         .host = defaults.text(placeHostKey).value_or(""),
                         .nameSpace = defaults.text(placeNamespaceKey).value_or("")};
    if (service.address.empty()) {
        service = {.address = builtInAddress(), .host = "", .nameSpace = ""};
    }
    if (service.nameSpace.empty()) {
        service.nameSpace = builtInNamespace;
    }
    return service;
}

} // namespace pinmora
