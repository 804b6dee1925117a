#include "store/camera_offsets.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace pinmora {

namespace {

/// Takes a number that is not negative off the head of the text.
std::optional<std::int32_t> takeNumber(std::string_view &text) {
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || number < 0) {
        return std::nullopt;
    }
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

bool take(std::string_view &text, char expected) {
    const bool isThere = text.starts_with(expected);
    text.remove_prefix(isThere ? 1 : 0);
    return isThere;
}

/// What is left of the line is the camera.
std::optional<ClockParts> takeParts(std::string_view &line) {
    ClockParts parts{.plus = line.starts_with('+')};
    if (!take(line, parts.plus ? '+' : '-')) {
        return std::nullopt;
    }
    const auto hours = takeNumber(line);
    const auto minutes = hours && take(line, ':') ? takeNumber(line) : std::nullopt;
    const auto seconds = minutes && take(line, ':') ? takeNumber(line) : std::nullopt;
    if (!seconds || !take(line, ' ')) {
        return std::nullopt;
    }
    parts.hours = *hours;
    parts.minutes = *minutes;
    parts.seconds = *seconds;
    return parts;
}

/// A camera's name with a line break in it would be two lines.
std::string onOneLine(std::string_view camera) {
    std::string line(camera);
    std::replace(line.begin(), line.end(), '\n', ' ');
    return line;
}

} // namespace

std::chrono::seconds ClockParts::signedOffset() const {
    const std::chrono::seconds sum =
        std::chrono::hours(hours) + std::chrono::minutes(minutes) + std::chrono::seconds(seconds);
    return plus ? sum : -sum;
}

ClockParts ClockParts::of(std::chrono::seconds signedOffset) {
    const std::chrono::hh_mm_ss parts(signedOffset);
    return {.plus = !parts.is_negative(),
            .hours = static_cast<std::int32_t>(parts.hours().count()),
            .minutes = static_cast<std::int32_t>(parts.minutes().count()),
            .seconds = static_cast<std::int32_t>(parts.seconds().count())};
}

CameraOffsets::CameraOffsets(std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (const auto parts = takeParts(line)) {
            set(line, *parts);
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

std::string CameraOffsets::text() const {
    std::string text;
    for (const auto &[camera, parts] : offsets_) {
        text.append(1, parts.plus ? '+' : '-').append(std::to_string(parts.hours));
        text.append(1, ':').append(std::to_string(parts.minutes));
        text.append(1, ':').append(std::to_string(parts.seconds));
        text.append(1, ' ').append(camera).append(1, '\n');
    }
    return text;
}

const ClockParts *CameraOffsets::find(std::string_view camera) const {
    if (offsets_.empty()) { // as a rule
        return nullptr;
    }
    const auto found = offsets_.find(onOneLine(camera));
    return found == offsets_.end() ? nullptr : &found->second;
}

/// Photos that do not tell their camera have no clock in common.
void CameraOffsets::set(std::string_view camera, const ClockParts &parts) {
    if (!camera.empty()) {
        offsets_.insert_or_assign(onOneLine(camera), parts);
    }
}

void CameraOffsets::erase(std::string_view camera) {
    offsets_.erase(onOneLine(camera));
}

} // namespace pinmora
