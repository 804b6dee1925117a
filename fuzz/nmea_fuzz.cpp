// Any bytes as an NMEA log, in each reading: it neither crashes nor hangs.

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

#include "gps/nmea_reader.h"
#include "gps/track_writer.h"
#include "persistence/context.h"
#include "platform/notification_centre.h"
#include "platform/text_encoding.h"
#include "store/library_model.h"

using namespace pinmora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string text = utf8OrLatin1(std::string(reinterpret_cast<const char *>(data), size));
    NotificationCentre notifications;
    const LibraryModel model(notifications);
    for (const LogReading reading : {LogReading::Exact, LogReading::Tolerant}) {
        Context context(model);
        TrackWriter writer(context);
        readNmeaLog(
            {.text = text, .path = {}, .reading = reading, .currentYear = std::chrono::year(2026)},
            writer);
    }
    return 0;
}
