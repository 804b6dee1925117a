#include "saving/tool_settings.h"

#include "platform/defaults.h"
#include "platform/number_text.h"

#include <algorithm>

namespace pinmora {

std::string_view laneName(ToolLane lane) {
    return lane == ToolLane::Shared ? "shared" : "process";
}

std::optional<ToolLane> laneNamed(std::string_view name) {
    for (const ToolLane lane : {ToolLane::Process, ToolLane::Shared}) {
        if (laneName(lane) == name) {
            return lane;
        }
    }
    return std::nullopt;
}

ToolSettings toolSettingsFrom(const Defaults &defaults) {
    ToolSettings settings;
    settings.lane = laneNamed(defaults.text(toolLaneKey).value_or("")).value_or(settings.lane);
    const auto seconds = plainDecimal(defaults.text(toolPatienceKey).value_or(""));
    if (seconds && *seconds > 0) {
        constexpr double longest = 365.0 * 24 * 60 * 60;
        settings.patience = std::chrono::ceil<std::chrono::milliseconds>(
            std::chrono::duration<double>{std::min(*seconds, longest)});
    }
    return settings;
}

} // namespace pinmora
