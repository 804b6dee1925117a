#include "shell/reading_offer.h"

#include "gps/gps.h"
#include "gps/gps_intake.h"
#include "gps/reading_setting.h"
#include "outlets/quiet_bar.h"
#include "persistence/context.h"
#include "photos/photo_intake.h"
#include "platform/defaults.h"
#include "platform/scoped_flag.h"
#include "platform/translation.h"
#include "shell/log_intake_adapter.h"
#include "shell/log_rereading.h"
#include "store/offset.h"
#include "store/track.h"

#include <filesystem>

namespace pinmora {

namespace {

constexpr const char *subject = "log reading";

} // namespace

ReadingOffer::ReadingOffer(Context &context, Gps &gps, GpsIntake &gpsIntake,
                           PhotoIntake &photoIntake, LogIntakeAdapter &logs,
                           ObjectController<offset> &offsetObj, Defaults &defaults,
                           ProgressSheet &progress, QuietBar &quietBar, bool &loadRunning)
    : context_(context), gps_(gps), defaults_(defaults), progress_(progress), quietBar_(quietBar),
      loadRunning_(loadRunning), comparison_(context, gps, offsetObj, loadRunning), lost_([this] {
          if (isOffered_) {
              comparison_.compare();
          }
      }),
      clockChanged_([this] { comparison_.compare(); }) {
    context_.addObserver(*this, {.entity = &track::description(), .values = false});
    context_.addObserver(*this, {.entity = &offset::description()});
    settingChanged_ = defaults.onChange(logReadingKey, [this] { followSetting(); });
    connections_.push_back(comparison_.judged.connect(
        [this](const std::optional<ReadingVerdict> &verdict) { tell(verdict); }));
    connections_.push_back(gpsIntake.loaded.connect(
        [this](const std::vector<LogReport> &reports) { comparison_.take(reports); }));
    connections_.push_back(photoIntake.beginning.connect([&logs] { logs.beginLoad(); }));
    connections_.push_back(photoIntake.loaded.connect(
        [this, &logs](const IntakeReport &, const auto &) { comparison_.take(logs.reports()); }));
}

ReadingOffer::~ReadingOffer() {
    context_.removeObserver(*this);
}

void ReadingOffer::tell(const std::optional<ReadingVerdict> &verdict) {
    isOffered_ = verdict.has_value();
    if (verdict) {
        offer(*verdict);
    } else {
        quietBar_.withdraw(subject);
    }
    changed.emit();
}

void ReadingOffer::offer(const ReadingVerdict &verdict) {
    BarMessage message = wordsOf(verdict, comparison_.hasClockOffset());
    message.subject = subject;
    message.choices = {{choiceOf(verdict), [this] { useOther(); }},
                       {translated("shell", "Keep"), [this] { keep(); }}};
    message.dismissed = [this] { keep(); };
    message.weight = BarWeight::Offer;
    quietBar_.post(std::move(message));
}

/// An offer is made of the reading in force, and goes with it.
void ReadingOffer::followSetting() {
    const LogReading wanted = logReadingFrom(defaults_);
    if (wanted != gps_.reading()) {
        gps_.setReading(wanted);
        comparison_.compare();
    }
}

void ReadingOffer::keep() {
    isOffered_ = false;
    comparison_.keep();
    changed.emit();
}

void ReadingOffer::useOther() {
    if (loadRunning_) {
        return;
    }
    if (!context_.commitEditing()) {
        comparison_.compare(); // the choice has taken the offer off the bar
        return;
    }
    isOffered_ = false;
    const LogReading better = otherThan(gps_.reading());
    gps_.setReading(better);
    defaults_.setText(logReadingKey, policyOf(better).name);
    defaults_.synchronize();
    std::vector<std::string> kept;
    {
        const ScopedFlag running(loadRunning_);
        kept = readLogsAgain(context_, better, gps_.importJournal(), progress_);
    }
    comparison_.exchangeReadings();
    readAgain.emit();
    changed.emit();
    tellOfKept(kept);
}

void ReadingOffer::tellOfKept(const std::vector<std::string> &paths) {
    if (paths.empty()) {
        return;
    }
    const std::string first = std::filesystem::path(paths.front()).filename().native();
    const std::size_t others = paths.size() - 1;
    quietBar_.post(
        {.subject = "logs kept",
         .head = others == 0 ? filled(translated("shell", "%1 could not be read again."), {first})
                             : translated("shell", "%n logs could not be read again.",
                                          "%n log could not be read again.", paths.size()),
         .text =
             others == 0
                 ? translated("shell", "Its points stay as they are.")
                 : filled(translated("shell", "Their points stay as they are: %1 and %n others.",
                                     "Their points stay as they are: %1 and %n other.", others),
                          {first}),
         .choices = {},
         .weight = BarWeight::Answer});
}

} // namespace pinmora
