#pragma once

#include "gps/log_reading.h"
#include "places/place_service.h"
#include "saving/tool_settings.h"

#include <filesystem>
#include <functional>
#include <string>

namespace pinmora::tag {

/// What the command has around it besides its options.
struct Surroundings {
    std::filesystem::path resources; ///< the program's resource folder
    /// Where place names are asked for; empty when they are not to be looked up.
    std::function<PlaceService()> placeService;
    bool morePhotoTypes = false;                   ///< the person's setting
    LogReading logReading = LogReading::Exact;     ///< the person's setting
    ToolSettings tool;                             ///< the person's settings
    std::function<void(const std::string &)> tell; ///< one line for the person, without line end
    std::function<void(const std::string &)> progress; ///< how far the work has come
    std::function<bool()> stopped; ///< whether the person wants no further photo to be begun
};

} // namespace pinmora::tag
