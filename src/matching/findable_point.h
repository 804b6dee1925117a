#pragma once

#include "store/track_part.h"

namespace pinmora {

/// Whether a search may answer with the point: one without a time, a latitude or a longitude serves
/// neither a photo nor the clock offset.
inline bool isFindable(const track_part &point) {
    return point.time() && !point.lat().view().empty() && !point.lon().view().empty();
}

} // namespace pinmora
