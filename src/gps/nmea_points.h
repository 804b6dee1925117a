#pragma once

#include "gps/log_report.h"
#include "gps/nmea_sentence.h"
#include "gps/track_writer.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace pinmora {

/// Merges the sentences of one log into the points of one track: those with the same text in their
/// time field make one point. An RMC sentence gives position and date, a GGA sentence position and
/// altitude; the later position counts.
class NmeaPoints {
public:
    enum class Taken {
        Yes,
        No,     ///< not a sentence that the reading uses
        Broken, ///< the log ends here
    };

    /// `report` and the text of the log must stay. Years are those up to `currentYear`.
    NmeaPoints(TrackWriter &writer, LogReport &report, std::chrono::year currentYear);

    /// Takes the line with this index, from 0.
    Taken take(std::string_view line, std::size_t index);
    /// Completes the last point of a log of `lineCount` lines.
    void finish(std::size_t lineCount) { completePoint(lineCount); }
    /// Gives up the point that has begun.
    void drop();

private:
    struct Pending {
        Text lat;
        Text lon;
        Text alt;
        std::optional<Date> date;
        std::string_view line; ///< the first sentence of the point; empty while there is none
        std::size_t index = 0; ///< of that line
    };

    Taken takeFix(std::string_view line, std::size_t index);
    Taken takeDate();
    void completePoint(std::size_t pointId);
    /// The date of an RMC sentence; nothing where it has none, or an impossible one.
    std::optional<Date> dateOfRmc() const;
    /// Dates the pending point by the last date known, if it has none of its own.
    void dateFromBefore(std::string_view time);

    TrackWriter &writer_;
    LogReport &report_;
    const ReadingPolicy &policy_;
    std::chrono::year currentYear_;
    track *track_ = nullptr;
    NmeaSentence sentence_;
    std::optional<std::string_view> pendingTime_; ///< of the latest sentence used
    Pending pending_;
    std::optional<Date> lastKnown_; ///< the latest instant that had a date
};

} // namespace pinmora
