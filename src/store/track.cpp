#include "store/track.h"

#include "persistence/property.h"
#include "store/track_part.h"

namespace pinmora {

const EntityDescription &track::description() {
    static const EntityDescription entity(
        "track", []() -> std::unique_ptr<Record> { return std::make_unique<track>(); },
        {
            attribute<&track::track_id, &track::setTrack_id, &track::track_id_>("track_id"),
            attribute<&track::log_path, &track::setLog_path, &track::log_path_>("log_path"),
            attribute<&track::log_reading, &track::setLog_reading, &track::log_reading_>(
                "log_reading"),
            toMany<&track::pointList>("track_part", "track", DeleteRule::Cascade),
        });
    return entity;
}

RecordList track::pointList() const {
    return {points().begin(), points().end()};
}

void track::addTrack_partObject(pinmora::track_part &point) {
    if (point.track() != this) {
        point.setTrack(this);
    }
}

void track::removeTrack_partObject(pinmora::track_part &point) {
    if (point.track() == this) {
        point.setTrack(nullptr);
    }
}

} // namespace pinmora
