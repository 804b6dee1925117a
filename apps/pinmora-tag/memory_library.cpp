#include "memory_library.h"

#include "store/track_part.h"

namespace pinmora::tag {

std::vector<Date> pointTimes(const Context &context) {
    std::vector<Date> times;
    for (const track_part *point : context.fetch<track_part>()) {
        if (point->time() && !point->lat().view().empty() && !point->lon().view().empty()) {
            times.push_back(*point->time());
        }
    }
    return times;
}

} // namespace pinmora::tag
