#include "outlets/quiet_bar.h"

#include <algorithm>
#include <utility>

namespace pinmora {

void QuietBar::post(BarMessage message) {
    const auto same =
        std::find_if(messages_.begin(), messages_.end(),
                     [&](const BarMessage &other) { return other.subject == message.subject; });
    const bool isAnswer = message.weight == BarWeight::Answer;
    if (same != messages_.end() && same->weight == message.weight && !isAnswer) {
        *same = std::move(message);
    } else {
        if (same != messages_.end()) {
            messages_.erase(same);
        }
        const auto place =
            std::find_if(messages_.begin(), messages_.end(), [&](const BarMessage &other) {
                return isAnswer || other.weight > message.weight;
            });
        messages_.insert(place, std::move(message));
    }
    showNext();
}

void QuietBar::withdraw(const std::string &subject) {
    std::erase_if(messages_, [&](const BarMessage &message) { return message.subject == subject; });
    showNext();
}

void QuietBar::choose(std::size_t index) {
    if (messages_.empty() || index >= messages_.front().choices.size()) {
        return;
    }
    const BarMessage message = takeShown();
    message.choices[index].act();
}

void QuietBar::dismiss() {
    if (messages_.empty()) {
        return;
    }
    const BarMessage message = takeShown();
    if (message.dismissed) {
        message.dismissed();
    }
}

BarMessage QuietBar::takeShown() {
    BarMessage message = std::move(messages_.front());
    messages_.pop_front();
    showNext();
    return message;
}

void QuietBar::showNext() {
    shown_.set(messages_.empty() ? std::nullopt : std::optional(messages_.front()));
    waiting_.set(messages_.empty() ? 0 : messages_.size() - 1);
}

} // namespace pinmora
