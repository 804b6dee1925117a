#pragma once

#include "outlets/object_controller.h"
#include "platform/end_of_turn.h"

namespace pinmora {

class Context;
class offset;

/// Keeps the controller of the clock offset on the library's record of it: bringing back unsaved
/// work, and taking that back, puts another one in its place.
class OffsetInForce {
public:
    /// Both must outlive it.
    OffsetInForce(Context &context, ObjectController<offset> &offsetObj);

private:
    void find();

    Context &context_;
    ObjectController<offset> &offsetObj_;
    EndOfTurn endOfTurn_;
    Connection lost_;
};

} // namespace pinmora
