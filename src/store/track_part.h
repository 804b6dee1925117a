#pragma once

#include "persistence/record.h"

#include <cstdint>
#include <optional>
#include <string>

namespace pinmora {

class track;

/// One point of a track.
class track_part : public Record {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }

    pinmora::track *track() const { return read("track", track_); }
    /// Moves the point from its track's set of points to another's; null takes it out.
    void setTrack(pinmora::track *track);

    /// When the receiver recorded the point; absent when that could not be read.
    const std::optional<Date> &time() const { return read("time", time_); }
    /// Reads "YYYY-MM-DDTHH:MM:SSZ" as clock time of the computer's zone; other text leaves no
    /// time.
    void setTime(const Text &text);
    /// Stores a time as it is.
    void setTimeWithDate(std::optional<Date> date) { change("time", time_, date); }
    /// The time as "12 May 2008 14:05:09" in the computer's zone; "" without one.
    std::string timeString() const;

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

private:
    /// setTime() for a text, and an instant as it is.
    void setTimeValue(const Value &value);
    void link(pinmora::track *track);

    pinmora::track *track_ = nullptr;
    std::optional<Date> time_;
    Text lat_;
    Text lon_;
    Text alt_;
    std::optional<std::int32_t> point_id_;
    std::uint32_t slotInTrack_ = 0; ///< where the point stands in its track's set
};

} // namespace pinmora
