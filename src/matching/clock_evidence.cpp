#include "matching/clock_evidence.h"

#include "matching/nearest_points.h"
#include "persistence/context.h"
#include "platform/number_text.h"
#include "store/image.h"

#include <charconv>
#include <cstddef>
#include <utility>

namespace pinmora {

namespace {

constexpr std::size_t mostPlaced = 20;
/// A hand puts a photo on a map no better than that, and a camera sees further.
constexpr double placeReach = 150; // m

std::optional<int> twoDigits(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber && text.size() == 2 && number >= 0 ? std::optional(number) : std::nullopt;
}

bool isPlacedByHand(const image &photo) {
    return photo.lat_and_lon() && (photo.position_source() == PositionSource::map ||
                                   photo.position_source() == PositionSource::typed);
}

std::optional<Position> placeOf(const image &photo) {
    const std::optional<double> lat = plainDecimal(photo.lat().view());
    const std::optional<double> lon = plainDecimal(photo.lon().view());
    return lat && lon ? std::optional(Position{*lat, *lon}) : std::nullopt;
}

/// What is to be added to the photo's date, which was read as clock time of the computer, so that
/// it is the instant that the photo's own zone makes of it.
std::optional<std::chrono::seconds> impliedOffset(const image &photo, LocalZone &zone) {
    const auto ahead = zoneOfTag(photo.offset_time_original().view());
    if (!ahead) {
        return std::nullopt;
    }
    const std::chrono::sys_seconds shown(zone.wallClockAt(*photo.date()).time_since_epoch());
    return shown - *ahead - std::chrono::floor<std::chrono::seconds>(*photo.date());
}

} // namespace

std::optional<std::chrono::seconds> zoneOfTag(std::string_view tag) {
    if (tag == "Z") {
        return std::chrono::seconds(0);
    }
    if (tag.size() != 6 || (tag[0] != '+' && tag[0] != '-') || tag[3] != ':') {
        return std::nullopt;
    }
    const std::optional<int> hours = twoDigits(tag.substr(1, 2));
    const std::optional<int> minutes = twoDigits(tag.substr(4, 2));
    if (!hours || !minutes || *hours > 15 || *minutes > 59) {
        return std::nullopt;
    }
    const std::chrono::seconds ahead = std::chrono::hours(*hours) + std::chrono::minutes(*minutes);
    return tag[0] == '-' ? -ahead : ahead;
}

OffsetEvidence gatherEvidence(const Context &context, NearestPoints &points,
                              std::chrono::seconds inForce,
                              const std::function<bool(const image &)> &goesByClock) {
    OffsetEvidence evidence{.photos = {}, .coverage = points.coverage(), .inForce = inForce};
    LocalZone zone;
    for (const image *photo : context.records<image>()) {
        const std::optional<Date> taken = photo->captureTime();
        if (!taken || !goesByClock(*photo)) {
            continue;
        }
        evidence.photos.push_back(*taken);
        if (const auto implied = impliedOffset(*photo, zone)) {
            evidence.impliedByTags.push_back(*implied);
        }
        const auto place = isPlacedByHand(*photo) && evidence.placed.size() < mostPlaced
                               ? placeOf(*photo)
                               : std::nullopt;
        if (place) {
            PlacedPhoto placed{*photo->date(), points.passes(*place, placeReach)};
            if (!placed.passes.empty()) {
                evidence.placed.push_back(std::move(placed));
            }
        }
    }
    return evidence;
}

} // namespace pinmora
