#include "matching/earliest_in_range.h"

#include <algorithm>
#include <limits>

namespace pinmora {

EarliestInRange::EarliestInRange(std::span<const std::uint32_t> numbers)
    : nodes_(2 * numbers.size()) {
    std::copy(numbers.begin(), numbers.end(), nodes_.end() - std::ssize(numbers));
    for (std::size_t node = numbers.size(); node-- > 1;) {
        nodes_[node] = std::min(nodes_[2 * node], nodes_[2 * node + 1]);
    }
}

std::uint32_t EarliestInRange::least(std::size_t begin, std::size_t end) const {
    std::uint32_t least = std::numeric_limits<std::uint32_t>::max();
    begin += nodes_.size() / 2;
    end += nodes_.size() / 2;
    // From the leaves up: a node at the edge whose parent reaches beyond the stretch counts itself,
    // all others are counted by their parents.
    while (begin < end) {
        if (begin % 2 == 1) {
            least = std::min(least, nodes_[begin++]);
        }
        if (end % 2 == 1) {
            least = std::min(least, nodes_[--end]);
        }
        begin /= 2;
        end /= 2;
    }
    return least;
}

} // namespace pinmora
