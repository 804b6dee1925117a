#pragma once

#include "persistence/text.h"
#include "platform/date.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

class Context;
class Record;

/// All that reading a log depends on besides its bytes: enough to read them again, at any time and
/// without the file, into the same records.
struct ImportFacts {
    enum class Format : std::uint8_t { Gpx = 1, Nmea = 2 }; ///< the numbers are in files

    Format format = Format::Gpx;
    std::string path;    ///< the log's full path (bytes); "" for a text that was no file
    std::string reading; ///< "exact" or "tolerant"
    std::string zone;    ///< the computer's time zone, as ZoneScope takes it
    std::int32_t currentYear = 0;

    // What a GPX reader has kept from the documents before.
    bool gpxFile = false;
    bool activeLog = false;
    std::int32_t trackCount = 0;
    std::int32_t track_partCount = 0;
    std::uint32_t currentTrack = 0; ///< the serial of the track that points go to; 0 for none
    Text lat;                       ///< the values of a point that has begun
    Text lon;
    Text ele;
    Text time;
    std::optional<Date> date;

    friend bool operator==(const ImportFacts &, const ImportFacts &) = default;
};

/// Hears what readers of logs read, and keeps it for LogImporter. For each log: beginImport(), the
/// bytes in their order, endImport(), whatever becomes of the reading.
class ImportJournal {
public:
    virtual ~ImportJournal() = default;

    virtual void beginImport(const ImportFacts &facts) = 0;
    /// Room for inputBlockSize bytes, to read a block into and hand it over without a copy.
    virtual std::string spareBlock() = 0;
    virtual void importBytes(std::string bytes) = 0;
    /// What the log has asked for beside itself, before the bytes in which it asks: the content of
    /// an external entity, nothing where it could not be had.
    virtual void importEntity(std::string_view name, const std::optional<std::string> &content) = 0;
    virtual void endImport() = 0;
};

/// The bytes of an import that was journaled, once more.
class ImportSource {
public:
    virtual ~ImportSource() = default;

    /// The next bytes, good until the next call; empty at the end.
    virtual std::string_view next() = 0;
    /// What was told to importEntity(); each answer is given once.
    virtual std::optional<std::string> entity(std::string_view name) = 0;
};

/// Reads logs again from what an ImportJournal has heard of them.
class LogImporter {
public:
    virtual ~LogImporter() = default;

    /// Makes the same records in `context`, in the same order. No file is opened and no sheet
    /// shown. `currentTrack` is the record of facts.currentTrack.
    virtual void importAgain(Context &context, const ImportFacts &facts, Record *currentTrack,
                             ImportSource &source) = 0;
};

} // namespace pinmora
