#include "matching/track_coverage.h"

#include "matching/reading_comparison.h"

#include <algorithm>

namespace pinmora {

namespace {

/// Fractions of a second are dropped from a distance, so 300.9 s are no more than 300.
constexpr std::chrono::seconds runningReach = sameOuting + std::chrono::seconds(1);
constexpr std::chrono::microseconds instantAfter{1};

} // namespace

TrackCoverage::TrackCoverage(std::span<const Date> points) {
    for (const Date point : points) {
        const Date begin = point - runningReach + instantAfter;
        if (stretches_.empty() || stretches_.back().end < begin) {
            stretches_.push_back({begin, point + runningReach});
        } else {
            stretches_.back().end = point + runningReach;
        }
    }
}

bool TrackCoverage::covers(Date instant) const {
    const auto next =
        std::upper_bound(stretches_.begin(), stretches_.end(), instant,
                         [](Date time, const Stretch &stretch) { return time < stretch.begin; });
    return next != stretches_.begin() && instant < next[-1].end;
}

} // namespace pinmora
