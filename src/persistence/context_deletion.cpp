#include "persistence/context.h"
#include "persistence/record.h"
#include "persistence/undo_manager.h"

#include <cassert>

namespace pinmora {

/// Calls with each link between a doomed record and one that stays, at the end that holds it.
template <class Visit>
void Context::forEachLinkToStaying(Record &record, Visit visit) {
    for (const Property &property : record.entity().properties()) {
        if (property.kind == Property::Kind::ToOne) {
            Record *const other = property.primitive(record).toRecord();
            if (other && !other->doomed_) {
                visit(record, property, other);
            }
        } else if (property.kind == Property::Kind::ToMany) {
            for (Record *other : property.primitive(record).toRecordList()) {
                if (!other->doomed_) {
                    visit(*other, other->entity().property(property.inverse), &record);
                }
            }
        }
    }
}

/// Links that the other end does not know of are found by looking at every record that could hold
/// one.
template <class Visit>
void Context::forEachOneWayLinkToDoomed(Visit visit) {
    for (const InsertionList &list : lists_) {
        for (const Property &property : list.entity().properties()) {
            if (property.kind != Property::Kind::ToOne || !property.inverse.empty()) {
                continue;
            }
            for (Record *record = list.first(); record; record = InsertionList::next(*record)) {
                Record *const target = property.primitive(*record).toRecord();
                if (target && target->doomed_ && !record->doomed_) {
                    visit(*record, property, target);
                }
            }
        }
    }
}

void Context::deleteObject(Record &record) {
    if (record.context_ != this) {
        return;
    }
    RecordList doomed;
    collectDoomed(record, doomed);
    removeDoomed(doomed);
}

void Context::withdraw(const RecordList &records) {
    for (Record *record : records) {
        record->doomed_ = true;
    }
    removeDoomed(records);
}

void Context::collectDoomed(Record &record, RecordList &doomed) {
    if (record.doomed_) {
        return;
    }
    record.doomed_ = true;
    doomed.push_back(&record);
    for (const Property &property : record.entity().properties()) {
        if (property.deleteRule != DeleteRule::Cascade) {
            continue;
        }
        if (property.kind == Property::Kind::ToMany) {
            for (Record *other : property.primitive(record).toRecordList()) {
                collectDoomed(*other, doomed);
            }
        } else if (Record *other = property.primitive(record).toRecord()) {
            collectDoomed(*other, doomed);
        }
    }
}

void Context::removeDoomed(const RecordList &doomed) {
    for (Record *victim : doomed) {
        tell(victim->entity(), About::Life,
             [&](ChangeObserver &observer) { observer.willDelete(*victim); });
    }
    const auto end = [this](Record &one, const Property &toOne, Record *) {
        writeLink(one, toOne, nullptr);
    };
    for (Record *victim : doomed) {
        forEachLinkToStaying(*victim, end);
    }
    forEachOneWayLinkToDoomed(end);
    for (Record *victim : doomed) {
        discard(*victim);
        tell(victim->entity(), About::Life,
             [&](ChangeObserver &observer) { observer.didDelete(*victim); });
    }
}

void Context::writeLink(Record &one, const Property &toOne, Record *target) {
    Record *const old = toOne.primitive(one).toRecord();
    if (old == target) {
        return;
    }
    const std::string_view inverse = toOne.inverse;
    Record *const member = &one;
    one.willChangeValueForKey(toOne.name);
    if (old && !inverse.empty()) {
        old->willChangeValueForKey(inverse, SetMutation::Minus, {&member, 1});
    }
    if (target && !inverse.empty()) {
        target->willChangeValueForKey(inverse, SetMutation::Union, {&member, 1});
    }
    toOne.setPrimitive(one, Value(target));
    if (target && !inverse.empty()) {
        target->didChangeValueForKey(inverse, SetMutation::Union, {&member, 1});
    }
    if (old && !inverse.empty()) {
        old->didChangeValueForKey(inverse, SetMutation::Minus, {&member, 1});
    }
    one.didChangeValueForKey(toOne.name);
}

/// Takes a record out of its list and out of what counts as changed.
void Context::leave(Record &record) {
    switch (record.state_) {
    case RecordState::Inserted:
        --inserted_;
        break;
    case RecordState::Updated:
        --updated_;
        ++deletedSinceCommit_;
        break;
    case RecordState::Clean:
        ++deletedSinceCommit_;
        break;
    }
    listOf(record.entity()).remove(record);
    record.doomed_ = false;
    record.outside_ = true;
    record.context_ = nullptr;
}

/// The history may stand on a record that goes without being registered, so it goes with it.
void Context::discard(Record &record) {
    leave(record);
    if (undoManager_ && record.entity().isStored()) {
        if (!undoManager_->registers()) {
            undoManager_->forget();
        }
        undoManager_->didDelete(record);
        if (undoManager_->registers()) {
            return;
        }
    }
    deleted_.emplace_back(&record);
}

std::vector<ValueChange> Context::takeOut(const RecordList &records) {
    std::vector<ValueChange> severed;
    const auto sever = [&](Record &one, const Property &toOne, Record *target) {
        severed.push_back({&one, &toOne, Value(target), one.changeMark()});
        writeLink(one, toOne, nullptr);
    };
    for (Record *record : records) {
        record->doomed_ = true;
    }
    for (Record *record : records) {
        forEachLinkToStaying(*record, sever);
    }
    forEachOneWayLinkToDoomed(sever);
    for (Record *record : records) {
        tell(record->entity(), About::Life,
             [&](ChangeObserver &observer) { observer.willDelete(*record); });
        leave(*record);
        tell(record->entity(), About::Life,
             [&](ChangeObserver &observer) { observer.didDelete(*record); });
    }
    return severed;
}

void Context::putIn(Record &record, std::uint32_t takenOutAt) {
    if (takenOutAt != commitCount_) {
        record.state_ = RecordState::Inserted; // that commit saved a library without it
    } else if (record.state_ != RecordState::Inserted) {
        --deletedSinceCommit_;
    }
    if (record.state_ == RecordState::Clean) {
        record.state_ = RecordState::Updated;
    }
    (record.state_ == RecordState::Inserted ? inserted_ : updated_) += 1;
    record.outside_ = false;
    record.context_ = this;
    listOf(record.entity()).putBack(record);
    tell(record.entity(), About::Life,
         [&](ChangeObserver &observer) { observer.didInsert(record); });
}

} // namespace pinmora
