#pragma once

#include "saving/photo_snapshot.h"
#include "saving/save_run.h"
#include "saving/tool_settings.h"

#include <atomic>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <variant>
#include <vector>

class QObject;
class QThread;

namespace pinmora {

class LogFile;
class Saving;

/// What is to be saved, and how.
struct SaveOrder {
    std::vector<PhotoSnapshot> photos;
    std::filesystem::path folder;
    ToolSettings settings;
};

/// What a run tells, in its order.
namespace SaveEvent {
struct Begins {
    std::size_t index;
};
struct Placed {
    std::filesystem::path copy;
};
struct Copied {};
struct Ended {
    SavedPhoto::Status status;
};
/// The last one.
struct Over {
    SaveOutcome outcome;
};
using Any = std::variant<Begins, Placed, Copied, Ended, Over>;
} // namespace SaveEvent

/// A run on a thread of its own, for the thread that made this object.
class SaveWorker {
public:
    /// Called by the event loop for each event; may not destroy the worker.
    using Handler = std::function<void(SaveEvent::Any &)>;

    /// What goes wrong with photos is entered into the log at once. `saving` and `log` must outlive
    /// it.
    SaveWorker(const Saving &saving, SaveOrder order, LogFile &log, Handler handler);
    /// Stops the run and waits for its end. What it has not told yet is not told any more.
    ~SaveWorker();
    SaveWorker(const SaveWorker &) = delete;
    SaveWorker &operator=(const SaveWorker &) = delete;

    /// Begins, once.
    void start();
    /// No further photo is begun; a run that has begun still tells of its end.
    void stop() { stopped_ = true; }

private:
    void work();
    void noteMissing();
    SaveObserver observer();
    void put(SaveEvent::Any event);
    std::vector<SaveEvent::Any> takeEvents();
    void tell();

    const Saving &saving_;
    SaveOrder order_;
    LogFile &log_;
    Handler handler_;
    std::atomic<bool> stopped_ = false;
    std::mutex mutex_;
    std::vector<SaveEvent::Any> events_; ///< guarded by mutex_; one call waits while there are any
    bool telling_ = false;
    std::unique_ptr<QObject> receiver_;
    std::unique_ptr<QThread> thread_; ///< the last member: it uses all others
};

} // namespace pinmora
