#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace pinmora {

class Defaults;

/// How ExifTool is run.
enum class ToolLane {
    Process, ///< one process a photo
    Shared,  ///< as many processes as cores, kept open and handed one photo after another
};

inline constexpr std::string_view toolLaneKey = "toolLane";         ///< setting: a lane's name
inline constexpr std::string_view toolPatienceKey = "toolPatience"; ///< setting: seconds

/// "process" or "shared".
std::string_view laneName(ToolLane lane);
std::optional<ToolLane> laneNamed(std::string_view name);

struct ToolSettings {
    ToolLane lane = ToolLane::Process;
    /// How long the tool may go without writing before it is ended.
    std::chrono::milliseconds patience{std::chrono::minutes{2}};
};

/// By the settings; what they do not say, or say wrongly, is as above.
ToolSettings toolSettingsFrom(const Defaults &defaults);

} // namespace pinmora
