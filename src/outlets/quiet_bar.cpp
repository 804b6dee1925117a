#include "outlets/quiet_bar.h"

#include <algorithm>
#include <utility>

namespace pinmora {

void QuietBar::post(BarMessage message) {
    const auto same = std::find_if(waiting_.begin(), waiting_.end(), [&](const BarMessage &other) {
        return other.subject == message.subject;
    });
    if (message.isAnswer) {
        if (same != waiting_.end()) {
            waiting_.erase(same);
        }
        waiting_.push_front(std::move(message));
    } else if (same == waiting_.end()) {
        waiting_.push_back(std::move(message));
    } else {
        *same = std::move(message);
    }
    showNext();
}

void QuietBar::withdraw(const std::string &subject) {
    std::erase_if(waiting_, [&](const BarMessage &message) { return message.subject == subject; });
    showNext();
}

void QuietBar::choose(std::size_t index) {
    if (waiting_.empty() || index >= waiting_.front().choices.size()) {
        return;
    }
    const BarMessage message = takeShown();
    message.choices[index].act();
}

void QuietBar::dismiss() {
    if (waiting_.empty()) {
        return;
    }
    const BarMessage message = takeShown();
    if (message.dismissed) {
        message.dismissed();
    }
}

BarMessage QuietBar::takeShown() {
    BarMessage message = std::move(waiting_.front());
    waiting_.pop_front();
    showNext();
    return message;
}

void QuietBar::showNext() {
    shown_.set(waiting_.empty() ? std::nullopt : std::optional(waiting_.front()));
}

} // namespace pinmora
