#include "persistence/context.h"

#include "persistence/record.h"
#include "persistence/undo_manager.h"

#include <cassert>
#include <limits>
#include <stdexcept>

namespace pinmora {

Context::Context(const Model &model) : model_(model) {
    for (const EntityDescription *entity : model.entities()) {
        lists_.emplace_back(*entity);
    }
}

Context::~Context() {
    clear();
}

void Context::clear() {
    if (undoManager_) {
        undoManager_->removeAllActions();
    }
    for (InsertionList &list : lists_) {
        while (Record *record = list.first()) {
            list.remove(*record);
            delete record;
        }
    }
    deleted_.clear();
    inserted_ = updated_ = deletedSinceCommit_ = 0;
    nextSerial_ = 1;
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

void Context::enter(Record &record, InsertionList &list, std::uint32_t serial) {
    assert(serial >= nextSerial_);
    if (serial == std::numeric_limits<std::uint32_t>::max()) {
        throw std::length_error("a library cannot number any more records");
    }
    record.context_ = this;
    record.serial_ = serial;
    nextSerial_ = serial + 1;
    list.append(record);
}

void Context::adopt(std::unique_ptr<Record> record, InsertionList &list) {
    Record &adopted = *record.release();
    enter(adopted, list, nextSerial_);
    adopted.state_ = RecordState::Inserted;
    ++inserted_;
    if (undoManager_) {
        undoManager_->didInsert(adopted);
        adopted.unheard_ = adopted.fresh_ && !isHeard(adopted.entity(), About::Values);
    }
    tell(adopted.entity(), About::Life,
         [&](ChangeObserver &observer) { observer.didInsert(adopted); });
}

Record &Context::insertStored(const EntityDescription &entity, std::uint32_t serial) {
    Record &record = *entity.make().release();
    enter(record, listOf(entity), serial);
    tell(record.entity(), About::Life,
         [&](ChangeObserver &observer) { observer.didInsert(record); });
    return record;
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

void Context::commitChanges() {
    if (undoManager_) {
        undoManager_->closeStep();
        undoManager_->closePart(); // within a group: what comes counts from this commit
    }
    for (const InsertionList &list : lists_) {
        for (Record *record = list.first(); record; record = InsertionList::next(*record)) {
            record->state_ = RecordState::Clean;
        }
    }
    deleted_.clear();
    inserted_ = updated_ = deletedSinceCommit_ = 0;
    ++commitCount_;
}

} // namespace pinmora
