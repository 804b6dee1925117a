#pragma once

#include "gps/log_report.h"
#include "store/import_journal.h"

#include <chrono>
#include <filesystem>
#include <span>
#include <string_view>

namespace pinmora {

class TrackWriter;

/// A log that is read as one text.
struct TextLog {
    std::string_view text;      ///< UTF-8, without a byte-order mark
    std::filesystem::path path; ///< the full path; empty for a text that is no file
    LogReading reading = LogReading::Exact;
    std::chrono::year currentYear{}; ///< when it was first read
};

/// A format of such logs. Formats differ in nothing else: files, sheets, undo and the journal of
/// imports are the same for all.
struct TextLogFormat {
    /// By which a journal names it: it is in files, and never changes or is used for another.
    ImportFacts::Format number;
    /// Whether a text that begins so is a log of this format.
    bool (*begins)(std::string_view head);
    /// Makes the tracks and points of the log. What is wrong with it is told in the report alone;
    /// the message is not asked for.
    LogReport (*read)(const TextLog &log, TrackWriter &writer);
};

/// Tried in their order; the last one gets what none of them takes for its own.
using TextLogFormats = std::span<const TextLogFormat>;

/// The formats that the program reads, besides GPX.
TextLogFormats textLogFormats();

const TextLogFormat &formatOf(std::string_view text, TextLogFormats formats);
/// The format of that number, the last one where there is none.
const TextLogFormat &formatOf(ImportFacts::Format number, TextLogFormats formats);

} // namespace pinmora
