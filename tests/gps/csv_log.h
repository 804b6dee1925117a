#pragma once

#include "gps/text_log.h"

namespace pinmora::test {

/// A log as a table: "time,latitude,longitude" or "time,latitude,longitude,altitude" as its first
/// line, and a point a line. Times are ISO 8601 in either reading, decimal degrees and metres.
bool beginsCsvLog(std::string_view head);
LogReport readCsvLog(const TextLog &log, TrackWriter &writer);

/// In the program this would be a row of textLogFormats(), and its number one of ImportFacts.
inline constexpr TextLogFormat csvLogFormat{ImportFacts::Format{200}, beginsCsvLog, readCsvLog};

} // namespace pinmora::test
