#pragma once

#include "gps/log_reading.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

enum class LogError {
    None,
    Unreadable,   ///< no regular file, or the system refuses to open or read it
    MalformedGpx, ///< the XML parser gave up; what it had read before stays
    NotALog,      ///< neither GPX nor NMEA
};

/// What reading one log has come to.
struct LogReport {
    /// Something that could not be used, to show to a person.
    struct Sample {
        std::string text; ///< short, without control characters (UTF-8)
        std::size_t line; ///< counted from 1
    };

    std::filesystem::path path;
    LogReading reading = LogReading::Exact;
    std::size_t tracks = 0;
    std::size_t points = 0;
    /// What the reading in force could not use: GPX points without a time or with one that does not
    /// fit; NMEA position sentences passed over, and NMEA points that got no time.
    std::size_t unusable = 0;
    std::optional<Sample> sample; ///< the first of those
    LogError error = LogError::None;
    std::string message; ///< the sentence that the error sheet shows; "" without an error

    bool failed() const { return error != LogError::None; }

    /// Counts one more; the first becomes the sample.
    void addUnusable(std::string_view text, std::size_t line);
    /// "12 points or sentences could not be used, the first in line 3: $GNRMC,..."; "" when all
    /// could.
    std::string unusableText() const;
};

} // namespace pinmora
