#include "platform/end_of_turn.h"

#include <QMetaObject>
#include <QObject>

namespace pinmora {

EndOfTurn::EndOfTurn(std::function<void()> handler)
    : handler_(std::move(handler)), receiver_(std::make_unique<QObject>()) {}

EndOfTurn::~EndOfTurn() = default;

void EndOfTurn::ask() {
    if (asked_) {
        return;
    }
    asked_ = true;
    const auto turned = [this] {
        asked_ = false;
        handler_();
    };
    QMetaObject::invokeMethod(receiver_.get(), turned, Qt::QueuedConnection);
}

} // namespace pinmora
