#pragma once

#include "persistence/undo_manager.h"

namespace pinmora::test {

/// Counts what it is told.
struct Listener : UndoObserver {
    explicit Listener(UndoManager &undo) : manager(undo) { manager.addObserver(*this); }
    Listener(const Listener &) = delete;
    Listener &operator=(const Listener &) = delete;
    ~Listener() override { manager.removeObserver(*this); }
    void didRecord(const UndoStep &, bool registered) override { ++(registered ? parts : asides); }
    void didChangeHistory() override { ++histories; }
    int parts = 0;
    int asides = 0;
    int histories = 0;
    UndoManager &manager;
};

} // namespace pinmora::test
