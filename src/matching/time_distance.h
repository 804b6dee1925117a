#pragma once

#include "platform/date.h"

#include <cstdint>

namespace pinmora {

/// Microseconds from one instant to the other, whichever comes first; no two instants are too far
/// apart for it.
inline std::uint64_t microsecondsApart(Date a, Date b) {
    const auto countA = static_cast<std::uint64_t>(a.time_since_epoch().count());
    const auto countB = static_cast<std::uint64_t>(b.time_since_epoch().count());
    return a < b ? countB - countA : countA - countB;
}

/// The distance in seconds that photos and points are compared by: fractions are dropped, so that
/// 0.9 s early and 0.9 s late are both no distance.
inline std::uint64_t wholeSecondsApart(Date a, Date b) {
    return microsecondsApart(a, b) / 1'000'000;
}

} // namespace pinmora
