#pragma once

#include "gps/gps.h"
#include "outlets/error_sheet.h"
#include "outlets/progress_sheet.h"
#include "persistence/context.h"
#include "platform/date.h"
#include "platform/notification_centre.h"
#include "store/library_model.h"

#include <vector>

namespace pinmora::tag {

/// A library that lives as long as the command: the person's own is neither read nor written.
struct MemoryLibrary {
    NotificationCentre notifications;
    LibraryModel model{notifications};
    Context context{model};
    Window window;
    ProgressSheet progress{[this]() -> Window & { return window; }};
    ErrorSheet errors{[this]() -> Window & { return window; }};
    Gps gps{context, progress, errors};
};

/// The times of the points that a photo can be placed at.
std::vector<Date> pointTimes(const Context &context);

} // namespace pinmora::tag
