#include "recovery/work_merge.h"

#include "persistence/record.h"
#include "recovery/journal_replay.h"
#include "store/offset.h"

namespace pinmora {

namespace {

template <class Visit>
void forEach(const SerialRanges &serials, Visit visit) {
    for (const auto &[first, last] : serials.rows()) {
        for (std::uint64_t serial = first; serial <= last; ++serial) {
            visit(static_cast<std::uint32_t>(serial));
        }
    }
}

bool isOffset(const Record &record) {
    return &record.entity() == &offset::description();
}

} // namespace

WorkMerge::WorkMerge(Context &library, const JournalReplay &replay, std::uint32_t loadedEnd)
    : library_(library), replay_(replay), loadedEnd_(loadedEnd), before_(replay.atLiveMark()),
      now_(replay.present()), loaded_(loadedEnd) {}

void WorkMerge::run() {
    findLoaded();
    SerialRanges removed = before_;
    if (replay_.hasLiveMark()) {
        removed.remove(now_);
    } else if (loadedEnd_ > 0) {
        removed.add(0, loadedEnd_ - 1);
    }
    SerialRanges inserted = now_;
    inserted.remove(before_);
    forEach(now_.common(before_), [this](std::uint32_t serial) {
        setCounterpart(*replay_.find(serial), serial < loadedEnd_ ? loaded_[serial] : nullptr);
    });
    removeLoaded(removed);
    insertCopies(inserted);
    writeChanges(now_.common(before_));
    keepOneOffset();
}

void WorkMerge::findLoaded() {
    for (const EntityDescription *entity : library_.model().entities()) {
        if (!entity->isStored()) {
            continue;
        }
        for (Record *record : library_.fetch(entity->name())) {
            if (record->serial() < loadedEnd_) {
                loaded_[record->serial()] = record;
            }
        }
    }
}

void WorkMerge::removeLoaded(const SerialRanges &removed) {
    RecordList records;
    forEach(removed, [&](std::uint32_t serial) {
        Record *const record = serial < loadedEnd_ ? loaded_[serial] : nullptr;
        if (record && !isOffset(*record)) {
            records.push_back(record);
        }
    });
    if (!records.empty()) {
        library_.withdraw(records);
    }
}

/// The copies first, then their values, for they lead to each other.
void WorkMerge::insertCopies(const SerialRanges &inserted) {
    forEach(inserted, [this](std::uint32_t serial) {
        const Record &original = *replay_.find(serial);
        setCounterpart(original,
                       &library_.insertNewObjectForEntityForName(original.entity().name()));
    });
    forEach(inserted, [this](std::uint32_t serial) {
        const Record &original = *replay_.find(serial);
        for (const Property &property : original.entity().properties()) {
            if (property.kind == Property::Kind::Attribute ||
                property.kind == Property::Kind::ToOne) {
                write(*counterpartOf(&original), property, original);
            }
        }
    });
}

void WorkMerge::writeChanges(const SerialRanges &common) {
    for (const auto &[serial, property] : replay_.changes()) {
        const Record *original = replay_.find(serial);
        Record *const record = common.contains(serial) ? counterpartOf(original) : nullptr;
        if (record) {
            write(*record, *property, *original);
        }
    }
}

/// A photo that gets a value has a change that is not saved, as if it had been typed.
void WorkMerge::write(Record &to, const Property &property, const Record &from) {
    constexpr std::uint8_t changed = 1;
    Value value = property.primitive(from);
    if (property.kind == Property::Kind::ToOne) {
        library_.writeLink(to, property, counterpartOf(value.toRecord()));
    } else if (value != property.primitive(to)) {
        to.willChangeValueForKey(property.name);
        property.setPrimitive(to, std::move(value));
        to.setChangeMark(changed);
        to.didChangeValueForKey(property.name);
    }
}

/// A start of the program makes a record where it finds none, so both sides can have one.
void WorkMerge::keepOneOffset() {
    const Record *recovered = nullptr;
    forEach(now_, [&](std::uint32_t serial) {
        const Record *original = replay_.find(serial);
        if (isOffset(*original) && counterpartOf(original)) {
            recovered = counterpartOf(original);
        }
    });
    if (recovered) {
        for (Record *record : library_.fetch(offset::description().name())) {
            if (record != recovered) {
                library_.deleteObject(*record);
            }
        }
    }
}

Record *WorkMerge::counterpartOf(const Record *replayed) const {
    return replayed && replayed->serial() < counterparts_.size() ? counterparts_[replayed->serial()]
                                                                 : nullptr;
}

void WorkMerge::setCounterpart(const Record &replayed, Record *record) {
    if (counterparts_.size() <= replayed.serial()) {
        counterparts_.resize(replayed.serial() * std::size_t{2} + 1);
    }
    counterparts_[replayed.serial()] = record;
}

} // namespace pinmora
