#pragma once

#include "platform/date.h"

#include <span>
#include <vector>

namespace pinmora {

/// The stretches of time in which a log was running: those within `sameOuting` (in whole seconds)
/// of a point. Few, whatever the number of points.
class TrackCoverage {
public:
    /// From `begin` to before `end`.
    struct Stretch {
        Date begin;
        Date end;

        friend bool operator==(const Stretch &, const Stretch &) = default;
    };

    TrackCoverage() = default;
    /// The points' times, ascending. One pass.
    explicit TrackCoverage(std::span<const Date> points);

    /// Ascending; no two touch.
    const std::vector<Stretch> &stretches() const { return stretches_; }
    bool covers(Date instant) const;

private:
    std::vector<Stretch> stretches_;
};

} // namespace pinmora
