#pragma once

#include "platform/date.h"

#include <QString>

#include <chrono>
#include <vector>

namespace pinmora {

/// Which times are seen on a strip of some pixels, and where they stand on it.
class TimeAxis {
public:
    /// A line across the strip and what is written beside it.
    struct Mark {
        double x = 0;
        QString label{};
    };

    TimeAxis() = default;
    /// Spans that are too short or too long to be of use are made longer or shorter about their
    /// middle.
    TimeAxis(Date from, Date to, double width);

    Date from() const { return from_; }
    Date to() const { return to_; }
    double width() const { return width_; }

    double xOf(Date instant) const;
    Date at(double x) const;
    std::chrono::seconds spanOf(double pixels) const;

    /// The moment at `x` stays where it is; a `factor` above 1 shows more of its surroundings.
    TimeAxis zoomed(double x, double factor) const;
    TimeAxis panned(double pixels) const;
    TimeAxis resized(double width) const { return {from_, to_, width}; }

    /// At round times by the clock on the wall, `room` pixels or more apart: "09:30", "8 May",
    /// "May 2026", "2026". The first one of a day says which day it is.
    std::vector<Mark> marks(double room) const;

private:
    Date from_{};
    Date to_{std::chrono::hours(1)};
    double width_ = 1;
};

} // namespace pinmora
