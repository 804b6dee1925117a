// Any bytes as a store file: reading neither crashes nor hangs, says an error or gives a library,
// cutting the bytes into blocks makes no difference, and what was read is written so that it reads
// back the same.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "persistence/context.h"
#include "persistence/record.h"
#include "persistence/record_writer.h"
#include "persistence/store_document.h"
#include "platform/notification_centre.h"
#include "store/library_model.h"

using namespace pinmora;

namespace {

std::string written(const Context &context) {
    RecordList all;
    for (const EntityDescription *entity : context.model().entities()) {
        const RecordList records = context.fetch(entity->name());
        all.insert(all.end(), records.begin(), records.end());
    }
    std::sort(all.begin(), all.end(),
              [](const Record *a, const Record *b) { return a->serial() < b->serial(); });
    std::string text =
        "<?xml version=\"1.0\"?>\n<pinmora-library version=\"1\" state=\"s\" next=\"" +
        std::to_string(context.nextSerial()) + "\" records=\"" + std::to_string(all.size()) +
        "\">\n";
    RecordWriter writer(text);
    for (const Record *record : all) {
        writer.write(*record);
    }
    return text + "</pinmora-library>\n";
}

/// The records in the bytes as text; nothing for an error, whose words the blocks may change.
std::optional<std::string> read(std::string_view bytes, std::size_t blockSize) {
    NotificationCentre notifications;
    const LibraryModel model(notifications);
    Context context(model);
    StoreDocument document(context);
    for (; !bytes.empty() && document.parse(bytes.substr(0, blockSize), false);
         bytes.remove_prefix(std::min(blockSize, bytes.size()))) {
    }
    if (document.parse({}, true)) {
        return written(context);
    }
    if (document.error().empty() || document.line() == 0) {
        std::abort();
    }
    return std::nullopt;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char *>(data), size);
    const std::optional<std::string> whole = read(bytes, size + 1);
    if (read(bytes, 3) != whole || (whole && read(*whole, whole->size()) != whole)) {
        std::abort();
    }
    return 0;
}
