#pragma once

#include "gps/gpx_reader.h"
#include "gps/log_file_types.h"
#include "gps/log_report.h"
#include "gps/text_log.h"
#include "gps/track_writer.h"
#include "platform/input_file.h"
#include "store/import_journal.h"

#include <filesystem>
#include <map>
#include <span>
#include <string_view>

namespace pinmora {

/// Loads GPS logs into tracks. Everything runs at once on the calling thread; what is made stays in
/// the context, whatever comes after it. A log is one step of undo, or part of the one under way.
class Gps : public LogImporter {
public:
    /// All must outlive it; `formats` are those of logs that are no GPX.
    Gps(Context &context, ProgressSheet &progress, ErrorSheet &errors,
        TextLogFormats formats = textLogFormats());

    /// The extensions of logs, in the order in which an open panel offers them.
    std::span<const std::string_view> gpsTypes() const { return gpsLogTypes; }
    const std::map<std::string_view, std::string_view> &gpsSupportDict() const {
        return gpsLogTypeTable();
    }
    /// Whether a path names a GPS log, by its extension as spelled.
    bool isGPS(std::string_view path) const { return namesGpsLog(path); }

    /// How the logs to come are read; at first exact.
    LogReading reading() const { return reading_; }
    void setReading(LogReading reading) { reading_ = reading; }

    /// Who hears of the logs to come, so that they can be read again; null for nobody.
    void setImportJournal(ImportJournal *journal) { journal_ = journal; }
    ImportJournal *importJournal() const { return journal_; }

    /// Starts a load of one or more files by a person's choice: a GPX file has not been seen yet.
    void beginLoad();

    /// Loads one file, whatever its name: the one rule for all ways that a log can come. Its first
    /// bytes choose the reader. A file that cannot be read is told on the error sheet.
    LogReport loadLog(const std::filesystem::path &path);

    /// Reads a file with the GPX reader. The caller has set activeLog.
    LogReport parseXMLFile(const std::filesystem::path &path);
    /// Reads the text (UTF-8) of an NMEA log.
    LogReport processNMEAData(std::string_view text);

    /// Later imports count on behind this one.
    void importAgain(Context &context, const ImportFacts &facts, Record *currentTrack,
                     ImportSource &source) override;

    bool gpxFile() const { return gpx_.elements().gpxFile(); }
    bool activeLog() const { return gpx_.elements().activeLog(); }
    void setActiveLog(bool yes) { gpx_.elements().setActiveLog(yes); }
    bool inTrack() const { return gpx_.elements().inTrack(); }
    int trackCount() const { return gpx_.elements().trackCount(); }
    int track_partCount() const { return gpx_.elements().track_partCount(); }

private:
    LogReport readGpx(InputFile &file, std::string firstBlock, const std::filesystem::path &path);
    LogReport readText(std::string bytes, const std::filesystem::path &path);
    LogReport readText(const TextLogFormat &format, std::string_view text,
                       const ImportFacts &facts);
    ImportFacts factsOf(ImportFacts::Format format, const std::filesystem::path &path) const;
    LogReport reportUnreadable(const std::filesystem::path &path, std::error_code reason);

    Context &context_;
    ProgressSheet &progress_;
    ErrorSheet &errors_;
    const TextLogFormats formats_;
    GpxReader gpx_;
    TrackWriter writer_;
    LogReading reading_ = LogReading::Exact;
    ImportJournal *journal_ = nullptr;
};

} // namespace pinmora
