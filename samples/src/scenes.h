#pragma once

#include <QImage>

namespace pinmora::samples {

/// The pictures of the outing, upright; about 1200 by 800, two of them tall.
QImage patagonia();   ///< a glacier lake below granite towers, from an earlier journey
QImage station();     ///< the station, its clock at 17:36:00
QImage pier();        ///< the pier and the old town, from the leaving ship
QImage church();      ///< tall: the village church across the water
QImage meadow();      ///< flowers, cows, the Alps behind
QImage forest();      ///< tall: a path through beeches
QImage summitCross(); ///< the cross on the top, in the low sun
QImage sunset();      ///< the sun goes down over the lake

} // namespace pinmora::samples
