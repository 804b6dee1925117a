#include "persistence/context.h"
#include "persistence/record.h"

#include <algorithm>

namespace pinmora {

void Context::removeObserver(ChangeObserver &observer) {
    if (telling_ == 0) {
        std::erase(observers_, &observer);
    } else {
        std::replace(observers_.begin(), observers_.end(), &observer,
                     static_cast<ChangeObserver *>(nullptr));
    }
}

void Context::tellAccess(const Record &record, std::string_view key,
                         void (ChangeObserver::*notice)(const Record &, std::string_view)) const {
    tell([&](ChangeObserver &observer) { (observer.*notice)(record, key); });
}

void Context::tellWillChange(Record &record, std::string_view key) {
    const std::vector<std::string_view> dependents = record.entity().dependentsOf(key);
    tell([&](ChangeObserver &observer) {
        observer.willChange(record, key);
        for (std::string_view dependent : dependents) {
            observer.willChange(record, dependent);
        }
    });
}

void Context::tellDidChange(Record &record, std::string_view key) {
    const std::vector<std::string_view> dependents = record.entity().dependentsOf(key);
    tell([&](ChangeObserver &observer) {
        for (std::string_view dependent : dependents) {
            observer.didChange(record, dependent);
        }
        observer.didChange(record, key);
    });
}

void Context::didChange(Record &record, std::string_view key) {
    markUpdated(record);
    if (isObserved()) {
        tellDidChange(record, key);
    }
}

void Context::willMutateSet(Record &record, std::string_view key, SetMutation mutation,
                            std::span<Record *const> objects) {
    if (isObserved()) {
        tell([&](ChangeObserver &observer) {
            observer.willMutateSet(record, key, mutation, objects);
        });
    }
}

void Context::didMutateSet(Record &record, std::string_view key, SetMutation mutation,
                           std::span<Record *const> objects) {
    markUpdated(record);
    if (isObserved()) {
        tell([&](ChangeObserver &observer) {
            observer.didMutateSet(record, key, mutation, objects);
        });
    }
}

void Context::markUpdated(Record &record) {
    if (record.state_ == RecordState::Clean) {
        record.state_ = RecordState::Updated;
        ++updated_;
    }
}

} // namespace pinmora
