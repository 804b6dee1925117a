#pragma once

#include "gps/log_report.h"
#include "gps/track_writer.h"
#include "outlets/error_sheet.h"
#include "outlets/progress_sheet.h"

#include <chrono>
#include <filesystem>
#include <string_view>

namespace pinmora {

/// Reads the text of an NMEA 0183 log into one track and its points.
///
/// The progress sheet is closed in every case. A text that is no such log is told on the error
/// sheet; a log that ends at a broken sentence is not.
class NmeaReader {
public:
    NmeaReader(Context &context, ProgressSheet &progress, ErrorSheet &errors);

    /// `text` is UTF-8, `path` the full path of the log, empty for a text that is no file. Dates of
    /// two-digit years lie in the hundred years up to `currentYear`.
    LogReport read(std::string_view text, const std::filesystem::path &path, LogReading reading,
                   std::chrono::year currentYear);

private:
    ProgressSheet &progress_;
    ErrorSheet &errors_;
    TrackWriter writer_;
};

} // namespace pinmora
