#include "ui/unhurried.h"

#include <algorithm>
#include <utility>

namespace pinmora {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

Unhurried::Unhurried(std::function<void()> update) : update_(std::move(update)) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { this->update(); });
}

void Unhurried::ask() {
    if (!timer_.isActive()) {
        timer_.start(
            std::max(std::chrono::ceil<milliseconds>(next_ - Clock::now()), milliseconds::zero()));
    }
}

void Unhurried::finish() {
    if (timer_.isActive()) {
        timer_.stop();
        update();
    }
}

void Unhurried::update() {
    const Clock::time_point begin = Clock::now();
    update_();
    const Clock::time_point end = Clock::now();
    next_ = end + 9 * (end - begin);
}

} // namespace pinmora
