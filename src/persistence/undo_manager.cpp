#include "persistence/undo_manager.h"

#include "persistence/context.h"
#include "persistence/record.h"
#include "platform/end_of_turn.h"
#include "platform/scoped_flag.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace pinmora {

UndoManager::UndoManager(Context &context)
    : context_(context), endOfTurn_(std::make_unique<EndOfTurn>([this] {
          if (depth_ == 0) {
              closeStep();
          } else {
              closePart();
          }
      })) {
    context_.undoManager_ = this;
}

UndoManager::~UndoManager() {
    removeAllActions();
    context_.undoManager_ = nullptr;
}

template <class Notice>
void UndoManager::tell(Notice notice) const {
    const std::vector<UndoObserver *> present = observers_;
    for (UndoObserver *observer : present) {
        if (std::find(observers_.begin(), observers_.end(), observer) != observers_.end()) {
            notice(*observer);
        }
    }
}

void UndoManager::beginGroup(std::string_view name) {
    if (depth_ == 0) {
        closeStep();
        open_.name = name;
    }
    ++depth_;
}

void UndoManager::endGroup() {
    assert(depth_ > 0);
    if (--depth_ == 0) {
        finish();
    }
}

void UndoManager::disableRegistration() {
    ++disabled_;
}

/// Told at once, so that a record that came in meanwhile has its later changes registered.
void UndoManager::enableRegistration() {
    if (--disabled_ == 0) {
        closeAside();
    }
}

void UndoManager::closeStep() {
    if (depth_ == 0) {
        finish();
    }
}

/// The part under way, in which changes are registered from now on.
UndoStep &UndoManager::part() {
    endOfTurn_->ask();
    return registers() ? part_ : aside_;
}

void UndoManager::willChange(Record &record, std::string_view key) {
    const Property *property = record.entity().find(key);
    const bool isHeld = property && (property->kind == Property::Kind::Attribute ||
                                     property->kind == Property::Kind::ToOne);
    if (std::exchange(exchanged_, nullptr) == &record) {
        return;
    }
    if (isHeld && record.entity().isStored()) {
        part().addChange({&record, property, property->primitive(record), record.changeMark()});
    }
}

void UndoManager::didChange(const Record &record, std::string_view key) {
    if (const Property *property = record.entity().find(key)) {
        (registers() ? part_ : aside_).dropChangeIfNone(record, *property);
    }
}

void UndoManager::didInsert(Record &record) {
    if (record.entity().isStored()) {
        part().addInsertion(record);
        record.fresh_ = true;
    }
}

void UndoManager::didDelete(Record &record) {
    part().addDeletion(record, context_.commitCount());
}

/// From now on the changes of the records that have come in are told one by one.
void UndoManager::endFreshness(const UndoStep &told) {
    for (const UndoStep::Run &run : told.runs()) {
        if (const auto *inserted = std::get_if<Insertions>(&run)) {
            for (Record *record : inserted->records) {
                record->fresh_ = record->unheard_ = false;
            }
        }
    }
}

/// Tells of the part under way and adds it to its step.
void UndoManager::closePart() {
    if (part_.isEmpty()) {
        part_ = {};
        return;
    }
    UndoStep told = std::exchange(part_, {});
    endFreshness(told);
    tell([&](UndoObserver &observer) { observer.didRecord(told, true); });
    if (joined_ != 0) {
        join(told);
    } else {
        open_.append(std::move(told));
    }
}

void UndoManager::closeAside() {
    if (aside_.isEmpty() || exchanging_) {
        return;
    }
    UndoStep told = std::exchange(aside_, {});
    endFreshness(told);
    tell([&](UndoObserver &observer) { observer.didRecord(told, false); });
}

