#pragma once

#include "outlets/observable.h"
#include "places/place_service.h"
#include "store/place_name_lookup.h"

#include <cstddef>
#include <functional>
#include <memory>

namespace pinmora {

class Context;

/// Asks a place-name service for the names of photos' positions, a few requests at a time on
/// connections that stay open, and writes them into the photos as they come.
///
/// A photo has one request at most: a newer position takes the place of an older one, and a
/// position that is cleared or taken back ends its request. The names belong to the undo step of
/// the position that asked for them. Failures are not told: the names stay as they were.
class PlaceNames : public PlaceNameLookup {
public:
    /// Asked before the first request, and again when it may be another one; may start the service.
    using FindService = std::function<PlaceService()>;

    /// The context must outlive it, and have its undo manager already if it is to have one.
    PlaceNames(Context &context, FindService findService, PlaceLimits limits = {});
    ~PlaceNames() override;
    PlaceNames(const PlaceNames &) = delete;
    PlaceNames &operator=(const PlaceNames &) = delete;

    /// Queues a request for the photo's position; it begins with the next turn of the event loop.
    void lookUp(image &photo) override;

    /// Off: nothing is asked for, and what has not been answered yet is dropped.
    void setEnabled(bool enabled);
    /// The service is another one now, for all that has not been asked yet.
    void serviceChanged();

    /// How many photos' names have not arrived yet.
    Observable<std::size_t> awaited{0};

private:
    class Lookups;
    std::unique_ptr<Lookups> lookups_;
};

} // namespace pinmora
