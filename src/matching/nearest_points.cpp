#include "matching/nearest_points.h"

#include "persistence/context.h"
#include "store/track_part.h"

#include <utility>

namespace pinmora {

template <class Index>
const Index &NearestPoints::gathered(std::optional<Index> &index) {
    if (!index) {
        index.emplace(context_.records<track_part>());
        observe();
    }
    return *index;
}

template const PointIndex &NearestPoints::gathered(std::optional<PointIndex> &);
template const PointPositions &NearestPoints::gathered(std::optional<PointPositions> &);

const TrackCoverage &NearestPoints::coverage() {
    if (!coverage_) {
        coverage_.emplace(times());
    }
    return *coverage_;
}

void NearestPoints::observe() {
    if (!std::exchange(observing_, true)) {
        context_.addObserver(*this, {.entity = &track_part::description()});
    }
}

void NearestPoints::forget() {
    byTime_.reset();
    byPlace_.reset();
    coverage_.reset();
    if (std::exchange(observing_, false)) {
        context_.removeObserver(*this);
    }
}

void NearestPoints::didChange(Record &, std::string_view key) {
    if (key == "time" || key == "lat" || key == "lon") {
        forget();
    }
}

} // namespace pinmora
