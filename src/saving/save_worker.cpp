#include "saving/save_worker.h"

#include "platform/log_file.h"
#include "platform/scoped_flag.h"
#include "saving/save_words.h"
#include "saving/saving.h"

#include <QObject>
#include <QThread>

#include <utility>

namespace pinmora {

SaveWorker::SaveWorker(const Saving &saving, SaveOrder order, LogFile &log, Handler handler)
    : saving_(saving), order_(std::move(order)), log_(log), handler_(std::move(handler)),
      receiver_(std::make_unique<QObject>()), thread_(QThread::create([this] { work(); })) {}

SaveWorker::~SaveWorker() {
    stop();
    thread_->wait();
}

void SaveWorker::start() {
    thread_->start(QThread::HighPriority);
}

void SaveWorker::work() {
    noteMissing();
    put(SaveEvent::Over{saving_.save(order_.photos, order_.folder, order_.settings, observer())});
}

/// A file that is there and cannot be looked at is none that is missing: copying it says why.
void SaveWorker::noteMissing() {
    for (PhotoSnapshot &photo : order_.photos) {
        std::error_code none;
        photo.wasMissing = std::filesystem::status(photo.source, none).type() ==
                           std::filesystem::file_type::not_found;
    }
}

SaveObserver SaveWorker::observer() {
    return {.begins = [this](std::size_t index, std::size_t) { put(SaveEvent::Begins{index}); },
            .placed = [this](const std::filesystem::path &copy) { put(SaveEvent::Placed{copy}); },
            .copied = [this] { put(SaveEvent::Copied{}); },
            .ended =
                [this](const SavedPhoto &photo) {
                    const std::string line = logLine(order_.photos[photo.index], photo);
                    if (!line.empty()) {
                        log_.append(line);
                    }
                    put(SaveEvent::Ended{photo.status});
                },
            .stopped = [this] { return stopped_.load(); }};
}

/// However quick the run is, the event loop gets one call for all that has come in between.
void SaveWorker::put(SaveEvent::Any event) {
    const std::lock_guard lock(mutex_);
    if (events_.empty()) {
        QMetaObject::invokeMethod(
            receiver_.get(), [this] { tell(); }, Qt::QueuedConnection);
    }
    events_.push_back(std::move(event));
}

std::vector<SaveEvent::Any> SaveWorker::takeEvents() {
    const std::lock_guard lock(mutex_);
    return std::exchange(events_, {});
}

/// A handler that has something drawn can bring about a call within the call.
void SaveWorker::tell() {
    if (telling_) {
        return;
    }
    const ScopedFlag telling(telling_);
    for (auto events = takeEvents(); !events.empty(); events = takeEvents()) {
        for (SaveEvent::Any &event : events) {
            handler_(event);
        }
    }
}

} // namespace pinmora
