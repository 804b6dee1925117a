#include "matching/placing.h"

#include "persistence/undo_group.h"
#include "store/image.h"
#include "store/offset.h"
#include "store/track_part.h"

namespace pinmora {

namespace {

void takePosition(image &photo, const track_part &point) {
    photo.setLat(point.lat());
    photo.setLon(point.lon());
    photo.setPosition_source(PositionSource::log);
}

/// The map's doing, not the person's.
void takeZoom(image &photo) {
    const UnregisteredChanges scope(*photo.context());
    photo.setZoom(placedZoom);
}

} // namespace

std::optional<Date> correctedTime(const image &photo, const offset &clockOffset) {
    const std::optional<Date> &taken = photo.date();
    return taken ? std::optional(*taken + clockOffset.signedOffset()) : std::nullopt;
}

void placeAt(image &photo, const track_part &point) {
    takePosition(photo, point);
    takeZoom(photo);
}

void placeAtWithAltitude(image &photo, const track_part &point) {
    takePosition(photo, point);
    photo.setAlt(point.alt());
    takeZoom(photo);
}

} // namespace pinmora
