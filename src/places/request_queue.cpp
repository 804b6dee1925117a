#include "places/request_queue.h"

#include "platform/http.h"

#include <QNetworkAccessManager>

#include <algorithm>
#include <utility>

namespace pinmora {

namespace {

/// Each with a connection of its own, which stays open for the next one.
constexpr std::size_t mostAtOnce = 4;
constexpr int mostSilences = 3;

} // namespace

RequestQueue::RequestQueue(FindService findService, PlaceLimits limits, Ended ended)
    : findService_(std::move(findService)), limits_(limits), ended_(std::move(ended)),
      endOfTurn_([this] { turn(); }) {}

RequestQueue::~RequestQueue() = default;

RequestQueue::Number RequestQueue::add(PositionTexts position) {
    const Number number = ++lastNumber_;
    positions_.emplace(number, std::move(position));
    added_.push_back(number);
    endOfTurn_.ask();
    return number;
}

void RequestQueue::cancel(Number number) {
    if (positions_.erase(number) == 0 && running_.erase(number) > 0) {
        endOfTurn_.ask(); // its connection is free
    }
}

void RequestQueue::cancelAll() {
    positions_.clear();
    added_.clear();
    waiting_.clear();
    running_.clear();
}

void RequestQueue::turn() {
    over_.clear();
    waiting_.insert(added_.size() <= mostAtOnce ? waiting_.begin() : waiting_.end(), added_.begin(),
                    added_.end());
    added_.clear();
    while (running_.size() < mostAtOnce && !waiting_.empty()) {
        const auto next = positions_.extract(waiting_.front());
        waiting_.pop_front();
        if (!next.empty()) {
            start(next.key(), next.mapped());
        }
    }
}

bool RequestQueue::hasService() {
    if (!url_) {
        service_ = findService_();
        url_ = placeUrl(service_);
        if (url_) {
            if (!network_) { // requests to an earlier service may be under way on it
                network_ = std::make_unique<QNetworkAccessManager>();
            }
            chooseProxy(*network_, *url_);
        }
    }
    return url_.has_value();
}

void RequestQueue::start(Number number, const PositionTexts &position) {
    if (!hasService()) {
        giveUp();
        ended_(number, {});
        return;
    }
    running_.emplace(number,
                     std::make_unique<PlaceRequest>(
                         *network_, *url_, service_, position, limits_,
                         [this, number](const PlaceOutcome &outcome) { end(number, outcome); }));
}

void RequestQueue::end(Number number, const PlaceOutcome &outcome) {
    const auto ended = running_.extract(number);
    over_.push_back(std::move(ended.mapped()));
    endOfTurn_.ask();
    silences_ = outcome.isAnswered ? 0 : silences_ + 1;
    if (silences_ >= mostSilences) {
        giveUp();
    }
    ended_(number, outcome);
}

/// What waits is over; what comes later tries again.
void RequestQueue::giveUp() {
    silences_ = 0;
    const auto dropped = std::exchange(positions_, {});
    waiting_.clear();
    added_.clear();
    for (const auto &[number, position] : dropped) {
        ended_(number, {});
    }
}

} // namespace pinmora
