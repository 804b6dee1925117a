#pragma once

#include "gps/text_log.h"

namespace pinmora {

/// Reads the text of an NMEA 0183 log into one track and its points. Dates of two-digit years lie
/// in the hundred years up to the log's current one. A log that ends at a broken sentence is no
/// fault.
LogReport readNmeaLog(const TextLog &log, TrackWriter &writer);

} // namespace pinmora
