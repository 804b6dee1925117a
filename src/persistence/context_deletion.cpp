#include "persistence/context.h"
#include "persistence/record.h"

namespace pinmora {

namespace {

/// The records at the other end of a relationship.
RecordList othersOf(const Record &record, const Property &relationship) {
    const Value value = relationship.primitive(record);
    if (relationship.kind == Property::Kind::ToMany) {
        return value.toRecordList();
    }
    Record *other = value.toRecord();
    return other ? RecordList{other} : RecordList{};
}

} // namespace

void Context::deleteObject(Record &record) {
    if (record.context_ != this) {
        return;
    }
    RecordList doomed;
    collectDoomed(record, doomed);
    for (Record *victim : doomed) {
        tell([&](ChangeObserver &observer) { observer.willDelete(*victim); });
    }
    for (Record *victim : doomed) {
        endRelationships(*victim);
    }
    endOneWayRelationships();
    for (Record *victim : doomed) {
        discard(*victim);
        tell([&](ChangeObserver &observer) { observer.didDelete(*victim); });
    }
}

void Context::collectDoomed(Record &record, RecordList &doomed) {
    if (record.doomed_) {
        return;
    }
    record.doomed_ = true;
    doomed.push_back(&record);
    for (const Property &property : record.entity().properties()) {
        if (property.isRelationship() && property.deleteRule == DeleteRule::Cascade) {
            for (Record *other : othersOf(record, property)) {
                collectDoomed(*other, doomed);
            }
        }
    }
}

void Context::endRelationships(Record &record) {
    for (const Property &property : record.entity().properties()) {
        if (!property.isRelationship()) {
            continue;
        }
        for (Record *other : othersOf(record, property)) {
            if (other->doomed_) {
                continue;
            }
            // The to-one end holds the link; writing it keeps the set at the other end in step.
            const bool holdsLink = property.kind == Property::Kind::ToOne;
            Record &one = holdsLink ? record : *other;
            Record &many = holdsLink ? *other : record;
            const std::string_view oneKey = holdsLink ? property.name : property.inverse;
            const std::string_view manyKey = holdsLink ? property.inverse : property.name;
            Record *const member = &one;
            one.willChangeValueForKey(oneKey);
            if (!manyKey.empty()) {
                many.willChangeValueForKey(manyKey, SetMutation::Minus, {&member, 1});
            }
            one.setPrimitiveValue({}, oneKey);
            if (!manyKey.empty()) {
                many.didChangeValueForKey(manyKey, SetMutation::Minus, {&member, 1});
            }
            one.didChangeValueForKey(oneKey);
        }
    }
}

/// Links that the other end does not know of are found by looking at every record that could hold
/// one.
void Context::endOneWayRelationships() {
    for (const InsertionList &list : lists_) {
        for (const Property &property : list.entity().properties()) {
            if (property.kind != Property::Kind::ToOne || !property.inverse.empty()) {
                continue;
            }
            for (Record *record = list.first(); record; record = InsertionList::next(*record)) {
                const Record *target = property.primitive(*record).toRecord();
                if (target && target->doomed_ && !record->doomed_) {
                    record->willChangeValueForKey(property.name);
                    property.setPrimitive(*record, {});
                    record->didChangeValueForKey(property.name);
                }
            }
        }
    }
}

void Context::discard(Record &record) {
    const bool knownToCommit = record.state_ != RecordState::Inserted;
    if (record.state_ == RecordState::Inserted) {
        --inserted_;
    } else if (record.state_ == RecordState::Updated) {
        --updated_;
    }
    deletedSinceCommit_ += knownToCommit ? 1 : 0;
    listOf(record.entity()).remove(record);
    record.doomed_ = false;
    record.state_ = RecordState::Deleted;
    record.context_ = nullptr;
    deleted_.push_back({std::unique_ptr<Record>(&record), knownToCommit});
}

} // namespace pinmora
