#pragma once

#include "persistence/context.h"
#include "persistence/undo_step.h"
#include "recovery/journal_format.h"
#include "recovery/serial_ranges.h"

#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace pinmora {

/// Tells in frames what a step has come to. It knows which records a reader of the recovery file
/// has at each moment, so that a record's coming and going is a few bytes unless the file has never
/// had its values; what has changed is told by the values that the records have now.
class StepEncoder {
public:
    /// The context must outlive it.
    explicit StepEncoder(const Context &context) : context_(context) {}

    /// From now on the file has the records that are in the context, and no others.
    void takeStock();
    /// The records from this serial on get into the file in another form, until endImport() tells
    /// how many they are. The step that made them is encoded between endImport() and
    /// forgetImport().
    void beginImport(std::uint32_t firstSerial);
    void endImport(std::uint32_t count);
    void forgetImport() { importCount_ = 0; }

    /// What is different now for a reader of the file, after a step or its taking back. Empty when
    /// nothing is.
    std::vector<Frame> encode(const UndoStep &step);

private:
    void look(const UndoStep &step);
    void look(const RecordList &records);
    std::size_t importedRun(const RecordList &records, std::size_t from) const;
    void encodeFresh(const SerialRanges &fresh, std::vector<Frame> &frames) const;
    void encodeChanges(const SerialRanges &fresh, std::vector<Frame> &frames);

    const Context &context_;
    SerialRanges present_;          ///< the file has them in the library
    SerialRanges removed_;          ///< the file has them, and that they went
    std::uint32_t importBegin_ = 0; ///< the first serial of the latest import
    std::uint32_t importCount_ = 0; ///< how many records it has made, until that is forgotten

    // Of the step being encoded.
    SerialRanges inside_;
    SerialRanges outside_;
    RecordList named_; ///< that came or went
    struct TouchedKey {
        const Record *record;
        const Property *property;
    };
    std::vector<TouchedKey> touched_;
};

} // namespace pinmora
