#include "shell/log_comparison.h"

#include "gps/gps.h"
#include "matching/placing.h"
#include "persistence/context.h"
#include "store/image.h"
#include "store/offset.h"
#include "store/track.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <utility>

namespace pinmora {

LogComparison::LogComparison(Context &context, Gps &gps, ObjectController<offset> &offsetObj,
                             const bool &loadRunning)
    : context_(context), gps_(gps), offsetObj_(offsetObj), loadRunning_(loadRunning),
      trial_([this](std::vector<LogTimes> results) { trialEnded(std::move(results)); }) {}

void LogComparison::take(const std::vector<LogReport> &reports) {
    const Tracks tracks = tracksByLog();
    for (const LogReport &report : reports) {
        if (report.error == LogError::Unreadable) {
            continue;
        }
        const std::string path = std::filesystem::absolute(report.path).string();
        const auto found = tracks.find(path);
        const bool isThere = found != tracks.end();
        logs_.insert_or_assign(
            path, Log{.inForce = {report, isThere ? timesOf(found->second) : std::vector<Date>()}});
    }
    beginTrial();
    compare();
}

void LogComparison::beginTrial() {
    std::vector<std::string> untried;
    for (const auto &[path, log] : logs_) {
        if (!log.isTried) {
            untried.push_back(path);
        }
    }
    const LogReading reading = otherThan(gps_.reading());
    if (!untried.empty() && (untried != onTrial_ || reading != trialReading_)) {
        onTrial_ = untried;
        trialReading_ = reading;
        trial_.begin({untried.begin(), untried.end()}, reading);
    }
}

void LogComparison::trialEnded(std::vector<LogTimes> results) {
    const std::vector<std::string> paths = std::exchange(onTrial_, {});
    for (std::size_t i = 0; i < paths.size(); ++i) {
        if (const auto found = logs_.find(paths[i]); found != logs_.end()) {
            found->second.other = std::move(results[i]);
            found->second.isTried = true;
        }
    }
    compare();
}

void LogComparison::compare() {
    if (loadRunning_) {
        return;
    }
    forgetStale();
    std::vector<ComparedLog> compared;
    for (const auto &[path, log] : logs_) {
        const LogReport &other = log.other.report;
        const bool couldBeRead = log.isTried && !other.failed();
        if (couldBeRead && !log.isKept && other.reading != log.inForce.report.reading) {
            compared.push_back({path, &log.inForce, &log.other});
        }
    }
    judged.emit(compared.empty() ? std::nullopt : judgeReadings(captureTimes(), compared));
}

void LogComparison::forgetStale() {
    const Tracks tracks = tracksByLog();
    std::erase_if(logs_, [&](const auto &entry) {
        const LogReport &report = entry.second.inForce.report;
        const auto found = tracks.find(entry.first);
        const bool isThere = found != tracks.end();
        return report.reading != gps_.reading() || isThere != (report.tracks > 0) ||
               (isThere &&
                found->second.front()->log_reading().view() != policyOf(report.reading).name);
    });
}

LogComparison::Tracks LogComparison::tracksByLog() const {
    Tracks tracks;
    for (track *one : context_.records<track>()) {
        tracks[one->log_path().string()].push_back(one);
    }
    return tracks;
}

std::vector<Date> LogComparison::captureTimes() const {
    const offset *const clock = offsetObj_.content();
    std::vector<Date> times;
    for (const image *photo : context_.records<image>()) {
        if (const std::optional<Date> taken = photo->captureTime()) {
            times.push_back(clock ? *correctedTime(*photo, *clock) : *taken);
        }
    }
    return times;
}

bool LogComparison::hasClockOffset() const {
    const offset *const clock = offsetObj_.content();
    return clock && (clock->signedOffset().count() != 0 || !clock->cameraOffsets().all().empty());
}

void LogComparison::keep() {
    for (auto &[path, log] : logs_) {
        log.isKept = log.isKept || log.isTried;
    }
}

void LogComparison::exchangeReadings() {
    // What the trial under way finds is what those logs say in the reading now in force.
    onTrial_.clear();
    std::erase_if(logs_, [](const auto &entry) { return !entry.second.isTried; });
    for (auto &[path, log] : logs_) {
        std::swap(log.inForce, log.other);
    }
}

} // namespace pinmora
