#pragma once

#include "persistence/change_observer.h"
#include "persistence/entity_description.h"
#include "persistence/insertion_list.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace pinmora {

/// Where a record stands against the last commit.
enum class RecordState : std::uint8_t { Clean, Inserted, Updated, Deleted };

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
/// One thread only. References to records stay good until the commit after their deletion (or the
/// end of the context). Observers are not owned and must unregister before they go.
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
    RecordList insertedObjects() const { return inState(RecordState::Inserted); }
    RecordList updatedObjects() const { return inState(RecordState::Updated); }
    /// The deleted records that the last commit knew.
    RecordList deletedObjects() const;
    /// Takes the present state as the saved one; deleted records are destroyed.
    void commitChanges();

    /// Has half-typed input taken over, by whoever holds some; false when that refuses.
    bool commitEditing() { return !endEditing_ || endEditing_(); }
    void setEndEditing(std::function<bool()> endEditing) { endEditing_ = std::move(endEditing); }

    /// Observers may come and go also while they are told: one that is added hears the next notice,
    /// one that is removed hears no more.
    void addObserver(ChangeObserver &observer) { observers_.push_back(&observer); }
    void removeObserver(ChangeObserver &observer);
    bool isObserved() const { return !observers_.empty(); }

    void willAccess(const Record &record, std::string_view key) const {
        if (isObserved()) {
            tellAccess(record, key, &ChangeObserver::willAccess);
        }
    }
    void didAccess(const Record &record, std::string_view key) const {
        if (isObserved()) {
            tellAccess(record, key, &ChangeObserver::didAccess);
        }
    }
    void willChange(Record &record, std::string_view key) {
        if (isObserved()) {
            tellWillChange(record, key);
        }
    }
    void didChange(Record &record, std::string_view key);
    void willMutateSet(Record &, std::string_view key, SetMutation, std::span<Record *const>);
    void didMutateSet(Record &, std::string_view key, SetMutation, std::span<Record *const>);

private:
    struct Deleted {
        std::unique_ptr<Record> record;
        bool knownToCommit;
    };

    InsertionList &listOf(const EntityDescription &entity);
    const InsertionList &listOf(const EntityDescription &entity) const;
    void adopt(std::unique_ptr<Record> record, InsertionList &list);
    void collectDoomed(Record &record, RecordList &doomed);
    void endRelationships(Record &record);
    void endOneWayRelationships();
    void discard(Record &record);
    void markUpdated(Record &record);
    RecordList inState(RecordState state) const;
    template <class Notice>
    void tell(Notice notice) const;
    void tellAccess(const Record &, std::string_view key,
                    void (ChangeObserver::*notice)(const Record &, std::string_view)) const;
    void tellWillChange(Record &, std::string_view key);
    void tellDidChange(Record &, std::string_view key);

    const Model &model_;
    std::vector<InsertionList> lists_; ///< one per entity of the model
    std::vector<Deleted> deleted_;
    mutable std::vector<ChangeObserver *> observers_; ///< null: removed while being told
    mutable int telling_ = 0;                         ///< notices under way, one in another
    std::function<bool()> endEditing_;
    std::size_t inserted_ = 0;
    std::size_t updated_ = 0;
    std::size_t deletedSinceCommit_ = 0;
};

template <class Notice>
void Context::tell(Notice notice) const {
    ++telling_;
    const std::size_t present = observers_.size();
    for (std::size_t i = 0; i < present; ++i) {
        if (ChangeObserver *observer = observers_[i]) {
            notice(*observer);
        }
    }
    if (--telling_ == 0) {
        std::erase(observers_, nullptr);
    }
}

} // namespace pinmora
