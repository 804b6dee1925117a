#pragma once

#include "outlets/object_controller.h"
#include "outlets/signal.h"
#include "persistence/change_observer.h"
#include "platform/end_of_turn.h"
#include "platform/notification_centre.h"
#include "shell/log_comparison.h"

#include <optional>
#include <string>
#include <vector>

namespace pinmora {

class Context;
class Defaults;
class Gps;
class GpsIntake;
class LogIntakeAdapter;
class PhotoIntake;
class ProgressSheet;
class QuietBar;
class offset;

/// After each load, has the other reading of the logs that came in tried in the background, and
/// offers it on the quiet bar where it leaves out less or places more of the photos.
///
/// When the offer is taken, the other reading is in force, also for logs to come, and every log of
/// the library is read again with it as one step of undo. A reading that a person chooses in the
/// settings is in force for logs to come.
class ReadingOffer : private ChangeObserver {
public:
    /// All must outlive it. While `loadRunning` nothing is offered or read; it is set while logs
    /// are read again.
    ReadingOffer(Context &context, Gps &gps, GpsIntake &gpsIntake, PhotoIntake &photoIntake,
                 LogIntakeAdapter &logs, ObjectController<offset> &offsetObj, Defaults &defaults,
                 ProgressSheet &progress, QuietBar &quietBar, bool &loadRunning);
    ~ReadingOffer() override;
    ReadingOffer(const ReadingOffer &) = delete;
    ReadingOffer &operator=(const ReadingOffer &) = delete;

    /// Sent after the logs have been read again.
    Signal<> readAgain;

    /// Whether it is not known yet in which reading the logs are to stay: an offer is on the bar,
    /// or may come to be.
    bool isOpen() const { return isOffered_ || comparison_.isTrying(); }
    /// Sent when that may have changed.
    Signal<> changed;

    /// For those who cannot wait for the event loop: returns once the trial under way has ended and
    /// been told of.
    void waitForTrial() { comparison_.wait(); }

private:
    void tell(const std::optional<ReadingVerdict> &verdict);
    void offer(const ReadingVerdict &verdict);
    void keep();
    void useOther();
    void followSetting();
    void tellOfKept(const std::vector<std::string> &paths);
    /// A track has gone: perhaps that of a log which an offer is about.
    void didDelete(Record &) override { lost_.ask(); }
    /// With another clock the other reading may fit the photos better, or no longer.
    void didChange(Record &, std::string_view) override { clockChanged_.ask(); }

    Context &context_;
    Gps &gps_;
    Defaults &defaults_;
    ProgressSheet &progress_;
    QuietBar &quietBar_;
    bool &loadRunning_;
    bool isOffered_ = false;
    LogComparison comparison_;
    EndOfTurn lost_;
    EndOfTurn clockChanged_;
    NotificationCentre::Observation settingChanged_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
