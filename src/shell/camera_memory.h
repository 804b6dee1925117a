#pragma once

#include "outlets/object_controller.h"
#include "outlets/signal.h"
#include "persistence/change_observer.h"
#include "persistence/undo_observer.h"
#include "platform/end_of_turn.h"
#include "store/camera_offsets.h"

#include <set>
#include <string>
#include <string_view>

namespace pinmora {

class Context;
class Defaults;
class offset;

/// The setting that holds the remembered clocks, as CameraOffsets writes them.
inline constexpr std::string_view cameraOffsetsKey = "cameraOffsets";

/// Remembers in the settings which cameras have a clock of their own, and how far each is off, and
/// brings that into a library as photos of such a camera come.
///
/// A clock that a person takes away is forgotten, one that is given or set is remembered, also when
/// undo does it. Cameras without photos here stay remembered.
class CameraMemory : private ChangeObserver, private UndoObserver {
public:
    /// The context must have an undo manager already; all must outlive it.
    CameraMemory(Context &context, ObjectController<offset> &offsetObj, Defaults &defaults);
    ~CameraMemory() override;
    CameraMemory(const CameraMemory &) = delete;
    CameraMemory &operator=(const CameraMemory &) = delete;

    /// These clocks have been brought in.
    Signal<const CameraOffsets &> brought;

private:
    void didChange(Record &record, std::string_view key) override;
    void didInsert(Record &) override { endOfTurn_.ask(); }
    void didUndo(const UndoStep &) override { follow(true); }
    void didRedo(const UndoStep &) override { follow(true); }

    void begin();
    void follow(bool byUndo);
    void remember(const CameraOffsets &now, bool byUndo);
    void bringIn(offset &stored);

    Context &context_;
    ObjectController<offset> &offsetObj_;
    Defaults &defaults_;
    CameraOffsets known_;             ///< of the record, as far as it has been followed
    std::set<std::string> broughtIn_; ///< and nobody has taken away since
    EndOfTurn endOfTurn_;
    Connection replaced_;
};

} // namespace pinmora
