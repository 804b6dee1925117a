#include "matching/matcher.h"

#include "persistence/context.h"
#include "store/image.h"
#include "store/offset.h"
#include "store/track_part.h"

namespace pinmora {

Matcher::Matcher(Context &context, const offset &clockOffset)
    : context_(context), offset_(clockOffset) {}

Matcher::~Matcher() {
    dropIndex();
}

std::optional<Date> Matcher::correctedTime(const image &photo) const {
    const std::optional<Date> &taken = photo.date();
    return taken ? std::optional(*taken + offset_.signedOffset()) : std::nullopt;
}

track_part *Matcher::getLatLonAlt(const image &photo) {
    const std::optional<Date> time = correctedTime(photo);
    if (!time) {
        return nullptr;
    }
    if (!index_) {
        dropIndex(); // the points are read unobserved
        index_.emplace(context_.records<track_part>());
        context_.addObserver(*this);
        observing_ = true;
    }
    return index_->nearest(*time);
}

track_part *Matcher::placeAtNearestPoint(image &photo) {
    track_part *const point = getLatLonAlt(photo);
    if (point) {
        photo.setLat(point->lat());
        photo.setLon(point->lon());
        photo.setAlt(point->alt());
        photo.setZoom(placedZoom);
        photo.setPosition_source(PositionSource::log);
    }
    return point;
}

void Matcher::dropIndex() {
    index_.reset();
    if (observing_) {
        context_.removeObserver(*this);
        observing_ = false;
    }
}

void Matcher::didChange(Record &record, std::string_view) {
    forgetIndexOver(record);
}

void Matcher::didInsert(Record &record) {
    forgetIndexOver(record);
}

void Matcher::didDelete(Record &record) {
    forgetIndexOver(record);
}

/// Observers must not leave in the middle of a notice, so the matcher goes on observing.
void Matcher::forgetIndexOver(const Record &record) {
    if (index_ && &record.entity() == &track_part::description()) {
        index_.reset();
    }
}

} // namespace pinmora
