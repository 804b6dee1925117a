#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace pinmora {

/// What applying the logs to some photos has come to. Photos are told by their serials.
struct ApplyOutcome {
    std::size_t placed = 0;
    std::size_t moved = 0;                ///< placed, and had another position that was no log's
    std::vector<std::uint32_t> far{};     ///< placed, but no log was running when they were taken
    std::vector<std::uint32_t> untimed{}; ///< the photo does not say when it was taken
};

} // namespace pinmora
