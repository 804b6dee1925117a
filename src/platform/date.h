#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// An absolute instant, in microseconds since 1970-01-01T00:00:00 UTC (leap seconds not counted).
using Date = std::chrono::sys_time<std::chrono::microseconds>;

/// Wall-clock fields without a zone, to the second.
using WallClock = std::chrono::local_seconds;

/// The computer's time zone: wall-clock time to instants and back, daylight saving included.
///
/// Stretches with one offset from universal time are looked up once and kept, so that a million
/// conversions of one outing cost little. Make a new one per piece of work: it looks at
/// the computer's zone when it is made, and what it keeps knows of no later change. Not for use by
/// two threads at once.
class LocalZone {
public:
    LocalZone();

    /// The instant of a wall-clock time. Where it occurs twice (clocks set back) the earlier one;
    /// where it never occurs (clocks set forward) the offset in force before the change applies.
    Date instantOf(WallClock wallClock);

    /// What a clock on the wall shows at an instant (rounded down to the second).
    WallClock wallClockAt(Date instant);

private:
    /// Instants from `begin` to before `end` that have one offset; empty to start with.
    struct Stretch {
        std::chrono::sys_seconds begin{std::chrono::seconds::max()};
        std::chrono::sys_seconds end{std::chrono::seconds::min()};
        std::chrono::seconds offset{0};
    };
    /// Wall-clock times from `begin` to before `end` that are read with one offset.
    struct Reading {
        WallClock begin{std::chrono::seconds::max()};
        WallClock end{std::chrono::seconds::min()};
        std::chrono::seconds offset{0};
    };
    const Stretch &stretchAt(std::chrono::sys_seconds instant);
    Reading readingOf(WallClock wallClock);

    Stretch stretch_;
    Reading reading_;
};

/// Reads text by a calendar format made of %Y (4 digits), %m %d %H %M %S (2 digits each) and
/// literal characters. Strict: text that does not fit to the last character, or that names a day
/// or time that no calendar has (31 April, 24:00:00, a 60th second), gives nothing. Fields that the
/// format leaves out are those of 1970-01-01 00:00:00.
std::optional<WallClock> wallClockFromText(std::string_view text, std::string_view format);

/// wallClockFromText() taken as time in `zone`.
std::optional<Date> dateFromText(std::string_view text, std::string_view format, LocalZone &zone);

/// Writes a wall-clock time by a calendar format: %Y %m %d %H %M %S padded with zeros, %e the day
/// without padding, %b and %a the English abbreviations of month and weekday (Jan, Sun); all else
/// is written as it stands.
std::string textFromWallClock(WallClock wallClock, std::string_view format);

/// textFromWallClock() of the instant in `zone`.
std::string textFromDate(Date date, std::string_view format, LocalZone &zone);

/// textFromDate() with month and weekday names in the person's own language.
std::string localizedTextFromDate(Date date, std::string_view format, LocalZone &zone);

} // namespace pinmora
