#include "platform/end_of_turn.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

#include <utility>

namespace pinmora {

namespace {

/// Gets an event of its own once those before it are done with.
class Receiver : public QObject {
public:
    explicit Receiver(std::function<void()> handler) : handler_(std::move(handler)) {}

    bool event(QEvent *event) override {
        if (event->type() != QEvent::User) {
            return QObject::event(event);
        }
        handler_();
        return true;
    }

private:
    std::function<void()> handler_;
};

} // namespace

EndOfTurn::EndOfTurn(std::function<void()> handler)
    : receiver_(std::make_unique<Receiver>([this, turned = std::move(handler)] {
          asked_ = false;
          turned();
      })) {}

EndOfTurn::~EndOfTurn() = default;

void EndOfTurn::ask() {
    if (!std::exchange(asked_, true)) {
        QCoreApplication::postEvent(receiver_.get(), new QEvent(QEvent::User));
    }
}

} // namespace pinmora
