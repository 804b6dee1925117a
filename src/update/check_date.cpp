#include "update/check_date.h"

namespace pinmora {
namespace {

constexpr std::string_view form = "%Y-%m-%dT%H:%M:%SZ";

} // namespace

std::string checkDateText(Date date) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(date);
    return textFromWallClock(WallClock(seconds.time_since_epoch()), form);
}

std::optional<Date> checkDateFrom(std::string_view text) {
    const auto wallClock = wallClockFromText(text, form);
    return wallClock ? std::optional<Date>(wallClock->time_since_epoch()) : std::nullopt;
}

} // namespace pinmora
