#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace pinmora {

/// The least of any stretch of a fixed row of numbers, in logarithmic time however long the
/// stretch.
class EarliestInRange {
public:
    EarliestInRange() = default;
    explicit EarliestInRange(std::span<const std::uint32_t> numbers);

    bool empty() const { return nodes_.empty(); }

    /// The least of the numbers from `begin` to before `end`, of which there must be one.
    std::uint32_t least(std::size_t begin, std::size_t end) const;

private:
    /// A binary tree in a row: the n numbers are its last n nodes, and each node i before them is
    /// the lesser of nodes 2i and 2i + 1.
    std::vector<std::uint32_t> nodes_;
};

} // namespace pinmora
