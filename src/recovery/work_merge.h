#pragma once

#include "persistence/context.h"
#include "recovery/serial_ranges.h"

#include <cstdint>
#include <vector>

namespace pinmora {

class JournalReplay;

/// Brings what a replay has come to into the library that is open.
///
/// Where the replay passed the state that this library was loaded from, the two have records in
/// common, by serial: what the journal has done since then is done to them, and records that have
/// been deleted here meanwhile are passed over. Otherwise the replay's records take the place of
/// those that were loaded. What has been added here since stays in both cases. There is one record
/// of the camera clock offset afterwards, the replay's where it has one.
class WorkMerge {
public:
    /// The records that were loaded have serials below `loadedEnd`.
    WorkMerge(Context &library, const JournalReplay &replay, std::uint32_t loadedEnd);

    /// To be called once. Values are written raw, between notices.
    void run();

private:
    void findLoaded();
    void removeLoaded(const SerialRanges &removed);
    void insertCopies(const SerialRanges &inserted);
    void writeChanges(const SerialRanges &common);
    void keepOneOffset();
    void write(Record &to, const Property &property, const Record &from);
    Record *counterpartOf(const Record *replayed) const;
    void setCounterpart(const Record &replayed, Record *record);

    Context &library_;
    const JournalReplay &replay_;
    const std::uint32_t loadedEnd_;
    const SerialRanges before_;          ///< what the two had in common
    const SerialRanges now_;             ///< what the replay has at its end
    std::vector<Record *> loaded_;       ///< here, by serial; null where there is none
    std::vector<Record *> counterparts_; ///< here, by the serial of the replay's own context
};

} // namespace pinmora
