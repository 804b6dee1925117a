#include "shell/background_job.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

#include <utility>

namespace pinmora {

namespace {

/// The work of that number is done, or about to be.
class WorkDone : public QEvent {
public:
    explicit WorkDone(unsigned number) : QEvent(User), number_(number) {}
    unsigned number() const { return number_; }

private:
    unsigned number_;
};

class Receiver : public QObject {
public:
    explicit Receiver(std::function<void(unsigned)> handler) : handler_(std::move(handler)) {}

    bool event(QEvent *event) override {
        const auto *done = dynamic_cast<const WorkDone *>(event);
        if (done == nullptr) {
            return QObject::event(event);
        }
        handler_(done->number());
        return true;
    }

private:
    std::function<void(unsigned)> handler_;
};

} // namespace

BackgroundJob::BackgroundJob()
    : receiver_(std::make_unique<Receiver>([this](unsigned number) {
          if (number == started_ && isRunning()) { // else finish() was quicker
              finish();
          }
      })) {}

BackgroundJob::~BackgroundJob() = default;

void BackgroundJob::start(std::function<Outcome()> work) {
    running_ = std::async(std::launch::async, [this, number = ++started_, task = std::move(work)] {
        Outcome outcome = task();
        QCoreApplication::postEvent(receiver_.get(), new WorkDone(number));
        return outcome;
    });
}

void BackgroundJob::finish() {
    const Outcome outcome = running_.get();
    outcome();
}

} // namespace pinmora
