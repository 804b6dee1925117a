#pragma once

#include "store/point_record.h"

#include <cstdint>
#include <string>

namespace pinmora {

class track;

/// One point of a track.
class track_part : public PointRecord {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }

    pinmora::track *track() const { return read("track", track_); }
    /// Moves the point from its track's set of points to another's; null takes it out.
    void setTrack(pinmora::track *track);

    /// Reads "YYYY-MM-DDTHH:MM:SSZ" as clock time of the computer's zone; other text leaves no
    /// time.
    void setTime(const Text &text);
    /// The time as "12 May 2008 14:05:09" in the computer's zone; "" without one.
    std::string timeString() const;

private:
    /// setTime() for a text, and an instant as it is.
    void setTimeValue(const Value &value);
    void link(pinmora::track *track);

    pinmora::track *track_ = nullptr;
    std::uint32_t slotInTrack_ = 0; ///< where the point stands in its track's set
};

} // namespace pinmora
