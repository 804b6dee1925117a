#pragma once

#include "shell/reading_trial.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace pinmora {

struct BarMessage;

/// A log under the reading in force and under the other one; both are only looked at.
struct ComparedLog {
    std::string path;
    const LogTimes *inForce;
    const LogTimes *other;
};

/// Why the other reading is worth being offered.
struct ReadingVerdict {
    enum class Why {
        Shifted,  ///< it takes the same times as other instants, which fit the photos
        LeftOut,  ///< the one in force leaves out what it can use
        Unread,   ///< the one in force cannot read the log at all
        MoreFits, ///< it places more of the photos, for whatever reason
    };

    Why why = Why::Shifted;
    LogReading better = LogReading::Tolerant;
    std::string log;            ///< the name of the one that shows it most
    std::size_t otherLogs = 0;  ///< besides that one
    std::chrono::seconds by{0}; ///< by how much the times are apart: Shifted
    std::size_t count = 0;      ///< texts that are left out, points, or photos
    std::size_t of = 0;         ///< all times of that log, 0 where they are sentences: LeftOut
};

/// Compares the two readings of some logs by the photos' times (corrected). Nothing when the
/// reading in force is as good, or when there is reason to doubt that the other one is better: it
/// must not place fewer photos.
std::optional<ReadingVerdict> judgeReadings(std::span<const Date> photos,
                                            std::span<const ComparedLog> logs);

/// The verdict in words: head and text; `hasOffset`: the camera's clock has been corrected.
BarMessage wordsOf(const ReadingVerdict &verdict, bool hasOffset);
/// What the choice to use the other reading is called.
std::string choiceOf(const ReadingVerdict &verdict);
/// "2 h", "1 h 25 min", "3 days": rounded to what helps to recognise a time zone.
std::string spanText(std::chrono::seconds span);

} // namespace pinmora