/// Makes a step of what is open; what had been undone can then not be done again.
void UndoManager::finish() {
    if (exchanging_) {
        return;
    }
    closePart();
    closeAside();
    if (open_.isEmpty()) {
        if (open_.id != 0) {
            cameToNothing_.push_back(open_.id);
        }
        open_ = {};
        return;
    }
    for (UndoStep &step : undone_) {
        step.forgetUndone();
    }
    undone_.clear();
    if (open_.id == 0) {
        open_.id = nextId_++;
    }
    done_.push_back(std::exchange(open_, {}));
    tell([](UndoObserver &observer) { observer.didChangeHistory(); });
}

bool UndoManager::canUndo() const {
    return !done_.empty() || !open_.isEmpty() || !part_.isEmpty();
}

void UndoManager::undo() {
    exchange(done_, undone_, &UndoStep::undo, &UndoObserver::didUndo);
}

void UndoManager::redo() {
    exchange(undone_, done_, &UndoStep::redo, &UndoObserver::didRedo);
}

void UndoManager::exchange(std::vector<UndoStep> &from, std::vector<UndoStep> &to,
                           void (UndoStep::*act)(Context &),
                           void (UndoObserver::*notice)(const UndoStep &)) {
    closeStep();
    if (depth_ > 0 || from.empty()) {
        return;
    }
    to.push_back(std::move(from.back()));
    from.pop_back();
    {
        const ScopedFlag exchanging(exchanging_);
        (to.back().*act)(context_);
    }
    tell([&](UndoObserver &observer) { (observer.*notice)(to.back()); });
    closeAside();
    if (std::exchange(forgets_, false)) {
        removeAllActions();
    }
    tell([](UndoObserver &observer) { observer.didChangeHistory(); });
}

std::string UndoManager::undoActionName() const {
    if (!open_.isEmpty() || !part_.isEmpty()) {
        return open_.name;
    }
    return done_.empty() ? std::string() : done_.back().name;
}

std::string UndoManager::redoActionName() const {
    return canRedo() ? undone_.back().name : std::string();
}

/// Something that is not registered has gone, and the history may stand on it.
void UndoManager::forget() {
    if (exchanging_) {
        forgets_ = true;
    } else {
        removeAllActions();
    }
}

void UndoManager::removeAllActions() {
    finish();
    for (UndoStep &step : undone_) {
        step.forgetUndone();
    }
    undone_.clear();
    for (UndoStep &step : done_) {
        step.forgetDone();
    }
    done_.clear();
    done_.shrink_to_fit();
    tell([](UndoObserver &observer) { observer.didChangeHistory(); });
}

std::uint64_t UndoManager::currentStep() {
    if (open_.id == 0) {
        open_.id = nextId_++;
    }
    return open_.id;
}

/// Its place among the steps that are done; their number when it is none of them.
std::size_t UndoManager::stepToJoin(std::uint64_t id) const {
    const auto step = std::find_if(done_.rbegin(), done_.rend(),
                                   [id](const UndoStep &one) { return one.id == id; });
    return step == done_.rend() ? done_.size() : static_cast<std::size_t>(done_.rend() - step) - 1;
}

bool UndoManager::beginJoining(std::uint64_t step) {
    assert(joined_ == 0);
    closePart();
    const auto nothing = std::find(cameToNothing_.begin(), cameToNothing_.end(), step);
    if (open_.id == step || nothing != cameToNothing_.end()) {
        return true;
    }
    if (stepToJoin(step) == done_.size()) {
        return false;
    }
    joined_ = step;
    return true;
}

/// Each value goes to the last step that has written it, or to the one that is joined.
void UndoManager::join(const UndoStep &told) {
    const std::size_t joined = stepToJoin(joined_);
    for (const UndoStep::Run &run : told.runs()) {
        const auto *changes = std::get_if<UndoStep::Changes>(&run);
        assert(changes);
        for (const ValueChange &change : *changes) {
            std::size_t at = done_.size();
            bool isOpen = open_.changes(*change.record, *change.property);
            while (!isOpen && --at > joined &&
                   !done_[at].changes(*change.record, *change.property)) {
            }
            (isOpen ? open_ : done_[at]).addChange(change);
        }
    }
}

void UndoManager::endJoining() {
    closePart();
    joined_ = 0;
}

} // namespace pinmora
