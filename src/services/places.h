#pragma once

#include "services/folded_names.h"
#include "services/gazetteer.h"
#include "services/place_index.h"
#include "services/place_search.h"
#include "services/prominence.h"

#include <cstddef>

namespace pinmora {

/// The bundled gazetteer with what finds a place by its position. Made at the first need, which
/// takes a tenth of a second or two, and kept until the program ends; any thread may ask.
class Places {
public:
    static const Places &bundled();

    const Gazetteer &gazetteer() const { return gazetteer_; }

    struct Nearest {
        std::size_t place;
        double metres;
    };
    Nearest nearest(Position position) const;

private:
    Places();

    Gazetteer gazetteer_;
    PlaceIndex index_;
};

/// What finds bundled places by their names. Made at the first need, as Places is.
class BundledNames {
public:
    static const BundledNames &get();

    const Prominence &prominence() const { return prominence_; }
    const PlaceSearch &search() const { return search_; }

private:
    BundledNames();

    FoldedNames names_;
    Prominence prominence_;
    PlaceSearch search_;
};

} // namespace pinmora
