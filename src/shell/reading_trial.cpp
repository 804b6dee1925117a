#include "shell/reading_trial.h"

#include "gps/gps.h"
#include "outlets/error_sheet.h"
#include "outlets/progress_sheet.h"
#include "persistence/context.h"
#include "platform/notification_centre.h"
#include "platform/zone_scope.h"
#include "store/library_model.h"
#include "store/track.h"
#include "store/track_part.h"

#include <algorithm>

namespace pinmora {

namespace {

void addTime(const track_part &point, std::vector<Date> &times) {
    if (point.time() && !point.lat().view().empty() && !point.lon().view().empty()) {
        times.push_back(*point.time());
    }
}

void sortOnce(std::vector<Date> &times) {
    if (!std::is_sorted(times.begin(), times.end())) {
        std::sort(times.begin(), times.end());
    }
    times.erase(std::unique(times.begin(), times.end()), times.end());
}

} // namespace

std::vector<Date> timesOf(const std::vector<track *> &tracks) {
    std::vector<Date> times;
    for (const track *one : tracks) {
        for (const track_part *point : one->points()) {
            addTime(*point, times);
        }
    }
    sortOnce(times);
    return times;
}

LogTimes readForTrial(const std::filesystem::path &log, LogReading reading) {
    const ZoneHold zone;
    NotificationCentre notifications;
    const LibraryModel model(notifications);
    Context context(model);
    Window window;
    ProgressSheet progress([&window]() -> Window & { return window; });
    ErrorSheet errors([&window]() -> Window & { return window; });
    Gps gps(context, progress, errors);
    gps.setReading(reading);
    gps.beginLoad();
    LogTimes read{.report = gps.loadLog(log), .times = {}};
    for (const track_part *point : context.records<track_part>()) {
        addTime(*point, read.times);
    }
    sortOnce(read.times);
    return read;
}

std::vector<LogTimes> ReadingTrial::read(const Request &request, const std::atomic<bool> &dropped) {
    std::vector<LogTimes> results;
    results.reserve(request.logs.size());
    for (const std::filesystem::path &log : request.logs) {
        if (dropped) {
            break;
        }
        results.push_back(readForTrial(log, request.reading));
    }
    return results;
}

void ReadingTrial::begin(std::vector<std::filesystem::path> logs, LogReading reading) {
    drop();
    next_ = Request{std::move(logs), reading};
    if (!job_.isRunning()) {
        startNext();
    }
}

void ReadingTrial::drop() {
    if (dropped_) {
        *dropped_ = true;
    }
}

void ReadingTrial::startNext() {
    const auto dropped = std::make_shared<std::atomic<bool>>(false);
    dropped_ = dropped;
    job_.start([this, dropped, request = *std::exchange(next_, std::nullopt)] {
        return [this, dropped, results = read(request, *dropped)] {
            if (!*dropped) {
                ended_(results);
            } else if (next_) {
                startNext();
            }
        };
    });
}

void ReadingTrial::wait() {
    while (job_.isRunning()) {
        job_.finish();
    }
}

} // namespace pinmora
