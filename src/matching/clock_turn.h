#pragma once

#include <chrono>
#include <string>

namespace pinmora {

/// How far the camera's clock is being turned, by a hand that has not let go yet.
struct ClockTurn {
    std::chrono::seconds by{0};
    std::string camera{}; ///< the one whose own clock it is; "": the clock of all others

    friend bool operator==(const ClockTurn &, const ClockTurn &) = default;
};

} // namespace pinmora
