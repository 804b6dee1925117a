#pragma once

#include "gps/log_report.h"
#include "platform/background_job.h"
#include "platform/date.h"

#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace pinmora {

class Context;
class track;

/// What a log says under one reading.
struct LogTimes {
    LogReport report;
    std::vector<Date> times; ///< of the points that a photo can be placed at, rising, each once
};

/// The times of the points of these tracks.
std::vector<Date> timesOf(const std::vector<track *> &tracks);

/// Reads a log into a library that is made for it and forgotten. For any thread: nothing that other
/// threads have is touched, and the time zone stays what it is meanwhile.
LogTimes readForTrial(const std::filesystem::path &log, LogReading reading);

/// Reads logs for trial in the background.
class ReadingTrial {
public:
    using Ended = std::function<void(std::vector<LogTimes>)>;

    /// `ended` is called from the event loop of this thread.
    explicit ReadingTrial(Ended ended) : ended_(std::move(ended)) {}
    /// The trial under way, if any, is dropped and never told of.
    ~ReadingTrial() { drop(); }
    ReadingTrial(const ReadingTrial &) = delete;
    ReadingTrial &operator=(const ReadingTrial &) = delete;

    /// Reads these logs; the trial under way, if any, is dropped and never told of.
    void begin(std::vector<std::filesystem::path> logs, LogReading reading);
    /// Returns once the trial under way, if any, has been told of.
    void wait();

private:
    struct Request {
        std::vector<std::filesystem::path> logs;
        LogReading reading;
    };

    static std::vector<LogTimes> read(const Request &request, const std::atomic<bool> &dropped);
    void drop();
    void startNext();

    Ended ended_;
    std::optional<Request> next_;                ///< waits for the trial under way
    std::shared_ptr<std::atomic<bool>> dropped_; ///< the trial under way; both threads look
    BackgroundJob job_;
};

} // namespace pinmora
