#pragma once

#include <chrono>
#include <functional>
#include <memory>

class QTimer;

namespace pinmora {

/// Brings something up to date after changes, in the next turn of the event loop. Where changes do
/// not stop, it takes at most a tenth of the time.
class PacedUpdate {
public:
    explicit PacedUpdate(std::function<void()> update);
    ~PacedUpdate();
    PacedUpdate(const PacedUpdate &) = delete;
    PacedUpdate &operator=(const PacedUpdate &) = delete;

    void ask();

private:
    using Clock = std::chrono::steady_clock;

    void update();

    std::function<void()> update_;
    std::unique_ptr<QTimer> timer_;
    Clock::time_point next_{}; ///< not before
};

} // namespace pinmora
