#pragma once

#include "store/entity_array.h"
#include "store/image.h"
#include "store/track.h"
#include "store/track_part.h"

namespace pinmora {

/// The lists of the library that windows show and actions work on. Points stand in the order in
/// which they were imported, also after a restart: searches among them walk in that order, so this
/// list is never sorted or filtered.
struct LibraryArrays {
    explicit LibraryArrays(Context &context)
        : pictureArray(context), gpsTrackArrayController(context), gpsArray(context) {}

    EntityArray<image> pictureArray;
    EntityArray<track> gpsTrackArrayController;
    EntityArray<track_part> gpsArray;
};

} // namespace pinmora
