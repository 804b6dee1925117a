#pragma once

#include "persistence/value.h"
#include "platform/image_source.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace pinmora {

/// The value, or "" when there is none.
std::string nullTest(const std::optional<std::string> &value);

/// A position from the dictionary {GPS} as signed decimal text: "+47.3825", "-8.5". Nothing unless
/// the reference letter is exactly "N", "S", "E" or "W" and the number is there.
std::optional<std::string> getLatFromGPS(const PropertyDictionary &gps);
std::optional<std::string> getLonFromGPS(const PropertyDictionary &gps);

/// Make, model and serial number, outer blanks trimmed, joined by ", "; "" when none is known.
std::string cameraText(const ImageProperties &properties);

/// What the record of a photo is filled with, key by key in the order of writing: the file's own
/// hemisphere letters come after the position, whose setters work letters out.
using PhotoValues = std::vector<std::pair<std::string_view, Value>>;
PhotoValues photoValues(const std::string &name, const std::string &folder,
                        const ImageProperties &properties);

} // namespace pinmora
