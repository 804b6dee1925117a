#pragma once

#include "matching/point_positions.h"
#include "platform/date.h"

#include <optional>
#include <string_view>
#include <vector>

namespace pinmora {

/// A place and when somebody was there.
struct TimedPlace {
    Date time;
    Position position;
    std::optional<double> altitude; ///< metres
};

/// The place of texts in signed decimal degrees and metres; nothing when it is none on the earth.
std::optional<TimedPlace> timedPlace(Date time, std::string_view lat, std::string_view lon,
                                     std::string_view alt);

/// Two places, and an instant from the one to the other.
struct TimeNeighbours {
    TimedPlace before;
    TimedPlace after;

    Date::duration apart() const { return after.time - before.time; }
};

/// The last place until the instant and the first one from it on; both are the first one at the
/// instant itself, where there is any. Nothing when one is missing. `places`: ascending in time.
std::optional<TimeNeighbours> neighboursOf(Date instant, const std::vector<TimedPlace> &places);

/// Where somebody is at the instant who goes from the one place to the other at an even speed, the
/// shortest way over the ground. The altitude is known where both are.
TimedPlace placeBetween(const TimeNeighbours &neighbours, Date instant);

} // namespace pinmora
