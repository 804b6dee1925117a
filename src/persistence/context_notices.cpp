#include "persistence/context.h"
#include "persistence/record.h"
#include "persistence/undo_manager.h"

#include <algorithm>

namespace pinmora {

void Context::addObserver(ChangeObserver &observer, Interest interest) {
    if (undoManager_) {
        undoManager_->closeAside();
        undoManager_->closePart(); // records that came in unheard are heard from now on
    }
    observers_.push_back({&observer, interest});
    accessHeard_ = accessHeard_ || interest.access;
}

void Context::removeObserver(ChangeObserver &observer) {
    for (Listening &one : observers_) {
        if (one.observer == &observer) {
            one = {};
        }
    }
    if (telling_ == 0) {
        std::erase_if(observers_, [](const Listening &one) { return !one.observer; });
    }
    accessHeard_ = std::any_of(observers_.begin(), observers_.end(), [](const Listening &one) {
        return one.observer && one.interest.access;
    });
}

bool Context::isHeard(const EntityDescription &entity, About about) const {
    return std::any_of(observers_.begin(), observers_.end(),
                       [&](const Listening &one) { return one.wants(entity, about); });
}

void Context::tellAccess(const Record &record, std::string_view key,
                         void (ChangeObserver::*notice)(const Record &, std::string_view)) const {
    tell(record.entity(), About::Access,
         [&](ChangeObserver &observer) { (observer.*notice)(record, key); });
}

void Context::willChange(Record &record, std::string_view key) {
    if (record.unheard_) {
        return;
    }
    if (undoManager_ && !record.fresh_) {
        undoManager_->willChange(record, key);
    }
    if (!isHeard(record.entity(), About::Values)) {
        return;
    }
    const std::vector<std::string_view> dependents = record.entity().dependentsOf(key);
    tell(record.entity(), About::Values, [&](ChangeObserver &observer) {
        observer.willChange(record, key);
        for (std::string_view dependent : dependents) {
            observer.willChange(record, dependent);
        }
    });
}

void Context::didChange(Record &record, std::string_view key) {
    if (record.unheard_) {
        return;
    }
    markUpdated(record);
    if (undoManager_ && !record.fresh_) {
        undoManager_->didChange(record, key);
    }
    if (!isHeard(record.entity(), About::Values)) {
        return;
    }
    const std::vector<std::string_view> dependents = record.entity().dependentsOf(key);
    tell(record.entity(), About::Values, [&](ChangeObserver &observer) {
        for (std::string_view dependent : dependents) {
            observer.didChange(record, dependent);
        }
        observer.didChange(record, key);
    });
}

void Context::willMutateSet(Record &record, std::string_view key, SetMutation mutation,
                            std::span<Record *const> objects) {
    tell(record.entity(), About::Values,
         [&](ChangeObserver &observer) { observer.willMutateSet(record, key, mutation, objects); });
}

void Context::didMutateSet(Record &record, std::string_view key, SetMutation mutation,
                           std::span<Record *const> objects) {
    markUpdated(record);
    tell(record.entity(), About::Values,
         [&](ChangeObserver &observer) { observer.didMutateSet(record, key, mutation, objects); });
}

void Context::markUpdated(Record &record) {
    if (record.state_ == RecordState::Clean) {
        record.state_ = RecordState::Updated;
        ++updated_;
    }
}

} // namespace pinmora
