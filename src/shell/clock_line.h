#pragma once

#include "outlets/array_controller.h"
#include "outlets/controls.h"
#include "outlets/object_controller.h"
#include "persistence/change_observer.h"
#include "platform/end_of_turn.h"

#include <string_view>
#include <vector>

namespace pinmora {

class ClockSaying;
class Context;
class image;
class offset;

/// The line below the clock: what is said of it, and, while no photo is selected, that there are
/// cameras for which that does not hold.
class ClockLine : private ChangeObserver {
public:
    /// All must outlive it.
    ClockLine(Context &context, ObjectController<offset> &offsetObj,
              ArrayController<image> &pictureArray, ClockSaying &saying);
    ~ClockLine() override;
    ClockLine(const ClockLine &) = delete;
    ClockLine &operator=(const ClockLine &) = delete;

    /// "The camera was 3 min slow.", "Cameras have clocks of their own: GPS > Cameras"
    TextField words;

private:
    void didChange(Record &, std::string_view) override { endOfTurn_.ask(); }
    void didInsert(Record &) override { endOfTurn_.ask(); }
    void didDelete(Record &) override { endOfTurn_.ask(); }
    bool someHaveTheirOwn() const;
    void say();

    Context &context_;
    ObjectController<offset> &offsetObj_;
    ArrayController<image> &pictureArray_;
    ClockSaying &saying_;
    EndOfTurn endOfTurn_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
