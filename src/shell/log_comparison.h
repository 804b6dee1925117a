#pragma once

#include "outlets/object_controller.h"
#include "outlets/signal.h"
#include "shell/reading_trial.h"
#include "shell/reading_verdict.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace pinmora {

class Context;
class Gps;
class offset;
class track;

/// Tries the other reading of the logs that were loaded in this run, and judges the two by the
/// photos of the library. Logs that have left the library since, or stand in it under another
/// reading than that in force, are forgotten.
class LogComparison {
public:
    /// All must outlive it. While `loadRunning` nothing is compared: a sheet that is redrawn lets
    /// the end of a trial come in the middle of a load.
    LogComparison(Context &context, Gps &gps, ObjectController<offset> &offsetObj,
                  const bool &loadRunning);

    /// A load has ended, which may have brought logs, photos or both: compares what has been tried,
    /// and the rest once the trial has ended.
    void take(const std::vector<LogReport> &reports);
    void compare();
    /// Sent after each comparison; nothing: the reading in force is as good.
    Signal<const std::optional<ReadingVerdict> &> judged;

    /// Whether a trial is under way that will be judged.
    bool isTrying() const { return !onTrial_.empty(); }

    /// The person wants the logs that have been tried as they are: they are not judged any more.
    void keep();
    /// The logs have been read again with the other reading.
    void exchangeReadings();
    /// Whether photos are corrected by anything.
    bool hasClockOffset() const;
    /// Returns once the trial under way, if any, has been judged.
    void wait() { trial_.wait(); }

private:
    struct Log {
        LogTimes inForce;
        LogTimes other{};
        bool isTried = false;
        bool isKept = false;
    };
    using Tracks = std::map<std::string, std::vector<track *>, std::less<>>;

    void beginTrial();
    void trialEnded(std::vector<LogTimes> results);
    Tracks tracksByLog() const;
    void forgetStale();
    std::vector<Date> captureTimes() const;

    Context &context_;
    Gps &gps_;
    ObjectController<offset> &offsetObj_;
    const bool &loadRunning_;
    std::map<std::string, Log, std::less<>> logs_; ///< by their paths
    std::vector<std::string> onTrial_;             ///< in the order of their results
    LogReading trialReading_{};                    ///< under which these are read
    ReadingTrial trial_;
};

} // namespace pinmora
