// Any bytes as a GPX file, in each reading: it neither crashes nor hangs, and cutting the bytes
// into blocks makes no difference.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "gps/gpx_reader.h"
#include "persistence/context.h"
#include "platform/notification_centre.h"
#include "store/library_model.h"

using namespace pinmora;

namespace {

LogReport read(std::string_view bytes, LogReading reading, std::size_t blockSize) {
    NotificationCentre notifications;
    const LibraryModel model(notifications);
    Context context(model);
    Window window;
    ProgressSheet progress([&]() -> Window & { return window; });
    ErrorSheet errors([&]() -> Window & { return window; });
    GpxReader reader(context, progress, errors);
    reader.elements().setActiveLog(true);
    reader.begin({}, reading);
    for (; !bytes.empty() && reader.feed(bytes.substr(0, blockSize));
         bytes.remove_prefix(std::min(blockSize, bytes.size()))) {
    }
    return reader.finish();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char *>(data), size);
    for (const LogReading reading : {LogReading::Exact, LogReading::Tolerant}) {
        const LogReport whole = read(bytes, reading, size + 1);
        const LogReport pieces = read(bytes, reading, 3);
        if (whole.points != pieces.points || whole.tracks != pieces.tracks ||
            whole.unusableText() != pieces.unusableText() || whole.error != pieces.error) {
            std::abort();
        }
    }
    return 0;
}
