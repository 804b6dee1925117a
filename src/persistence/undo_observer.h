#pragma once

namespace pinmora {

class UndoStep;

/// Hears of what has been done, in parts as small as a turn of the event loop, and of what has been
/// taken back or done again. The recovery file and the menus stand on this.
///
/// Values are to be read from the records: a step knows only what they are not.
class UndoObserver {
public:
    virtual ~UndoObserver() = default;

    /// A part of a step, or (not `registered`) something that no person did and that cannot be
    /// taken back. Records named in it may be outside the context again.
    virtual void didRecord(const UndoStep & /*part*/, bool /*registered*/) {}
    virtual void didUndo(const UndoStep &) {}
    virtual void didRedo(const UndoStep &) {}
    /// What can be taken back or done again, or its name, may be another one.
    virtual void didChangeHistory() {}
};

} // namespace pinmora
