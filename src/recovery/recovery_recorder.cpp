#include "recovery/recovery_recorder.h"

#include "persistence/context.h"
#include "persistence/record.h"
#include "persistence/undo_manager.h"
#include "persistence/xml_store.h"
#include "platform/translation.h"
#include "store/image.h"
#include "store/offset.h"
#include "store/track_part.h"

#include <algorithm>
#include <iterator>

namespace pinmora {

using Clock = std::chrono::steady_clock;

namespace {

/// Whether there is more than the empty record of the clock offset that every library has.
bool hasContent(const Context &context) {
    for (const EntityDescription *entity : context.model().entities()) {
        if (!entity->isStored()) {
            continue;
        }
        for (const Record *record : context.fetch(entity->name())) {
            const auto &keys = entity->properties();
            if (entity != &offset::description() ||
                std::any_of(keys.begin(), keys.end(), [&](const Property &property) {
                    return property.kind == Property::Kind::Attribute &&
                           property.primitive(*record).hasValue();
                })) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

RecoveryRecorder::RecoveryRecorder(Context &context, const RecoveryFolder &folder)
    : context_(context), folder_(folder), encoder_(context) {
    context_.undoManager()->addObserver(*this);
}

RecoveryRecorder::~RecoveryRecorder() {
    context_.undoManager()->removeObserver(*this);
}

void RecoveryRecorder::begin(std::string_view storeState) {
    clear();
    encoder_.takeStock();
    state_ = storeState;
    begun_ = true;
}

void RecoveryRecorder::clear() {
    if (journal_) {
        journal_->abandon();
        journal_.reset();
        folder_.current().remove(folder_.files());
    }
    heldBack_.clear();
    begun_ = hasBase_ = needsBase_ = hasFailed_ = importing_ = false;
}

void RecoveryRecorder::saved(std::string_view storeState) {
    context_.undoManager()->closeStep();
    if (isWriting()) {
        journal_->append({{FrameKind::Saved, std::string(storeState)}});
        journal_->flush();
    }
}

bool RecoveryRecorder::flush() {
    context_.undoManager()->closeStep();
    return !needsBase_ && (!journal_ || journal_->flush());
}

std::optional<std::string> RecoveryRecorder::writeBase() {
    context_.undoManager()->closeStep();
    return replaceByBase();
}

std::size_t RecoveryRecorder::moment() {
    context_.undoManager()->closeStep();
    return steps_;
}

void RecoveryRecorder::record(const UndoStep &step, bool registered) {
    steps_ += registered ? 1 : 0;
    if (!begun_ || paused_) {
        return;
    }
    const bool waits = importing_ || (!registered && !journal_);
    if (!waits && !prepareToWrite()) {
        return;
    }
    // A base that had to be written just now holds the step already, and little is left of it.
    std::vector<Frame> frames = encoder_.encode(step);
    if (frames.empty()) {
        return;
    }
    frames.push_back({FrameKind::StepEnd, std::string(registered ? personsStep : programsStep)});
    if (waits) {
        std::move(frames.begin(), frames.end(), std::back_inserter(heldBack_));
    } else {
        journal_->append(std::move(frames));
    }
}

/// Sees to it that there is a journal that takes what comes next; false while there cannot be.
bool RecoveryRecorder::prepareToWrite() {
    if (isWriting()) {
        return true;
    }
    if (!journal_ && !needsBase_) {
        const std::error_code error = startJournal();
        if (error) {
            fail(error.message());
        }
        return !error;
    }
    if (journal_ && !needsBase_) {
        fail(journal_->error().message());
        return false;
    }
    if (Clock::now() < nextAttempt_) {
        return false;
    }
    const std::optional<std::string> error = replaceByBase();
    if (error) {
        fail(*error);
    }
    return !error;
}

std::error_code RecoveryRecorder::startJournal() {
    if (const std::error_code error = folder_.makeCurrent()) {
        return error;
    }
    journal_ = std::make_unique<JournalThread>(
        folder_.current().journal(), payloadOf(JournalStart{.state = state_}), folder_.files());
    if (!heldBack_.empty()) {
        journal_->append(std::exchange(heldBack_, {}));
    }
    return {};
}

std::optional<std::string> RecoveryRecorder::replaceByBase() {
    if (journal_) {
        journal_->flush(); // its name is not to be taken from under it
    } else if (const std::error_code error = folder_.makeCurrent()) {
        return error.message();
    }
    const WorkFolder current = folder_.current();
    const std::string state = makeStoreState();
    if (const auto error = XmlStore(current.base(state), folder_.files()).write(context_, state)) {
        return error->message();
    }
    const JournalStart start{state, static_cast<std::uint32_t>(context_.count<image>()),
                             static_cast<std::uint32_t>(context_.count<track_part>()),
                             hasContent(context_)};
    auto journal =
        std::make_unique<JournalThread>(current.journal(), payloadOf(start), folder_.files());
    const bool isOnDisk = journal->flush();
    if (!isOnDisk && !journal->isInPlace()) {
        folder_.files().remove(current.base(state));
        return journal->error().message();
    }
    if (journal_) {
        journal_->abandon();
    }
    journal_ = std::move(journal);
    if (!isOnDisk) { // after a power cut there may be the old journal, with its base
        return journal_->error().message();
    }
    current.removeOtherBases(state, folder_.files());
    encoder_.takeStock();
    heldBack_.clear();
    hasBase_ = true;
    needsBase_ = hasFailed_ = false;
    return std::nullopt;
}

void RecoveryRecorder::fail(const std::string &reason) {
    needsBase_ = true;
    nextAttempt_ = Clock::now() + retryInterval_;
    if (!std::exchange(hasFailed_, true)) {
        failed.emit(filled(translated("recovery", "Unsaved work cannot be kept on the disk: %1"),
                           {reason}));
    }
}

} // namespace pinmora
