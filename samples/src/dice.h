#pragma once

#include <cstdint>
#include <random>

namespace pinmora::samples {

/// Random numbers that are the same on every machine: the generator is fixed by the C++ standard,
/// and the library's distributions, which are not, stay unused.
class Dice {
public:
    explicit Dice(std::uint32_t seed) : generator_(seed) {}

    /// A number in [low, high].
    double between(double low, double high) {
        return low + (high - low) * static_cast<double>(generator_()) / 4294967295.0;
    }

private:
    std::mt19937 generator_;
};

} // namespace pinmora::samples
