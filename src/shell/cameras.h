#pragma once

#include "outlets/controls.h"
#include "outlets/object_controller.h"
#include "outlets/signal.h"
#include "outlets/window.h"
#include "persistence/change_observer.h"
#include "platform/date.h"
#include "platform/end_of_turn.h"
#include "store/camera_offsets.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace pinmora {

class ClockOffset;
class Context;
class offset;

/// One of the cameras that the loaded photos were taken with.
struct CameraInUse {
    std::string camera; ///< as the photos tell it; "" for those that do not
    std::string name;   ///< what it is called: with its serial number where two are called the same
    std::size_t photos = 0;
    std::optional<Date> first{}; ///< by the camera's clock; nothing where no photo tells a time
    std::optional<Date> last{};
    bool hasOwnClock = false;
    ClockParts clock{}; ///< the one that its photos go by

    friend bool operator==(const CameraInUse &, const CameraInUse &) = default;
};

/// The cameras of the loaded photos, and which of them have a clock of their own.
class Cameras : private ChangeObserver {
public:
    /// All must outlive it.
    Cameras(Context &context, ObjectController<offset> &offsetObj, ClockOffset &clockOffset,
            WorkingWindow workingWindow);
    ~Cameras() override;
    Cameras(const Cameras &) = delete;
    Cameras &operator=(const Cameras &) = delete;

    /// Nothing happens where there are no photos, or while what is half typed is unfit.
    void open();
    void close();
    /// Each is a step of undo.
    void setHasOwnClock(const std::string &camera, bool own);
    void setClock(const std::string &camera, const ClockParts &parts);

    Sheet sheet;
    Button closeButton;
    /// By their names, those that are not told last; kept up to date while the sheet is up.
    Observable<std::vector<CameraInUse>> cameras;

private:
    void didChange(Record &, std::string_view) override { endOfTurn_.ask(); }
    void didInsert(Record &) override { endOfTurn_.ask(); }
    void didDelete(Record &) override { endOfTurn_.ask(); }
    std::vector<CameraInUse> gather() const;

    Context &context_;
    ObjectController<offset> &offsetObj_;
    ClockOffset &clockOffset_;
    WorkingWindow workingWindow_;
    EndOfTurn endOfTurn_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
