#include "store/track_summary.h"

#include "store/track.h"
#include "store/track_part.h"

#include <algorithm>

namespace pinmora {

TrackSummary summaryOf(const track &one) {
    TrackSummary summary{.points = one.points().size()};
    for (const track_part *point : one.points()) {
        if (const std::optional<Date> &time = point->time()) {
            summary.from = summary.from ? std::min(*summary.from, *time) : *time;
            summary.to = summary.to ? std::max(*summary.to, *time) : *time;
        }
    }
    return summary;
}

} // namespace pinmora
