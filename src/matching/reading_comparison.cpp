#include "matching/reading_comparison.h"

#include "matching/time_distance.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace pinmora {

namespace {

constexpr auto reach = static_cast<std::uint64_t>(std::chrono::microseconds(sameOuting).count());

std::size_t countNearSorted(std::span<const Date> photos, std::span<const Date> points) {
    return static_cast<std::size_t>(std::count_if(
        photos.begin(), photos.end(), [points](Date photo) { return isNearPoint(photo, points); }));
}

std::size_t countNear(std::span<const Date> photos, std::span<const Date> points) {
    if (std::is_sorted(points.begin(), points.end())) {
        return countNearSorted(photos, points);
    }
    std::vector<Date> sorted(points.begin(), points.end());
    std::sort(sorted.begin(), sorted.end());
    return countNearSorted(photos, sorted);
}

} // namespace

bool isNearPoint(Date photo, std::span<const Date> points) {
    if (points.empty()) {
        return false;
    }
    if (photo <= points.front() || photo >= points.back()) { // most photos, to most logs
        const Date end = photo <= points.front() ? points.front() : points.back();
        return microsecondsApart(end, photo) <= reach;
    }
    const auto next = std::lower_bound(points.begin(), points.end(), photo);
    return microsecondsApart(*next, photo) <= reach || microsecondsApart(next[-1], photo) <= reach;
}

ReadingComparison compareReadings(std::span<const Date> photos, std::span<const Date> exactPoints,
                                  std::span<const Date> tolerantPoints) {
    return {countNear(photos, exactPoints), countNear(photos, tolerantPoints)};
}

} // namespace pinmora
