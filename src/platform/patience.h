#pragma once

#include "platform/child_process.h"
#include "platform/process.h"

#include <chrono>

namespace pinmora {

/// Watches over the time of a child process, for who waits for it.
class Patience {
public:
    /// Both must outlive it. The time begins now.
    Patience(const ChildProcess &child, const ProcessLimits &limits);

    /// Ends the child when its time is over: first with a signal that it may heed, at a later call
    /// by force. How long to wait at most until the next call.
    std::chrono::milliseconds enforce();

    /// Whether the child had to be ended.
    bool isOver() const { return signals_ > 0; }

private:
    using Clock = std::chrono::steady_clock;

    const ChildProcess &child_;
    const ProcessLimits &limits_;
    std::chrono::milliseconds patience_;
    Clock::time_point deadline_;
    Clock::time_point nextLook_;
    int signals_ = 0;
};

} // namespace pinmora
