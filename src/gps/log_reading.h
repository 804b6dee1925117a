#pragma once

#include <string_view>

namespace pinmora {

/// How a log is understood.
enum class LogReading {
    Exact, ///< one form of time, taken as clock time; sentences of the GP talker, all of them whole
    Tolerant, ///< what real loggers write: any ISO 8601 time, any talker, damaged sentences left
              ///< out
};

/// What the readings differ in. The readers are one code path that asks this where it matters.
struct ReadingPolicy {
    std::string_view name; ///< as tracks and settings hold it

    /// XML begins at the first byte with a declaration; otherwise blanks may stand before it, and
    /// any "<" will do.
    bool xmlNeedsDeclaration;
    /// Times of points are any ISO 8601 date and time, as the instant that they say; otherwise
    /// "YYYY-MM-DDTHH:MM:SSZ" only, as clock time of the computer's zone.
    bool isoTimes;

    /// What the first line of sentences begins with.
    std::string_view sentenceStart;
    /// A log whose only line of sentences is its very last, without a line break, is none.
    bool needsLineAfterStart;
    /// Sentences of every talker are read, otherwise those of "GP".
    bool anyTalker;
    /// Sentences with a wrong checksum or without a usable fix are left out; otherwise neither is
    /// looked at, and the first sentence that cannot be taken apart ends the log.
    bool skipsUnusable;
    /// A fix without a date gets it from the last sentence that had one.
    bool datesFromBefore;
    /// A log makes a track and a last point even if no sentence gave one.
    bool makesEmptyPoint;
};

const ReadingPolicy &policyOf(LogReading reading);

constexpr LogReading otherThan(LogReading reading) {
    return reading == LogReading::Exact ? LogReading::Tolerant : LogReading::Exact;
}

} // namespace pinmora
