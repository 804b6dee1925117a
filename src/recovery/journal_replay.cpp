#include "recovery/journal_replay.h"

#include "persistence/record.h"
#include "platform/translation.h"
#include "recovery/journal_source.h"
#include "recovery/record_elements.h"

#include <algorithm>

namespace pinmora {

JournalReplay::JournalReplay(Context &library, LogImporter &importer)
    : library_(library), importer_(importer) {
    for (const EntityDescription *entity : library.model().entities()) {
        for (Record *record : library.fetch(entity->name())) {
            keep(record->serial(), *record);
        }
    }
    library_.addObserver(*this);
}

JournalReplay::~JournalReplay() {
    library_.removeObserver(*this);
}

bool JournalReplay::keep(std::uint32_t serial, Record &record) {
    constexpr std::size_t largestGap = std::size_t{1} << 24U; // records that are not stored
    if (serial >= bySerial_.size() + largestGap) {
        return fail(filled(translated("recovery", "the journal has a record numbered %1"),
                           {std::to_string(serial)}));
    }
    if (serial >= bySerial_.size()) {
        bySerial_.resize(std::max<std::size_t>(serial + std::size_t{1}, bySerial_.size() * 2));
    }
    bySerial_[serial] = &record;
    return true;
}

Record *JournalReplay::find(std::uint32_t serial) const {
    return serial < bySerial_.size() ? bySerial_[serial] : nullptr;
}

SerialRanges JournalReplay::present() const {
    SerialRanges present;
    for (std::uint32_t serial = 0; serial < bySerial_.size(); ++serial) {
        if (bySerial_[serial]) {
            present.add(serial);
        }
    }
    present.remove(gone_);
    return present;
}

JournalReplay::Changes JournalReplay::changes() const {
    Changes changes = changes_;
    std::sort(changes.begin(), changes.end());
    changes.erase(std::unique(changes.begin(), changes.end()), changes.end());
    return changes;
}

bool JournalReplay::run(const std::filesystem::path &journal, const JournalSurvey &survey,
                        const JournalSurvey::Mark &from) {
    JournalFile file;
    if (const std::error_code error = file.open(journal)) {
        return fail(error.message());
    }
    for (;;) {
        const std::uint64_t position = file.goodBytes();
        if (survey.live && !isPastLiveMark_ &&
            position >= std::max(survey.live->position, from.position)) {
            isPastLiveMark_ = true;
            atLiveMark_ = present();
        }
        if (position >= survey.end) {
            return true;
        }
        const Frame *frame = file.next();
        if (!frame) {
            return fail(translated("recovery", "the journal has changed while it was read"));
        }
        if (file.goodBytes() > from.position && !apply(*frame, file)) {
            return false;
        }
    }
}

bool JournalReplay::apply(const Frame &frame, JournalFile &file) {
    switch (frame.kind) {
    case FrameKind::Inserted:
        return applyRecords(frame.payload, RecordReader::Extent::Whole);
    case FrameKind::Changed:
        return applyRecords(frame.payload, RecordReader::Extent::Changes);
    case FrameKind::Removed:
        return applyRanges(frame.payload, true);
    case FrameKind::PutBack:
        return applyRanges(frame.payload, false);
    case FrameKind::StepEnd:
        return closeLinks();
    case FrameKind::Saved:
        return true;
    case FrameKind::ImportBegin:
        return applyImport(frame.payload, file);
    default:
        return fail(
            translated("recovery", "the journal has a part that does not belong where it is"));
    }
}

bool JournalReplay::applyRecords(std::string_view payload, RecordReader::Extent extent) {
    RecordReader reader(library_.model());
    const bool done =
        readRecordElements(payload, [&](std::string_view element, const char *const *attributes) {
            return reader.read(element, attributes, extent) ? applyRecord(reader, extent)
                                                            : fail(reader.error());
        });
    return done ||
           fail(translated("recovery", "the journal has a part that is no list of records"));
}

bool JournalReplay::applyRecord(RecordReader &reader, RecordReader::Extent extent) {
    const std::uint32_t serial = reader.serial();
    Record *record = find(serial);
    if (extent == RecordReader::Extent::Whole) {
        if (record) {
            return fail(filled(translated("recovery", "the journal has record %1 twice"),
                               {std::to_string(serial)}));
        }
        record = &library_.insertStored(reader.entity(), library_.nextSerial());
        if (!keep(serial, *record)) {
            return false;
        }
    } else if (!record || &record->entity() != &reader.entity()) {
        return fail(
            filled(translated("recovery", "the journal changes record %1, which is not there"),
                   {std::to_string(serial)}));
    } else if (isPastLiveMark_) {
        for (const RecordReader::KeyValue &value : reader.values()) {
            changes_.emplace_back(serial, value.property);
        }
    }
    reader.applyTo(
        *record, [this](std::uint32_t target) { return find(target); }, open_);
    return true;
}

bool JournalReplay::applyRanges(std::string_view payload, bool areGone) {
    const std::optional<SerialRanges> ranges = SerialRanges::fromText(payload);
    if (!ranges) {
        return fail(translated("recovery", "the journal has a part that is no list of serials"));
    }
    if (areGone) {
        gone_.add(*ranges);
    } else {
        gone_.remove(*ranges);
    }
    return true;
}

bool JournalReplay::applyImport(std::string_view payload, JournalFile &file) {
    const std::optional<ImportFacts> facts = factsFrom(payload);
    if (!facts) {
        return fail(translated("recovery",
                               "the journal has a log of which it does not say how to read it"));
    }
    imported_.clear();
    JournalSource source(file);
    importer_.importAgain(library_, *facts, find(facts->currentTrack), source);
    const std::optional<ImportResult> result = source.result();
    if (!result || result->records != imported_.size()) {
        return fail(
            filled(translated("recovery", "the log %1 cannot be read as it was read before"),
                   {facts->path}));
    }
    bool isKept = true;
    for (std::uint32_t i = 0; i < result->records && isKept; ++i) {
        isKept = keep(result->firstSerial + i, *imported_[i]);
    }
    return isKept;
}

void JournalReplay::didInsert(Record &record) {
    imported_.push_back(&record);
}

/// Records of one step may name each other in any order.
bool JournalReplay::closeLinks() {
    for (const OpenLink &link : open_) {
        if (!makeLink(*link.record, *link.property, find(link.target))) {
            return fail(
                filled(translated("recovery", "the journal leads to record %1, which is not there"),
                       {std::to_string(link.target)}));
        }
    }
    open_.clear();
    return true;
}

bool JournalReplay::fail(std::string fault) {
    if (fault_.empty()) {
        fault_ = std::move(fault);
    }
    return false;
}

} // namespace pinmora
