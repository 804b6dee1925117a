#pragma once

#include "memory_library.h"
#include "surroundings.h"

#include "places/place_names.h"

#include <optional>

namespace pinmora::tag {

/// Looks up the place names of the positions that photos are given while it lives, if the
/// surroundings have a service.
class PlaceLookup {
public:
    PlaceLookup(MemoryLibrary &library, const Surroundings &surroundings);
    ~PlaceLookup();
    PlaceLookup(const PlaceLookup &) = delete;
    PlaceLookup &operator=(const PlaceLookup &) = delete;

    /// Runs the event loop until all names are there or given up, or the person wants to stop.
    void wait();

private:
    MemoryLibrary &library_;
    const Surroundings &surroundings_;
    std::optional<PlaceNames> names_;
};

} // namespace pinmora::tag
