#pragma once

#include "places/place_service.h"

#include <functional>
#include <string>
#include <string_view>

namespace pinmora {

class Defaults;

/// The setting that turns lookups off: "0".
inline constexpr std::string_view lookUpPlacesKey = "lookUpPlaces";
// Those of a service in place of the built-in one: its base URL, and what it expects besides.
inline constexpr std::string_view placeServerKey = "placeServer";
inline constexpr std::string_view placeHostKey = "placeServerHost";
inline constexpr std::string_view placeNamespaceKey = "placeServerNamespace";

/// Whether names are looked up, as they are unless a person has turned that off.
bool looksUpPlaces(const Defaults &defaults);

/// The service that the settings name; without a server among them the built-in one, which is not
/// asked for its address before.
PlaceService placeServiceFrom(const Defaults &defaults,
                              const std::function<std::string()> &builtInAddress,
                              std::string_view builtInNamespace);

} // namespace pinmora
