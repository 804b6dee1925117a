#include "persistence/xml_store.h"

#include "persistence/record.h"
#include "persistence/record_writer.h"
#include "persistence/store_document.h"
#include "platform/atomic_file.h"
#include "platform/input_file.h"
#include "platform/translation.h"

#include <algorithm>
#include <limits>
#include <random>

namespace pinmora {

namespace {

/// The records of an entity on their way into the file.
struct Queue {
    RecordList records;
    std::size_t next = 0;

    static constexpr std::uint64_t end = std::numeric_limits<std::uint64_t>::max();
    std::uint64_t nextSerial() const {
        return next < records.size() ? records[next]->serial() : end;
    }
};

std::vector<Queue> queuesOf(const Context &context) {
    std::vector<Queue> queues;
    for (const EntityDescription *entity : context.model().entities()) {
        if (entity->isStored()) {
            queues.push_back({context.fetch(entity->name())});
        }
    }
    return queues;
}

std::string head(const Context &context, const std::vector<Queue> &queues, std::string_view state) {
    std::size_t records = 0;
    for (const Queue &queue : queues) {
        records += queue.records.size();
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<" + std::string(StoreDocument::rootName) +
           " version=\"" + std::to_string(StoreDocument::version) + "\" state=\"" +
           std::string(state) + "\" next=\"" + std::to_string(context.nextSerial()) +
           "\" records=\"" + std::to_string(records) + "\">\n";
}

/// All records in the order of their serials, which each queue has already.
void writeRecords(std::vector<Queue> &queues, AtomicFile &file) {
    constexpr std::size_t enough = std::size_t{1} << 20U;
    std::string text;
    RecordWriter writer(text);
    const auto earlier = [](const Queue &a, const Queue &b) {
        return a.nextSerial() < b.nextSerial();
    };
    for (;;) {
        // A long run of points stands between two tracks: how far it goes is looked up once.
        std::swap(*std::min_element(queues.begin(), queues.end(), earlier), queues.front());
        Queue &queue = queues.front();
        std::uint64_t limit = Queue::end;
        for (auto other = queues.begin() + 1; other != queues.end(); ++other) {
            limit = std::min(limit, other->nextSerial());
        }
        if (queue.nextSerial() == Queue::end) {
            break;
        }
        for (; queue.nextSerial() < limit; ++queue.next) {
            writer.write(*queue.records[queue.next]);
            if (text.size() >= enough) {
                file.write(text);
                text.clear();
            }
        }
    }
    file.write(text);
}

} // namespace

std::string StoreError::message() const {
    return line == 0 ? filled(translated("persistence", "%1: %2."), {path.string(), reason})
                     : filled(translated("persistence", "%1, line %2: %3."),
                              {path.string(), std::to_string(line), reason});
}

std::string makeStoreState() {
    constexpr std::string_view digits = "0123456789abcdef";
    std::random_device random;
    std::string state(32, '0');
    for (char &digit : state) {
        digit = digits[random() % digits.size()];
    }
    return state;
}

std::optional<StoreError> XmlStore::write(const Context &context, std::string_view newState) {
    removeLeftTemporaries(path_, files_);
    AtomicFile file(files_);
    std::error_code error = file.open(path_);
    if (!error) {
        std::vector<Queue> queues = queuesOf(context);
        file.write(head(context, queues, newState));
        writeRecords(queues, file);
        file.write("</" + std::string(StoreDocument::rootName) + ">\n");
        error = file.commit();
    }
    if (file.isInPlace()) {
        state_ = newState;
    }
    return error ? std::optional(StoreError{path_, 0, error.message(), error}) : std::nullopt;
}

std::optional<StoreError> XmlStore::read(Context &context) {
    InputFile file;
    if (const std::error_code error = file.open(path_)) {
        std::error_code none;
        if (error == std::errc::no_such_file_or_directory &&
            !std::filesystem::is_symlink(path_, none)) {
            state_ = emptyStoreState;
            return std::nullopt;
        }
        return StoreError{path_, 0, error.message(), error};
    }
    StoreDocument document(context);
    std::string buffer(inputBlockSize, '\0');
    for (bool isFirst = true;; isFirst = false) {
        const std::optional<std::string_view> block = file.read(buffer);
        if (!block) {
            context.clear();
            const std::error_code error = file.lastFailure();
            return StoreError{path_, 0, error.message(), error};
        }
        if (isFirst && block->empty()) {
            state_ = emptyStoreState;
            return std::nullopt;
        }
        const std::size_t before = document.elements();
        if (!document.parse(*block, block->empty())) {
            context.clear();
            return StoreError{path_, document.line(), document.error(), {}};
        }
        if (block->empty()) {
            state_ = document.state();
            return std::nullopt;
        }
        if (document.elements() == before) {
            // The parser looks at an element from its start until all of it is there.
            buffer.resize(buffer.size() * 2);
        }
    }
}

} // namespace pinmora
