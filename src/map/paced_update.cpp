#include "map/paced_update.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace pinmora {

PacedUpdate::PacedUpdate(std::function<void()> update)
    : update_(std::move(update)), timer_(std::make_unique<QTimer>()) {
    timer_->setSingleShot(true);
    QObject::connect(timer_.get(), &QTimer::timeout, timer_.get(), [this] { this->update(); });
}

PacedUpdate::~PacedUpdate() = default;

void PacedUpdate::ask() {
    if (!timer_->isActive()) {
        timer_->start(std::max(std::chrono::ceil<std::chrono::milliseconds>(next_ - Clock::now()),
                               std::chrono::milliseconds::zero()));
    }
}

void PacedUpdate::update() {
    const Clock::time_point begin = Clock::now();
    update_();
    const Clock::time_point end = Clock::now();
    next_ = end + 9 * (end - begin);
}

} // namespace pinmora
