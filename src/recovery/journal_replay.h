#pragma once

#include "persistence/change_observer.h"
#include "persistence/context.h"
#include "persistence/record_reader.h"
#include "recovery/journal_file.h"
#include "recovery/journal_survey.h"
#include "recovery/serial_ranges.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace pinmora {

class LogImporter;

/// Does what a journal tells, in a context of its own: the library as it was when the journal ends.
///
/// Records that go are only noted as gone, so that they can come back as they were. Serials below
/// are those of the journal.
class JournalReplay : private ChangeObserver {
public:
    /// `library` holds the store document that the replay starts from and has no undo manager.
    JournalReplay(Context &library, LogImporter &importer);
    JournalReplay(const JournalReplay &) = delete;
    JournalReplay &operator=(const JournalReplay &) = delete;
    ~JournalReplay() override;

    /// Does what the journal has between that document's mark and its end. False when something
    /// cannot be done; what came before it is, and fault() says what it was.
    bool run(const std::filesystem::path &journal, const JournalSurvey &survey,
             const JournalSurvey::Mark &from);
    /// A sentence without its full stop.
    const std::string &fault() const { return fault_; }

    /// The record of a serial, also one that is gone; null when there never was one.
    Record *find(std::uint32_t serial) const;
    /// The records at the end.
    SerialRanges present() const;
    /// Whether the replay has passed the survey's live mark, and the records there; none if not.
    bool hasLiveMark() const { return isPastLiveMark_; }
    const SerialRanges &atLiveMark() const { return atLiveMark_; }
    /// What has been written since then, in the order of the serials.
    using Changes = std::vector<std::pair<std::uint32_t, const Property *>>;
    Changes changes() const;

private:
    bool apply(const Frame &frame, JournalFile &file);
    bool applyRecords(std::string_view payload, RecordReader::Extent extent);
    bool applyRecord(RecordReader &reader, RecordReader::Extent extent);
    bool applyRanges(std::string_view payload, bool areGone);
    bool applyImport(std::string_view payload, JournalFile &file);
    bool closeLinks();
    bool fail(std::string fault);
    bool keep(std::uint32_t serial, Record &record);
    void didInsert(Record &record) override;

    Context &library_;
    LogImporter &importer_;
    std::vector<Record *> bySerial_;
    SerialRanges gone_;
    SerialRanges atLiveMark_;
    bool isPastLiveMark_ = false;
    Changes changes_;
    std::vector<OpenLink> open_;
    RecordList imported_; ///< by the import being read
    std::string fault_;
};

} // namespace pinmora
