// Any bytes as an NMEA log, in each reading: it neither crashes nor hangs.

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "gps/nmea_reader.h"
#include "persistence/context.h"
#include "platform/notification_centre.h"
#include "platform/text_encoding.h"
#include "store/library_model.h"

using namespace pinmora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string text = utf8OrLatin1(std::string(reinterpret_cast<const char *>(data), size));
    NotificationCentre notifications;
    const LibraryModel model(notifications);
    Window window;
    ProgressSheet progress([&]() -> Window & { return window; });
    ErrorSheet errors([&]() -> Window & { return window; });
    for (const LogReading reading : {LogReading::Exact, LogReading::Tolerant}) {
        Context context(model);
        NmeaReader(context, progress, errors).read(text, {}, reading, std::chrono::year(2026));
    }
    return 0;
}
