#include "persistence/context.h"
#include "persistence/undo_manager.h"
#include "platform/input_file.h"
#include "recovery/recovery_recorder.h"
#include "store/track_part.h"

#include <iterator>
#include <utility>

namespace pinmora {

void RecoveryRecorder::beginImport(const ImportFacts &facts) {
    context_.undoManager()->closePart();
    importing_ = begun_ && !paused_ && prepareToWrite();
    importBegin_ = context_.nextSerial();
    pointsBefore_ = context_.count<track_part>();
    if (importing_) {
        encoder_.beginImport(importBegin_);
        journal_->append({{FrameKind::ImportBegin, payloadOf(facts)}});
    }
}

std::string RecoveryRecorder::spareBlock() {
    return importing_ ? journal_->spareBlock() : std::string(inputBlockSize, '\0');
}

void RecoveryRecorder::importBytes(std::string bytes) {
    if (!importing_) {
        return;
    }
    std::vector<Frame> frames;
    while (bytes.size() > framePayloadLimit) {
        frames.push_back({FrameKind::ImportBytes, bytes.substr(0, framePayloadLimit)});
        bytes.erase(0, framePayloadLimit);
    }
    frames.push_back({FrameKind::ImportBytes, std::move(bytes)});
    journal_->append(std::move(frames));
}

void RecoveryRecorder::importEntity(std::string_view name,
                                    const std::optional<std::string> &content) {
    if (importing_) {
        journal_->append({{FrameKind::ImportEntity, entityPayload(name, content)}});
    }
}

/// What was told while the log was read comes behind it; what is still to tell, in a step of its
/// own, is little: the points are told of.
void RecoveryRecorder::endImport() {
    if (!std::exchange(importing_, false)) {
        return;
    }
    const ImportResult result{
        importBegin_, context_.nextSerial() - importBegin_,
        static_cast<std::uint32_t>(context_.count<track_part>() - pointsBefore_)};
    encoder_.endImport(result.records);
    std::vector<Frame> frames{{FrameKind::ImportEnd, payloadOf(result)}};
    if (result.records > 0) {
        frames.push_back({FrameKind::StepEnd, std::string(personsStep)});
    }
    std::move(heldBack_.begin(), heldBack_.end(), std::back_inserter(frames));
    heldBack_.clear();
    journal_->append(std::move(frames));
    context_.undoManager()->closePart();
    encoder_.forgetImport();
}

} // namespace pinmora
