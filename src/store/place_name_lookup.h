#pragma once

namespace pinmora {

class image;

/// Finds the place names of a photo's new position and writes them into the photo, now or later.
class PlaceNameLookup {
public:
    virtual ~PlaceNameLookup() = default;
    virtual void lookUp(image &photo) = 0;
};

} // namespace pinmora
