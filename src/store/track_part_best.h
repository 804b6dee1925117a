#pragma once

#include "persistence/record.h"

#include <cstdint>
#include <optional>

namespace pinmora {

class track;

/// The point that a display shows as the best one: shaped like a track point, in no track's set.
class track_part_best : public Record {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }

    pinmora::track *track() const { return read("track", track_); }
    void setTrack(pinmora::track *track) { change("track", track_, track); }
    const std::optional<Date> &time() const { return read("time", time_); }
    void setTime(std::optional<Date> time) { change("time", time_, time); }
    /// Signed decimal degrees as text.
    const Text &lat() const { return read("lat", lat_); }
    void setLat(Text lat) { change("lat", lat_, std::move(lat)); }
    const Text &lon() const { return read("lon", lon_); }
    void setLon(Text lon) { change("lon", lon_, std::move(lon)); }
    /// Metres, as text.
    const Text &alt() const { return read("alt", alt_); }
    void setAlt(Text alt) { change("alt", alt_, std::move(alt)); }
    const std::optional<std::int32_t> &point_id() const { return read("point_id", point_id_); }
    void setPoint_id(std::optional<std::int32_t> id) { change("point_id", point_id_, id); }

    /// Whether a point has been chosen: a negative point_id says no.
    bool bestTrackSet() const { return point_id().value_or(0) >= 0; }

private:
    void link(pinmora::track *track) { track_ = track; }

    pinmora::track *track_ = nullptr;
    std::optional<Date> time_;
    Text lat_;
    Text lon_;
    Text alt_;
    std::optional<std::int32_t> point_id_;
};

} // namespace pinmora
