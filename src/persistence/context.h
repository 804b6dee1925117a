#pragma once

#include "persistence/change_observer.h"
#include "persistence/entity_description.h"
#include "persistence/insertion_list.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace pinmora {

class UndoManager;
struct ValueChange;

/// Where a record stands against the last commit.
enum class RecordState : std::uint8_t { Clean, Inserted, Updated };

/// The records of one entity in the order of insertion, walked without a list of their own. Good
/// until the next insertion or deletion.
template <class R>
class RecordRange {
public:
    class Iterator {
    public:
        explicit Iterator(Record *record) : record_(record) {}
        R *operator*() const { return static_cast<R *>(record_); }
        Iterator &operator++() {
            record_ = InsertionList::next(*record_);
            return *this;
        }
        friend bool operator==(Iterator a, Iterator b) { return a.record_ == b.record_; }

    private:
        Record *record_;
    };

    explicit RecordRange(const InsertionList &list) : list_(list) {}
    Iterator begin() const { return Iterator(list_.first()); }
    Iterator end() const { return Iterator(nullptr); }
    std::size_t size() const { return list_.size(); }

private:
    const InsertionList &list_;
};

/// Owns all records, knows what has changed since the last commit, and tells its observers.
///
/// One thread only. References to deleted records stay good while the undo history knows them, or
/// without one until the next commit. Observers are not owned and must unregister before they go.
/// The records of an entity stand in the order of their serials.
class Context {
public:
    /// The model must outlive the context.
    explicit Context(const Model &model);
    ~Context();
    Context(const Context &) = delete;
    Context &operator=(const Context &) = delete;

    const Model &model() const { return model_; }

    /// A new, empty record of a named entity. Throws UnknownKeyError for a name the model lacks.
    Record &insertNewObjectForEntityForName(std::string_view name);
    /// The same for a record class known when the program is built.
    template <class R>
    R &insert() {
        auto record = std::make_unique<R>();
        R &reference = *record;
        adopt(std::move(record), listOf(R::description()));
        return reference;
    }

    /// Deletes a record, and with it what its relationships' delete rules take along. Relationships
    /// to records that stay are ended at both ends; those among the deleted are left as they are.
    void deleteObject(Record &record);

    /// A record as a file holds it: saved, and nothing to take back. Serials must rise.
    Record &insertStored(const EntityDescription &entity, std::uint32_t serial);
    /// Destroys all records and forgets all changes: what a read that failed has left.
    void clear();

    /// Takes records out and keeps them, without regard to delete rules, as a part of the step
    /// under way. Links to those that stay are ended, which is registered as well.
    void withdraw(const RecordList &records);

    /// What undo stands on; nothing is registered. takeOut() returns the links to records that
    /// stay, which it has ended; putIn() wants the reverse order and the commitCount() of the
    /// taking out.
    std::vector<ValueChange> takeOut(const RecordList &records);
    void putIn(Record &record, std::uint32_t takenOutAt);

    /// Writes a to-one link and keeps the set at the other end in step; both ends give notice.
    void writeLink(Record &one, const Property &toOne, Record *target);

    /// The serial that the next record gets.
    std::uint32_t nextSerial() const { return nextSerial_; }
    /// Skips to a higher one.
    void setNextSerial(std::uint32_t serial) { nextSerial_ = std::max(nextSerial_, serial); }

    /// The records of an entity in the order of insertion.
    RecordList fetch(std::string_view entityName) const;
    template <class R>
    RecordRange<R> records() const {
        return RecordRange<R>(listOf(R::description()));
    }
    template <class R>
    std::vector<R *> fetch() const {
        std::vector<R *> fetched;
        fetched.reserve(records<R>().size());
        for (R *record : records<R>()) {
            fetched.push_back(record);
        }
        return fetched;
    }
    template <class R>
    std::size_t count() const {
        return listOf(R::description()).size();
    }

