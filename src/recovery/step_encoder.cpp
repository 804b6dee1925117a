#include "recovery/step_encoder.h"

#include "persistence/record.h"
#include "persistence/record_writer.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace pinmora {

namespace {

/// Payloads are cut at about this size, so that neither side needs all of a large step at once.
constexpr std::size_t payloadSize = std::size_t{1} << 20U;

constexpr std::uint32_t highestSerial = std::numeric_limits<std::uint32_t>::max();

/// Writes records into frames of one kind. A reader takes each frame by itself, and so does the
/// writer of its text.
class RecordFrames {
public:
    RecordFrames(FrameKind kind, std::vector<Frame> &frames) : kind_(kind), frames_(frames) {}
    RecordFrames(const RecordFrames &) = delete;
    RecordFrames &operator=(const RecordFrames &) = delete;
    ~RecordFrames() { close(); }

    RecordWriter &writer() {
        if (text_.size() >= payloadSize) {
            close();
        }
        return writer_ ? *writer_ : writer_.emplace(text_);
    }

private:
    void close() {
        if (!text_.empty()) {
            frames_.push_back({kind_, std::move(text_)});
            text_.clear();
            writer_.reset();
        }
    }

    FrameKind kind_;
    std::vector<Frame> &frames_;
    std::string text_;
    std::optional<RecordWriter> writer_;
};

} // namespace

void StepEncoder::takeStock() {
    present_.clear();
    removed_.clear();
    forgetImport();
    for (const EntityDescription *entity : context_.model().entities()) {
        if (entity->isStored()) {
            for (const Record *record : context_.fetch(entity->name())) {
                present_.add(record->serial());
            }
        }
    }
}

void StepEncoder::beginImport(std::uint32_t firstSerial) {
    importBegin_ = firstSerial;
    present_.add(firstSerial, highestSerial);
}

void StepEncoder::endImport(std::uint32_t count) {
    importCount_ = count;
    present_.remove(importBegin_ + count, highestSerial);
}

std::vector<Frame> StepEncoder::encode(const UndoStep &step) {
    look(step);

    const SerialRanges gone = present_.common(outside_);
    const SerialRanges back = removed_.common(inside_);
    SerialRanges fresh = std::move(inside_);
    fresh.remove(present_);
    fresh.remove(removed_);
    present_.remove(gone);
    present_.add(back);
    present_.add(fresh);
    removed_.remove(back);
    removed_.add(gone);

    std::vector<Frame> frames;
    if (!gone.isEmpty()) {
        frames.push_back({FrameKind::Removed, gone.text()});
    }
    if (!back.isEmpty()) {
        frames.push_back({FrameKind::PutBack, back.text()});
    }
    encodeFresh(fresh, frames);
    encodeChanges(fresh, frames);
    inside_.clear();
    outside_.clear();
    named_.clear();
    touched_.clear();
    return frames;
}

void StepEncoder::look(const UndoStep &step) {
    for (const UndoStep::Run &run : step.runs()) {
        if (const auto *changes = std::get_if<UndoStep::Changes>(&run)) {
            for (const ValueChange &change : *changes) {
                touched_.push_back({change.record, change.property});
            }
        } else if (const auto *inserted = std::get_if<Insertions>(&run)) {
            look(inserted->records);
        } else {
            look(std::get<Deletions>(run).records);
        }
    }
}

/// A record can be named more than once, so what counts is where it is now.
void StepEncoder::look(const RecordList &records) {
    for (std::size_t i = 0; i < records.size();) {
        if (const std::size_t run = importedRun(records, i)) {
            i += run;
            continue;
        }
        Record &record = *records[i++];
        (record.isDeleted() ? outside_ : inside_).add(record.serial());
        named_.push_back(&record);
    }
}

/// How many records from there on are all those of one import: a million need not be looked at one
/// by one. Those of them that have gone again are named by a deletion as well.
std::size_t StepEncoder::importedRun(const RecordList &records, std::size_t from) const {
    const bool isRun =
        importCount_ > 0 && importCount_ <= records.size() - from &&
        records[from]->serial() == importBegin_ &&
        records[from + importCount_ - 1]->serial() == importBegin_ + importCount_ - 1;
    return isRun ? importCount_ : 0;
}

void StepEncoder::encodeFresh(const SerialRanges &fresh, std::vector<Frame> &frames) const {
    if (fresh.isEmpty()) {
        return;
    }
    RecordList records;
    std::copy_if(named_.begin(), named_.end(), std::back_inserter(records),
                 [&](const Record *record) { return fresh.contains(record->serial()); });
    std::sort(records.begin(), records.end(),
              [](const Record *a, const Record *b) { return a->serial() < b->serial(); });
    records.erase(std::unique(records.begin(), records.end()), records.end());
    RecordFrames text(FrameKind::Inserted, frames);
    for (const Record *record : records) {
        text.writer().write(*record);
    }
}

/// A record outside has no changes to tell: when it comes back, the step that brings it names them.
/// Nor has one that the file does not have yet, or has just been given as it is.
void StepEncoder::encodeChanges(const SerialRanges &fresh, std::vector<Frame> &frames) {
    std::erase_if(touched_, [&](const TouchedKey &key) {
        const std::uint32_t serial = key.record->serial();
        return !present_.contains(serial) || fresh.contains(serial);
    });
    const auto place = [](const TouchedKey &key) {
        return std::tuple(key.record->serial(), key.property);
    };
    std::sort(touched_.begin(), touched_.end(),
              [&](const TouchedKey &a, const TouchedKey &b) { return place(a) < place(b); });
    RecordFrames text(FrameKind::Changed, frames);
    std::vector<const Property *> changed;
    for (std::size_t i = 0; i < touched_.size(); ++i) {
        const bool isLast = i + 1 == touched_.size();
        if (isLast || place(touched_[i]) != place(touched_[i + 1])) {
            changed.push_back(touched_[i].property);
        }
        if (isLast || touched_[i].record != touched_[i + 1].record) {
            text.writer().writeChanges(*touched_[i].record, changed);
            changed.clear();
        }
    }
}

} // namespace pinmora
