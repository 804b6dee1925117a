#include "store/offset.h"

#include "persistence/property.h"

namespace pinmora {

const EntityDescription &offset::description() {
    static const EntityDescription entity(
        "offset", []() -> std::unique_ptr<Record> { return std::make_unique<offset>(); },
        {
            attribute<&offset::plus, &offset::setPlus, &offset::plus_>("plus"),
            attribute<&offset::hours, &offset::setHours, &offset::hours_>("hours"),
            attribute<&offset::minutes, &offset::setMinutes, &offset::minutes_>("minutes"),
            attribute<&offset::seconds, &offset::setSeconds, &offset::seconds_>("seconds"),
            attribute<&offset::offset_set, &offset::setOffset_set, &offset::offset_set_>(
                "offset_set"),
            attribute<&offset::camera_offsets, &offset::setCamera_offsets,
                      &offset::camera_offsets_>("camera_offsets"),
            derived<&offset::not_enabled>("not_enabled"),
        });
    return entity;
}

ClockParts offset::parts() const {
    return {.plus = plus().value_or(0) != 0,
            .hours = hours().value_or(0),
            .minutes = minutes().value_or(0),
            .seconds = seconds().value_or(0)};
}

void offset::setParts(const ClockParts &parts) {
    setPlus(parts.plus ? 1 : 0);
    setHours(parts.hours);
    setMinutes(parts.minutes);
    setSeconds(parts.seconds);
}

std::chrono::seconds offset::signedOffset() const {
    return parts().signedOffset();
}

std::chrono::seconds offset::signedOffsetFor(std::string_view camera) const {
    const ClockParts *const own = cameraOffsets().find(camera);
    return own ? own->signedOffset() : signedOffset();
}

const CameraOffsets &offset::cameraOffsets() const {
    if (const Text &text = camera_offsets(); !(text == readFrom_)) {
        cameraOffsets_ = CameraOffsets(text.view());
        readFrom_ = text;
    }
    return cameraOffsets_;
}

} // namespace pinmora