    bool hasChanges() const { return inserted_ + updated_ + deletedSinceCommit_ > 0; }
    /// Takes the present state as the saved one. Deleted records are destroyed unless the undo
    /// history still needs them.
    void commitChanges();
    /// How often that has been done.
    std::uint32_t commitCount() const { return commitCount_; }

    /// Null when nothing can be taken back.
    UndoManager *undoManager() const { return undoManager_; }

    /// Has half-typed input taken over, by whoever holds some; false when that refuses.
    bool commitEditing() { return !endEditing_ || endEditing_(); }
    void setEndEditing(std::function<bool()> endEditing) { endEditing_ = std::move(endEditing); }

    /// Observers may come and go also while they are told: one that is added hears the next notice,
    /// one that is removed hears no more.
    void addObserver(ChangeObserver &observer, Interest interest = {});
    void removeObserver(ChangeObserver &observer);
    bool isObserved() const { return !observers_.empty(); }

    void willAccess(const Record &record, std::string_view key) const {
        if (accessHeard_) {
            tellAccess(record, key, &ChangeObserver::willAccess);
        }
    }
    void didAccess(const Record &record, std::string_view key) const {
        if (accessHeard_) {
            tellAccess(record, key, &ChangeObserver::didAccess);
        }
    }
    void willChange(Record &, std::string_view key);
    void didChange(Record &, std::string_view key);
    void willMutateSet(Record &, std::string_view key, SetMutation, std::span<Record *const>);
    void didMutateSet(Record &, std::string_view key, SetMutation, std::span<Record *const>);

private:
    friend class UndoManager;

    InsertionList &listOf(const EntityDescription &entity);
    const InsertionList &listOf(const EntityDescription &entity) const;
    void adopt(std::unique_ptr<Record> record, InsertionList &list);
    void enter(Record &record, InsertionList &list, std::uint32_t serial);
    void collectDoomed(Record &record, RecordList &doomed);
    template <class Visit>
    void forEachLinkToStaying(Record &record, Visit visit);
    template <class Visit>
    void forEachOneWayLinkToDoomed(Visit visit);
    void discard(Record &record);
    void markUpdated(Record &record);
    void removeDoomed(const RecordList &doomed);
    void leave(Record &record);
    enum class About { Life, Values, Access };
    bool isHeard(const EntityDescription &entity, About about) const;
    template <class Notice>
    void tell(const EntityDescription &entity, About about, Notice notice) const;
    void tellAccess(const Record &, std::string_view key,
                    void (ChangeObserver::*notice)(const Record &, std::string_view)) const;
    struct Listening {
        ChangeObserver *observer; ///< null: removed while being told
        Interest interest;
        bool wants(const EntityDescription &entity, About about) const {
            return observer && (!interest.entity || interest.entity == &entity) &&
                   (about == About::Life ||
                    (about == About::Values ? interest.values : interest.access));
        }
    };

    const Model &model_;
    std::vector<InsertionList> lists_;             ///< one per entity of the model
    std::vector<std::unique_ptr<Record>> deleted_; ///< those that no undo history keeps
    mutable std::vector<Listening> observers_;
    mutable int telling_ = 0;  ///< notices under way, one in another
    bool accessHeard_ = false; ///< whether an observer wants to hear of readings
    std::function<bool()> endEditing_;
    std::size_t inserted_ = 0;
    std::size_t updated_ = 0;
    std::size_t deletedSinceCommit_ = 0; ///< of the records that the last commit knew
    std::uint32_t commitCount_ = 0;
    std::uint32_t nextSerial_ = 1;
    UndoManager *undoManager_ = nullptr;
};

template <class Notice>
void Context::tell(const EntityDescription &entity, About about, Notice notice) const {
    ++telling_;
    const std::size_t present = observers_.size();
    for (std::size_t i = 0; i < present; ++i) {
        if (observers_[i].wants(entity, about)) {
            notice(*observers_[i].observer);
        }
    }
    if (--telling_ == 0) {
        std::erase_if(observers_, [](const Listening &one) { return !one.observer; });
    }
}

} // namespace pinmora
