#include "store/track_part.h"

#include "persistence/property.h"
#include "store/calendar_formats.h"
#include "store/track.h"

namespace pinmora {

const EntityDescription &track_part::description() {
    using P = track_part;
    static const EntityDescription entity(
        "track_part", []() -> std::unique_ptr<Record> { return std::make_unique<P>(); },
        {
            toOne<&P::track, &P::setTrack, &P::track_, &P::link>("track", "track_part"),
            attribute<&P::time, &P::setTimeValue, &P::time_>("time"),
            writeOnly<&P::setTimeWithDate>("timeWithDate"),
            derived<&P::timeString>("timeString", {"time"}),
            attribute<&P::lat, &P::setLat, &P::lat_>("lat"),
            attribute<&P::lon, &P::setLon, &P::lon_>("lon"),
            attribute<&P::alt, &P::setAlt, &P::alt_>("alt"),
            attribute<&P::point_id, &P::setPoint_id, &P::point_id_>("point_id"),
        });
    return entity;
}

void track_part::setTrack(pinmora::track *track) {
    pinmora::track *const old = track_;
    if (old == track) {
        return;
    }
    Record *const self = this;
    willChangeValueForKey("track");
    if (old) {
        old->willChangeValueForKey("track_part", SetMutation::Minus, {&self, 1});
    }
    if (track) {
        track->willChangeValueForKey("track_part", SetMutation::Union, {&self, 1});
    }
    link(track);
    if (track) {
        track->didChangeValueForKey("track_part", SetMutation::Union, {&self, 1});
    }
    if (old) {
        old->didChangeValueForKey("track_part", SetMutation::Minus, {&self, 1});
    }
    didChangeValueForKey("track");
}

/// Changes the link at both ends, without notices; a set loses a member by its last one taking the
/// free place, so a million points can be taken out one by one.
void track_part::link(pinmora::track *track) {
    if (track_) {
        auto &points = track_->track_part_;
        points.back()->slotInTrack_ = slotInTrack_;
        points[slotInTrack_] = points.back();
        points.pop_back();
    }
    track_ = track;
    if (track_) {
        slotInTrack_ = static_cast<std::uint32_t>(track_->track_part_.size());
        track_->track_part_.push_back(this);
    }
}

void track_part::setTime(const Text &text) {
    LocalZone zone;
    change("time", time_, dateFromText(text.view(), gpxTimeFormat, zone));
}

void track_part::setTimeValue(const Value &value) {
    if (value.toDate()) {
        setTimeWithDate(value.toDate());
    } else {
        setTime(value.toText());
    }
}

std::string track_part::timeString() const {
    LocalZone zone;
    return time() ? textFromDate(*time(), shownTimeFormat, zone) : std::string();
}

} // namespace pinmora
