#include "persistence/undo_step.h"

#include "persistence/context.h"
#include "persistence/record.h"
#include "persistence/undo_manager.h"

#include <algorithm>
#include <functional>
#include <span>

namespace pinmora {

namespace {

void exchange(Context &context, ValueChange &change) {
    Record &record = *change.record;
    const Property &property = *change.property;
    Value now = property.primitive(record);
    context.undoManager()->expectExchange(record);
    if (property.kind == Property::Kind::ToOne) {
        context.writeLink(record, property, change.other.toRecord());
    } else {
        record.willChangeValueForKey(property.name);
        property.setPrimitive(record, std::move(change.other));
        record.didChangeValueForKey(property.name);
    }
    change.other = std::move(now);
    const std::uint8_t mark = record.changeMark();
    record.setChangeMark(change.otherMark);
    change.otherMark = mark;
}

void undo(Context &context, UndoStep::Changes &changes) {
    std::for_each(changes.rbegin(), changes.rend(),
                  [&](ValueChange &change) { exchange(context, change); });
}

void redo(Context &context, UndoStep::Changes &changes) {
    for (ValueChange &change : changes) {
        exchange(context, change);
    }
}

void undo(Context &context, Insertions &inserted) {
    std::reverse(inserted.records.begin(), inserted.records.end());
    inserted.severed = context.takeOut(inserted.records);
    std::reverse(inserted.records.begin(), inserted.records.end());
    inserted.withdrawnAt = context.commitCount();
}

void redo(Context &context, Insertions &inserted) {
    for (Record *record : inserted.records) {
        context.putIn(*record, inserted.withdrawnAt);
    }
    std::for_each(inserted.severed.rbegin(), inserted.severed.rend(), [&](const ValueChange &link) {
        context.writeLink(*link.record, *link.property, link.other.toRecord());
    });
    inserted.severed.clear();
}

void undo(Context &context, Deletions &deleted) {
    std::for_each(deleted.records.rbegin(), deleted.records.rend(),
                  [&](Record *record) { context.putIn(*record, deleted.withdrawnAt); });
}

/// The links to records that stay have been ended by changes of the same step.
void redo(Context &context, Deletions &deleted) {
    context.takeOut(deleted.records);
    deleted.withdrawnAt = context.commitCount();
}

/// Those runs name a record more than once where it went and came back within the step.
template <class Held>
void destroyHeld(std::vector<UndoStep::Run> &runs) {
    RecordList outside;
    std::size_t lists = 0;
    for (const UndoStep::Run &run : runs) {
        if (const auto *held = std::get_if<Held>(&run)) {
            std::copy_if(held->records.begin(), held->records.end(), std::back_inserter(outside),
                         [](const Record *record) { return record->isDeleted(); });
            ++lists;
        }
    }
    if (lists > 1) {
        std::sort(outside.begin(), outside.end());
        outside.erase(std::unique(outside.begin(), outside.end()), outside.end());
    }
    for (const Record *record : outside) {
        delete record;
    }
    runs.clear();
}

} // namespace

void UndoStep::addChange(ValueChange change) {
    if (markedBefore_ == change.record) {
        change.otherMark = markBefore_;
    }
    markedBefore_ = nullptr;
    if (keys_) {
        keys_->insert({change.record, change.property});
    }
    last<Changes>().push_back(std::move(change));
}

void UndoStep::addDeletion(Record &record, std::uint32_t commitCount) {
    auto &deletions = last<Deletions>();
    deletions.records.push_back(&record);
    deletions.withdrawnAt = commitCount;
}

void UndoStep::dropChangeIfNone(const Record &record, const Property &property) {
    auto *changes = runs_.empty() ? nullptr : std::get_if<Changes>(&runs_.back());
    if (!changes) {
        return;
    }
    const ValueChange &latest = changes->back();
    if (latest.record == &record && latest.property == &property &&
        latest.other == property.primitive(record)) {
        markedBefore_ = &record;
        markBefore_ = latest.otherMark;
        keys_.reset();
        changes->pop_back();
        if (changes->empty()) {
            runs_.pop_back();
        }
    }
}

std::size_t UndoStep::KeyHash::operator()(const Key &key) const {
    const std::size_t record = std::hash<const Record *>()(key.first);
    return record * 31 + std::hash<const Property *>()(key.second);
}

void UndoStep::addKeys(const Changes &changes) const {
    for (const ValueChange &change : changes) {
        keys_->insert({change.record, change.property});
    }
}

bool UndoStep::changes(const Record &record, const Property &property) const {
    if (!keys_) {
        keys_.emplace();
        for (const Run &run : runs_) {
            if (const auto *changes = std::get_if<Changes>(&run)) {
                addKeys(*changes);
            }
        }
    }
    return keys_->contains({&record, &property});
}

void UndoStep::append(UndoStep later) {
    for (const Run &run : later.runs_) {
        if (const auto *changes = std::get_if<Changes>(&run); changes && keys_) {
            addKeys(*changes);
        }
    }
    if (runs_.empty()) {
        runs_ = std::move(later.runs_);
        return;
    }
    for (Run &run : later.runs_) {
        runs_.push_back(std::move(run));
    }
}

void UndoStep::undo(Context &context) {
    std::for_each(runs_.rbegin(), runs_.rend(), [&](Run &run) {
        std::visit([&](auto &part) { pinmora::undo(context, part); }, run);
    });
}

void UndoStep::redo(Context &context) {
    for (Run &run : runs_) {
        std::visit([&](auto &part) { pinmora::redo(context, part); }, run);
    }
}

void UndoStep::forgetDone() {
    destroyHeld<Deletions>(runs_);
}

void UndoStep::forgetUndone() {
    destroyHeld<Insertions>(runs_);
}

} // namespace pinmora
