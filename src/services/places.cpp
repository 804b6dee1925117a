#include "services/places.h"

#include <vector>

namespace pinmora {
namespace {

PlaceIndex indexOf(const Gazetteer &gazetteer) {
    std::vector<UnitVector> points;
    points.reserve(gazetteer.size());
    for (std::size_t place = 0; place < gazetteer.size(); ++place) {
        points.push_back(unitVector(gazetteer.position(place)));
    }
    return PlaceIndex(points);
}

} // namespace

Places::Places() : gazetteer_(Gazetteer::bundled()), index_(indexOf(gazetteer_)) {}

const Places &Places::bundled() {
    static const Places places;
    return places;
}

Places::Nearest Places::nearest(Position position) const {
    const auto [place, squaredChord] = index_.nearest(unitVector(position));
    return {place, metresFromSquaredChord(squaredChord)};
}

BundledNames::BundledNames()
    : names_(Places::bundled().gazetteer()), prominence_(Places::bundled().gazetteer(), names_),
      search_(Places::bundled().gazetteer(), names_, prominence_) {}

const BundledNames &BundledNames::get() {
    static const BundledNames names;
    return names;
}

} // namespace pinmora
