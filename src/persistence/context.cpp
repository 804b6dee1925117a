#include "persistence/context.h"

#include "persistence/record.h"

#include <algorithm>

namespace pinmora {

Context::Context(const Model &model) : model_(model) {
    for (const EntityDescription *entity : model.entities()) {
        lists_.emplace_back(*entity);
    }
}

Context::~Context() {
    for (InsertionList &list : lists_) {
        while (Record *record = list.first()) {
            list.remove(*record);
            delete record;
        }
    }
}

InsertionList &Context::listOf(const EntityDescription &entity) {
    return const_cast<InsertionList &>(std::as_const(*this).listOf(entity));
}

const InsertionList &Context::listOf(const EntityDescription &entity) const {
    for (const InsertionList &list : lists_) {
        if (&list.entity() == &entity) {
            return list;
        }
    }
    throw UnknownKeyError("model", entity.name());
}

Record &Context::insertNewObjectForEntityForName(std::string_view name) {
    const EntityDescription &entity = model_.entity(name);
    std::unique_ptr<Record> record = entity.make();
    Record &reference = *record;
    adopt(std::move(record), listOf(entity));
    return reference;
}

void Context::adopt(std::unique_ptr<Record> record, InsertionList &list) {
    Record &adopted = *record.release();
    adopted.context_ = this;
    adopted.state_ = RecordState::Inserted;
    list.append(adopted);
    ++inserted_;
    if (isObserved()) {
        tell([&](ChangeObserver &observer) { observer.didInsert(adopted); });
    }
}

RecordList Context::fetch(std::string_view entityName) const {
    RecordList records;
    const InsertionList &list = listOf(model_.entity(entityName));
    records.reserve(list.size());
    for (Record *record = list.first(); record; record = InsertionList::next(*record)) {
        records.push_back(record);
    }
    return records;
}

RecordList Context::deletedObjects() const {
    RecordList records;
    for (const Deleted &entry : deleted_) {
        if (entry.knownToCommit) {
            records.push_back(entry.record.get());
        }
    }
    return records;
}

void Context::commitChanges() {
    for (const InsertionList &list : lists_) {
        for (Record *record = list.first(); record; record = InsertionList::next(*record)) {
            record->state_ = RecordState::Clean;
        }
    }
    deleted_.clear();
    inserted_ = updated_ = deletedSinceCommit_ = 0;
}

RecordList Context::inState(RecordState state) const {
    RecordList records;
    for (const InsertionList &list : lists_) {
        for (Record *record = list.first(); record; record = InsertionList::next(*record)) {
            if (record->state_ == state) {
                records.push_back(record);
            }
        }
    }
    return records;
}

} // namespace pinmora
