#pragma once

#include "persistence/value.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_set>
#include <utility>
#include <variant>
#include <vector>

namespace pinmora {

class Context;
struct Property;

/// A key of a record, and the value that it does not have now: the one before the step while the
/// step is done, the one after it while it is undone. Taking back and doing again are the same
/// exchange.
struct ValueChange {
    Record *record;
    const Property *property;
    Value other;
    std::uint8_t otherMark; ///< Record::changeMark(), exchanged like the value
};

/// Records that came into the context. No value of theirs is kept beside them: while the step is
/// undone they stand outside the context as they were.
struct Insertions {
    RecordList records;
    std::vector<ValueChange> severed; ///< undone: their links to records that stayed
    std::uint32_t withdrawnAt = 0;    ///< Context::commitCount() when they were taken out
};

/// Records that left the context; they are kept, linked among themselves, until the step is
/// forgotten.
struct Deletions {
    RecordList records;
    std::uint32_t withdrawnAt = 0;
};

/// What one action of a person has done to the records, in its order.
class UndoStep {
public:
    using Changes = std::vector<ValueChange>;
    using Run = std::variant<Changes, Insertions, Deletions>;

    std::string name; ///< as a menu shows it; "" when nobody gave one
    std::uint64_t id = 0;

    bool isEmpty() const { return runs_.empty(); }
    const std::vector<Run> &runs() const { return runs_; }

    void addChange(ValueChange change);
    void addInsertion(Record &record) { last<Insertions>().records.push_back(&record); }
    void addDeletion(Record &record, std::uint32_t commitCount);
    /// Takes the latest change back out if the record has the same value again. Its mark counts for
    /// the record's next change: what drew the mark on may be both of them.
    void dropChangeIfNone(const Record &record, const Property &property);
    /// Whether a key of a record is among the changes. The first question costs a walk over them.
    bool changes(const Record &record, const Property &property) const;
    /// Adds what a later part of the same action has done.
    void append(UndoStep later);

    void undo(Context &context);
    void redo(Context &context);

    /// Destroys the records outside the context that only this step still needs.
    void forgetDone();
    void forgetUndone();

private:
    template <class R>
    R &last() {
        if (runs_.empty() || !std::holds_alternative<R>(runs_.back())) {
            runs_.emplace_back(R());
        }
        return std::get<R>(runs_.back());
    }

    using Key = std::pair<const Record *, const Property *>;
    struct KeyHash {
        std::size_t operator()(const Key &key) const;
    };
    void addKeys(const Changes &changes) const;

    std::vector<Run> runs_;
    /// What the changes are of, once it has been asked for: answers come by the thousand.
    mutable std::optional<std::unordered_set<Key, KeyHash>> keys_;
    const Record *markedBefore_ = nullptr; ///< whose latest change was none
    std::uint8_t markBefore_ = 0;          ///< and the mark that it had then
};

} // namespace pinmora
