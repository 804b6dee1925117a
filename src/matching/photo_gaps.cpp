#include "matching/photo_gaps.h"

#include "matching/placing.h"
#include "persistence/context.h"
#include "store/image.h"
#include "store/offset.h"
#include "store/track_part.h"

namespace pinmora {

PhotoGaps::PhotoGaps(Context &context, ObjectController<offset> &offsetObj)
    : context_(context), offsetObj_(offsetObj), points_(context),
      endOfTurn_([this] { changed.emit(); }),
      offsetChosen_(offsetObj.onChange([this](offset *) { endOfTurn_.ask(); })) {
    context.addObserver(*this, {.entity = &offset::description()});
    context.addObserver(*this, {.entity = &track_part::description(), .values = false});
}

PhotoGaps::~PhotoGaps() {
    context_.removeObserver(*this);
}

std::optional<std::chrono::seconds> PhotoGaps::gapOf(const image &photo) {
    const offset *const clock = offsetObj_.content();
    if (!clock || !photo.captureTime()) {
        return std::nullopt;
    }
    const std::optional<Date> corrected = correctedTime(photo, *clock);
    const track_part *const point = corrected ? points_.inTime(*corrected) : nullptr;
    if (!point) {
        return std::nullopt;
    }
    return std::chrono::duration_cast<std::chrono::seconds>(*corrected - *point->time());
}

void PhotoGaps::didChange(Record &record, std::string_view) {
    if (&record == offsetObj_.content()) {
        endOfTurn_.ask();
    }
}

} // namespace pinmora
