#include "places/place_names.h"

#include "places/lookups.h"

namespace pinmora {

PlaceNames::PlaceNames(Context &context, FindService findService, PlaceLimits limits)
    : lookups_(std::make_unique<Lookups>(context, std::move(findService), limits, awaited)) {}

PlaceNames::~PlaceNames() = default;

void PlaceNames::lookUp(image &photo) {
    lookups_->lookUp(photo);
}

void PlaceNames::setEnabled(bool enabled) {
    lookups_->setEnabled(enabled);
}

void PlaceNames::serviceChanged() {
    lookups_->serviceChanged();
}

} // namespace pinmora
