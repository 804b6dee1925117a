#pragma once

#include "store/point_record.h"

namespace pinmora {

class track;

/// The point that a display shows as the best one: shaped like a track point, in no track's set.
class track_part_best : public PointRecord {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }

    pinmora::track *track() const { return read("track", track_); }
    void setTrack(pinmora::track *track) { change("track", track_, track); }

    /// Whether a point has been chosen: a negative point_id says no.
    bool bestTrackSet() const { return point_id().value_or(0) >= 0; }

private:
    void link(pinmora::track *track) { track_ = track; }

    pinmora::track *track_ = nullptr;
};

} // namespace pinmora
