#include "shell/camera_memory.h"

#include "persistence/undo_group.h"
#include "platform/defaults.h"
#include "store/image.h"
#include "store/offset.h"

namespace pinmora {

CameraMemory::CameraMemory(Context &context, ObjectController<offset> &offsetObj,
                           Defaults &defaults)
    : context_(context), offsetObj_(offsetObj), defaults_(defaults),
      endOfTurn_([this] { follow(false); }),
      replaced_(offsetObj.onChange([this](const offset *) { begin(); })) {
    context.addObserver(*this, {.entity = &offset::description()});
    context.addObserver(*this, {.entity = &image::description(), .values = false});
    context.undoManager()->addObserver(*this);
    begin();
}

/// What has been set last may not have been followed yet.
CameraMemory::~CameraMemory() {
    if (const offset *const stored = offsetObj_.content()) {
        remember(stored->cameraOffsets(), false);
    }
    context_.undoManager()->removeObserver(*this);
    context_.removeObserver(*this);
}

void CameraMemory::didChange(Record &record, std::string_view) {
    if (&record == offsetObj_.content()) {
        endOfTurn_.ask();
    }
}

/// What another record does not know, nobody has taken away.
void CameraMemory::begin() {
    const offset *const stored = offsetObj_.content();
    known_ = stored ? stored->cameraOffsets() : CameraOffsets();
    broughtIn_.clear();
    endOfTurn_.ask();
}

void CameraMemory::follow(bool byUndo) {
    if (offset *const stored = offsetObj_.content()) {
        remember(stored->cameraOffsets(), byUndo);
        bringIn(*stored);
    }
}

/// Undo writes the whole text of an earlier moment, in which a camera that has been brought in
/// since is missing though no person has taken it away.
void CameraMemory::remember(const CameraOffsets &now, bool byUndo) {
    if (now.all() == known_.all()) {
        return;
    }
    CameraOffsets remembered(defaults_.text(cameraOffsetsKey).value_or(""));
    for (const auto &[camera, parts] : known_.all()) {
        const bool isMissing = !now.find(camera);
        if (isMissing && !(byUndo && broughtIn_.contains(camera))) {
            remembered.erase(camera);
            broughtIn_.erase(camera);
        }
    }
    for (const auto &[camera, parts] : now.all()) {
        const ClockParts *const before = known_.find(camera);
        if (!before || !(*before == parts)) {
            remembered.set(camera, parts);
        }
    }
    known_ = now;
    defaults_.setText(cameraOffsetsKey, remembered.text());
    defaults_.synchronize();
}

void CameraMemory::bringIn(offset &stored) {
    const CameraOffsets remembered(defaults_.text(cameraOffsetsKey).value_or(""));
    if (remembered.all().empty()) {
        return;
    }
    CameraOffsets all = stored.cameraOffsets();
    CameraOffsets added;
    for (const image *photo : context_.records<image>()) {
        const std::string_view camera = photo->camera().view();
        const ClockParts *const parts = remembered.find(camera);
        if (parts && !all.find(camera)) {
            all.set(camera, *parts);
            added.set(camera, *parts);
            broughtIn_.emplace(camera);
        }
    }
    if (added.all().empty()) {
        return;
    }
    {
        const UnregisteredChanges programsOwn(context_);
        known_ = all;
        stored.setCamera_offsets(all.text());
    }
    brought.emit(added);
}

} // namespace pinmora
