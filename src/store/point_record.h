#pragma once

#include "persistence/record.h"

#include <cstdint>
#include <optional>

namespace pinmora {

/// What the records of track points have in common: a time, a place and a number.
class PointRecord : public Record {
public:
    /// When the receiver recorded the point; absent when that could not be read.
    const std::optional<Date> &time() const { return read("time", time_); }
    /// Stores a time as it is.
    void setTimeWithDate(std::optional<Date> date) { change("time", time_, date); }

    /// Signed decimal degrees, the text exactly as the log's reader produced it.
    const Text &lat() const { return read("lat", lat_); }
    void setLat(Text lat) { change("lat", lat_, std::move(lat)); }
    const Text &lon() const { return read("lon", lon_); }
    void setLon(Text lon) { change("lon", lon_, std::move(lon)); }
    /// Metres, as text; "" when the fix carried none, absent when the log has no such element.
    const Text &alt() const { return read("alt", alt_); }
    void setAlt(Text alt) { change("alt", alt_, std::move(alt)); }

    /// Rises through a log. GPX: counted over all points since start-up, from 1; NMEA: the index of
    /// the line that completed the point.
    const std::optional<std::int32_t> &point_id() const { return read("point_id", point_id_); }
    void setPoint_id(std::optional<std::int32_t> id) { change("point_id", point_id_, id); }

protected:
    std::optional<Date> time_;
    Text lat_;
    Text lon_;
    Text alt_;
    std::optional<std::int32_t> point_id_;
};

} // namespace pinmora
