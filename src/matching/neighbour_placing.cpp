#include "matching/neighbour_placing.h"

#include "matching/matching_outlets.h"
#include "matching/nearest_points.h"
#include "matching/placing.h"
#include "matching/time_neighbours.h"
#include "persistence/context.h"
#include "persistence/undo_group.h"
#include "platform/number_text.h"
#include "platform/translation.h"
#include "store/image.h"
#include "store/offset.h"
#include "store/track.h"
#include "store/track_part.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace pinmora {

namespace {

using Places = std::vector<TimedPlace>;

std::optional<Date> correctedCaptureTime(const image &photo, const offset &clock) {
    return photo.captureTime() ? correctedTime(photo, clock) : std::nullopt;
}

void sortByTime(Places &places) {
    if (!std::ranges::is_sorted(places, {}, &TimedPlace::time)) {
        std::ranges::stable_sort(places, {}, &TimedPlace::time);
    }
}

/// Each track's points, those that have a time and a place.
std::vector<Places> placesOfTracks(const Context &context) {
    std::vector<Places> tracks;
    std::unordered_map<const track *, std::size_t> numbers;
    for (const track_part *point : context.records<track_part>()) {
        if (const std::optional<TimedPlace> place =
                point->time() ? timedPlace(*point->time(), point->lat().view(), point->lon().view(),
                                           point->alt().view())
                              : std::nullopt) {
            const auto [found, isNew] = numbers.try_emplace(point->track(), tracks.size());
            if (isNew) {
                tracks.emplace_back();
            }
            tracks[found->second].push_back(*place);
        }
    }
    std::ranges::for_each(tracks, sortByTime);
    return tracks;
}

/// The photos that others can be placed between.
Places placesOfPhotos(const Context &context, const offset &clock,
                      const std::vector<image *> &without) {
    const std::unordered_set<const image *> left(without.begin(), without.end());
    Places places;
    for (const image *photo : context.records<image>()) {
        const std::optional<Date> time = correctedCaptureTime(*photo, clock);
        const bool isWitness = time && !left.contains(photo) &&
                               photo->position_source().view() != PositionSource::estimated;
        if (const std::optional<TimedPlace> place =
                isWitness ? timedPlace(*time, photo->lat().view(), photo->lon().view(),
                                       photo->alt().view())
                          : std::nullopt) {
            places.push_back(*place);
        }
    }
    sortByTime(places);
    return places;
}

std::optional<TimeNeighbours> closestOf(Date instant, const std::vector<Places> &tracks) {
    std::optional<TimeNeighbours> closest;
    for (const Places &places : tracks) {
        const std::optional<TimeNeighbours> found = neighboursOf(instant, places);
        if (found && (!closest || found->apart() < closest->apart())) {
            closest = found;
        }
    }
    return closest;
}

/// Six decimals of a degree are 11 cm, one of a metre is more than a receiver knows.
void takeEstimate(image &photo, const TimedPlace &place) {
    photo.updateLatAndLon({decimalText(place.position.lat, 6), decimalText(place.position.lon, 6)});
    photo.setAlt(place.altitude ? Text(decimalText(*place.altitude, 1)) : Text());
    photo.setPosition_source(PositionSource::estimated);
    const UnregisteredChanges mapsOwn(*photo.context());
    photo.setZoom(placedZoom);
}

} // namespace

NeighbourPlacing::NeighbourPlacing(Context &context, MatchingOutlets &outlets,
                                   NearestPoints &points)
    : context_(context), outlets_(outlets), points_(points) {}

void NeighbourPlacing::placeBetweenNeighbours() {
    if (!context_.commitEditing()) {
        return;
    }
    const offset *const clock = outlets_.offsetObj.content();
    const std::vector<image *> photos = outlets_.pictureArray.selectedObjects();
    if (!clock || photos.empty()) {
        return;
    }
    const std::vector<Places> tracks = placesOfTracks(context_);
    const Places others = placesOfPhotos(context_, *clock, photos);
    NeighbourOutcome outcome;
    {
        const UndoGroup group(context_, translated("matching", "Place Between Neighbours"));
        for (image *photo : photos) {
            const std::optional<Date> time = correctedCaptureTime(*photo, *clock);
            std::optional<TimeNeighbours> around = time ? closestOf(*time, tracks) : std::nullopt;
            if (time && !around) {
                around = neighboursOf(*time, others);
            }
            if (around) {
                takeEstimate(*photo, placeBetween(*around, *time));
                ++outcome.placed;
            } else {
                outcome.unplaced.push_back(photo->serial());
            }
        }
    }
    placed.emit(outcome);
}

void NeighbourPlacing::placeAtNearestPoint() {
    if (!context_.commitEditing()) {
        return;
    }
    const offset *const clock = outlets_.offsetObj.content();
    const std::vector<image *> &selected = outlets_.pictureArray.selectedObjects();
    if (!clock || selected.size() != 1) {
        return;
    }
    image &photo = *selected.front();
    const std::optional<Date> time = correctedCaptureTime(photo, *clock);
    NeighbourOutcome outcome;
    if (const track_part *const point = time ? points_.inTime(*time) : nullptr) {
        const UndoGroup group(context_, translated("matching", "Place at Nearest Point"));
        placeAtWithAltitude(photo, *point, time);
        outcome.placed = 1;
    } else {
        outcome.unplaced.push_back(photo.serial());
    }
    placed.emit(outcome);
}

} // namespace pinmora
