#include "matching/turned_photos.h"

#include "matching/clock_offset.h"
#include "matching/placing.h"
#include "persistence/context.h"
#include "store/image.h"
#include "store/offset.h"

#include <algorithm>

namespace pinmora {

std::vector<Date> timesByClock(const Context &context, const ClockOffset &clocks,
                               const offset &stored, std::string_view camera) {
    std::vector<Date> times;
    for (const image *photo : context.records<image>()) {
        const std::optional<Date> time = correctedTime(*photo, stored);
        if (time && photo->captureTime() && clocks.clockOf(*photo) == camera) {
            times.push_back(*time);
        }
    }
    std::ranges::sort(times);
    return times;
}

} // namespace pinmora
