#include "matching/offset_counts.h"

#include <algorithm>
#include <utility>

namespace pinmora {

namespace {

using Offset = std::chrono::microseconds;

/// Their product is what the search for any offset costs.
constexpr std::size_t mostSampledPhotos = 300;
constexpr std::size_t mostSampledStretches = 300;

/// Where, walking up the offsets, a photo comes onto a stretch of the track or leaves it.
struct Crossing {
    Offset offset;
    int change; ///< 1 or -1
};

bool isBefore(const Crossing &a, const Crossing &b) {
    return a.offset != b.offset ? a.offset < b.offset : a.change < b.change;
}

std::vector<Date> evenSample(const std::vector<Date> &ascending, std::size_t most) {
    if (ascending.size() <= most) {
        return ascending;
    }
    std::vector<Date> sample;
    for (std::size_t i = 0; i < most; ++i) {
        sample.push_back(ascending[i * ascending.size() / most]);
    }
    return sample;
}

/// The longest ones hold most of the photos.
std::vector<TrackCoverage::Stretch> longest(std::vector<TrackCoverage::Stretch> stretches,
                                            std::size_t most) {
    if (stretches.size() > most) {
        std::nth_element(stretches.begin(), stretches.begin() + static_cast<std::ptrdiff_t>(most),
                         stretches.end(), [](const auto &a, const auto &b) {
                             return a.end - a.begin > b.end - b.begin;
                         });
        stretches.resize(most);
    }
    return stretches;
}

} // namespace

OffsetCounts::OffsetCounts(std::vector<Date> photos, TrackCoverage coverage)
    : photos_(std::move(photos)), coverage_(std::move(coverage)) {
    std::sort(photos_.begin(), photos_.end());
}

std::size_t OffsetCounts::at(std::chrono::seconds offset) const {
    const std::vector<TrackCoverage::Stretch> &stretches = coverage_.stretches();
    const bool isDense = stretches.size() > photos_.size() / 16;
    // The first photo from `from` on that is not before a moment.
    const auto firstAt = [&](auto from, Date moment) {
        return isDense ? std::find_if(from, photos_.end(),
                                      [moment](Date photo) { return photo >= moment; })
                       : std::lower_bound(from, photos_.end(), moment);
    };
    std::size_t count = 0;
    auto from = photos_.begin();
    for (const TrackCoverage::Stretch &stretch : stretches) {
        from = firstAt(from, stretch.begin - offset);
        const auto to = firstAt(from, stretch.end - offset);
        count += static_cast<std::size_t>(to - from);
        from = to;
    }
    return count;
}

OffsetCounts::Best OffsetCounts::best() const {
    const std::vector<Date> photos = evenSample(photos_, mostSampledPhotos);
    std::vector<Crossing> crossings;
    for (const auto &[begin, end] : longest(coverage_.stretches(), mostSampledStretches)) {
        for (const Date photo : photos) {
            crossings.push_back({begin - photo, 1});
            crossings.push_back({end - photo, -1});
        }
    }
    std::sort(crossings.begin(), crossings.end(), isBefore);

    int count = 0;
    int most = 0;
    for (const Crossing &crossing : crossings) {
        count += crossing.change;
        most = std::max(most, count);
    }
    const int enough = most - static_cast<int>(photos.size() / 20);
    Best best{.begin = Offset::max(),
              .end = Offset::min(),
              .share = static_cast<double>(most) / static_cast<double>(photos.size())};
    for (const Crossing &crossing : crossings) {
        const int before = std::exchange(count, count + crossing.change);
        if (before < enough && count >= enough) {
            best.begin = std::min(best.begin, crossing.offset);
        }
        if (before >= enough && count < enough) {
            best.end = std::max(best.end, crossing.offset);
        }
    }
    return best;
}

} // namespace pinmora
