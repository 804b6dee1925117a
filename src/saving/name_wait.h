#pragma once

#include "outlets/observable.h"
#include "platform/end_of_turn.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>

class QTimer;

namespace pinmora {

/// Waits until the place names that are on their way have arrived, or patience is over.
class NameWait {
public:
    /// `arrived` is called for each that does, with the number still to come; `over` once, by the
    /// event loop, and may not destroy this object. `awaited` must outlive it.
    NameWait(Observable<std::size_t> &awaited, std::chrono::milliseconds patience,
             std::function<void(std::size_t)> arrived, std::function<void()> over);
    ~NameWait();
    NameWait(const NameWait &) = delete;
    NameWait &operator=(const NameWait &) = delete;

private:
    void end();

    std::function<void()> over_;
    bool isOver_ = false;
    EndOfTurn allThere_; ///< an answer is being written while its arrival is told
    std::unique_ptr<QTimer> patience_;
    Connection arriving_;
};

} // namespace pinmora
