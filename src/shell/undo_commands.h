#pragma once

#include "outlets/controls.h"
#include "outlets/signal.h"
#include "persistence/undo_observer.h"

#include <vector>

namespace pinmora {

class Context;
class UndoManager;

/// The commands that take back and do again, with the names of their steps. Half-typed input is
/// taken over first; when it is unfit, nothing happens.
class UndoCommands : private UndoObserver {
public:
    /// The context must have an undo manager and outlive this.
    explicit UndoCommands(Context &context);
    ~UndoCommands() override;
    UndoCommands(const UndoCommands &) = delete;
    UndoCommands &operator=(const UndoCommands &) = delete;

    Button undoItem; ///< "Undo Load GPS Data"; pressing undoes
    Button redoItem;

private:
    void didChangeHistory() override { showHistory(); }
    void showHistory();

    Context &context_;
    UndoManager &manager_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
