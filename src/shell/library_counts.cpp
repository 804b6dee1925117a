#include "shell/library_counts.h"

#include "persistence/context.h"
#include "store/image.h"
#include "store/track.h"
#include "store/track_part.h"

namespace pinmora {

LibraryCounts::LibraryCounts(Context &context)
    : context_(context), endOfTurn_([this] { counts.set(count()); }) {
    context.addObserver(*this, {.entity = &image::description()});
    context.addObserver(*this, {.entity = &track::description(), .values = false});
    context.addObserver(*this, {.entity = &track_part::description(), .values = false});
    counts.set(count());
}

LibraryCounts::~LibraryCounts() {
    context_.removeObserver(*this);
}

void LibraryCounts::didChange(Record &, std::string_view key) {
    if (key == "lat" || key == "lon") {
        endOfTurn_.ask();
    }
}

Counts LibraryCounts::count() const {
    Counts sum{.photos = context_.count<image>(),
               .tracks = context_.count<track>(),
               .points = context_.count<track_part>()};
    for (const image *photo : context_.records<image>()) {
        sum.withPosition += photo->lat_and_lon() ? 1 : 0;
    }
    return sum;
}

} // namespace pinmora
