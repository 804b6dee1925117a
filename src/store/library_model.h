#pragma once

#include "persistence/entity_description.h"
#include "platform/notification_centre.h"
#include "store/place_name_lookup.h"

namespace pinmora {

/// The entities of the library, and what their records reach besides each other.
class LibraryModel : public Model {
public:
    /// The notification centre must outlive the model.
    explicit LibraryModel(NotificationCentre &notifications);

    NotificationCentre &notifications() const { return notifications_; }

    /// Null while there is none; then positions get no place names.
    PlaceNameLookup *placeNames() const { return placeNames_; }
    void setPlaceNames(PlaceNameLookup *lookup) { placeNames_ = lookup; }

private:
    NotificationCentre &notifications_;
    PlaceNameLookup *placeNames_ = nullptr;
};

} // namespace pinmora
