#pragma once

#include <QTimer>

#include <chrono>
#include <functional>

namespace pinmora {

/// Brings something up to date after changes, in the next turn of the event loop. Where changes do
/// not stop, because long work has itself drawn now and then, it takes at most a tenth of the time.
class Unhurried {
public:
    explicit Unhurried(std::function<void()> update);

    void ask();
    /// At once, if it has been asked for.
    void finish();

private:
    void update();

    std::function<void()> update_;
    QTimer timer_;
    std::chrono::steady_clock::time_point next_{}; ///< not before
};

} // namespace pinmora
