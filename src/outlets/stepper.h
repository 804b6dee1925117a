#pragma once

#include "outlets/controls.h"

#include <algorithm>
#include <cstdint>

namespace pinmora {

/// Two arrows that step a whole number through a range. Any value can be shown; the range limits
/// what stepping leads to.
struct Stepper : Control {
    Observable<int> value{0};
    int minimum = 0;
    int maximum = 100;
    int increment = 1;
    bool wraps = false; ///< whether a step beyond one end comes in again at the other
    Signal<> stepped;

    /// What pressing an arrow does, so many times up (or down, when negative). Nothing happens
    /// while the stepper is disabled or where there is no step left.
    void stepBy(int steps) {
        const int to = after(std::int64_t{steps} * increment);
        if (enabled.get() && to != value.get()) {
            value.set(to);
            stepped.emit();
        }
    }

    /// What typing a number does: the nearest one in the range is taken, under the same conditions.
    void set(int number) {
        const int to = std::clamp(number, minimum, maximum);
        if (enabled.get() && to != value.get()) {
            value.set(to);
            stepped.emit();
        }
    }

private:
    int after(std::int64_t change) const {
        const std::int64_t from = std::clamp(value.get(), minimum, maximum);
        std::int64_t to = from + change;
        if (wraps) {
            const std::int64_t size = std::int64_t{maximum} - minimum + 1;
            to = minimum + ((to - minimum) % size + size) % size;
        }
        return static_cast<int>(std::clamp<std::int64_t>(to, minimum, maximum));
    }
};

} // namespace pinmora
