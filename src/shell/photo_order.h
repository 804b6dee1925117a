#pragma once

#include "outlets/array_controller.h"
#include "outlets/observable.h"
#include "outlets/signal.h"

#include <string>

namespace pinmora {

class PhotoGaps;
class image;

/// By which column the photo table is sorted.
struct SortOrder {
    std::string key; ///< one of the keys of PhotoOrder; "" for the order of loading
    bool ascending = true;

    friend bool operator==(const SortOrder &, const SortOrder &) = default;
};

/// The order in which photos are arranged, everywhere.
///
/// Keys: "image_name", "date", "lat" (from south to north, then west to east), "alt" (metres),
/// "city" (then province, then country), "gap" (its size), "camera". Photos that lack what is
/// sorted by come last in either direction; equal ones keep the order of loading.
class PhotoOrder {
public:
    /// Both must outlive it.
    PhotoOrder(ArrayController<image> &pictureArray, PhotoGaps &gaps);

    Observable<SortOrder> order;

private:
    ArrayController<image> &pictureArray_;
    PhotoGaps &gaps_;
    Connection orderChosen_;
    Connection gapsChanged_;
};

} // namespace pinmora
