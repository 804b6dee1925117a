#include "ui/unhurried.h"

#include "ui/sheet_redraw.h"

#include <utility>

namespace pinmora {

using Clock = std::chrono::steady_clock;

namespace {

constexpr std::chrono::milliseconds lookAgain{50};

} // namespace

Unhurried::Unhurried(std::function<void()> update) : update_(std::move(update)) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
        if (isRedrawingDuringWork() && Clock::now() < next_) {
            timer_.start(lookAgain);
        } else {
            this->update();
        }
    });
}

void Unhurried::ask() {
    if (!timer_.isActive()) {
        timer_.start(0);
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
