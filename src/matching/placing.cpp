#include "matching/placing.h"

#include "persistence/undo_group.h"
#include "store/image.h"
#include "store/offset.h"
#include "store/track_part.h"

#include <chrono>

namespace pinmora {

namespace {

double secondsTo(Date point, Date photo) {
    return std::chrono::duration<double>(point - photo).count();
}

void takePosition(image &photo, const track_part &point, std::optional<Date> corrected) {
    photo.setLat(point.lat());
    photo.setLon(point.lon());
    photo.setPosition_source(PositionSource::log);
    const bool tellsWhen = corrected && photo.captureTime();
    photo.setPosition_gap(tellsWhen && point.time()
                              ? std::optional(secondsTo(*point.time(), *corrected))
                              : std::nullopt);
}

/// The map's doing, not the person's.
void takeZoom(image &photo) {
    const UnregisteredChanges scope(*photo.context());
    photo.setZoom(placedZoom);
}

} // namespace

std::optional<Date> correctedTime(const image &photo, const offset &clockOffset) {
    const std::optional<Date> &taken = photo.date();
    return taken ? std::optional(*taken + clockOffset.signedOffsetFor(photo.camera().view()))
                 : std::nullopt;
}

void placeAt(image &photo, const track_part &point, std::optional<Date> corrected) {
    takePosition(photo, point, corrected);
    takeZoom(photo);
}

void placeAtWithAltitude(image &photo, const track_part &point, std::optional<Date> corrected) {
    takePosition(photo, point, corrected);
    photo.setAlt(point.alt());
    takeZoom(photo);
}

} // namespace pinmora
