#pragma once

#include "persistence/context.h"
#include "platform/notification_centre.h"
#include "store/library_model.h"
#include "store/track_part.h"

namespace pinmora {

/// A library in memory, and verbs to fill it with points.
struct PointLibrary {
    NotificationCentre notifications;
    LibraryModel model{notifications};
    Context context{model};

    track_part &addPoint(std::optional<Date> time, Text lat = "47.1", Text lon = "8.2",
                         Text alt = "410") {
        auto &point = context.insert<track_part>();
        point.setTimeWithDate(time);
        point.setLat(std::move(lat));
        point.setLon(std::move(lon));
        point.setAlt(std::move(alt));
        return point;
    }
};

} // namespace pinmora
