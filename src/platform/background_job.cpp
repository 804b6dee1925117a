#include "platform/background_job.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
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

/// Abandoned work that still runs.
std::atomic<int> abandoned = 0;

/// Called before what is static goes, which abandoned work may be using.
void endWithoutCleaningUp(int status, void *) {
    if (abandoned > 0) {
        std::fflush(stdout);
        std::_Exit(status);
    }
}

} // namespace

struct BackgroundJob::Run {
    std::mutex mutex;
    std::condition_variable ended;
    bool hasEnded = false;
    Outcome outcome;
    QObject *receiver = nullptr; ///< null: the work has been abandoned
    unsigned number = 0;

    void end(Outcome result) {
        const std::lock_guard lock(mutex);
        hasEnded = true;
        if (receiver) {
            outcome = std::move(result);
            QCoreApplication::postEvent(receiver, new WorkDone(number));
        }
        ended.notify_all();
    }

    /// Whether the work has ended within that time; if not, nobody will hear of it.
    bool endOrAbandon(std::chrono::milliseconds patience) {
        std::unique_lock lock(mutex);
        if (ended.wait_for(lock, patience, [this] { return hasEnded; })) {
            return true;
        }
        receiver = nullptr;
        ++abandoned;
        return false;
    }

    bool isAbandoned() {
        const std::lock_guard lock(mutex);
        return receiver == nullptr;
    }
};

BackgroundJob::BackgroundJob()
    : receiver_(std::make_unique<Receiver>([this](unsigned number) {
          if (number == started_ && isRunning()) { // else finish() was quicker
              finish();
          }
      })) {}

BackgroundJob::~BackgroundJob() {
    constexpr std::chrono::milliseconds patience{300};
    if (!run_) {
        return;
    }
    if (run_->endOrAbandon(patience)) {
        thread_.join();
    } else {
        thread_.detach();
        ::on_exit(endWithoutCleaningUp, nullptr);
    }
}

void BackgroundJob::start(std::function<Outcome()> work) {
    run_ = std::make_shared<Run>();
    run_->receiver = receiver_.get();
    run_->number = ++started_;
    thread_ = std::thread([run = run_, task = std::move(work)]() mutable {
        run->end(std::exchange(task, nullptr)());
        const bool isAbandoned = run->isAbandoned();
        run.reset();
        if (isAbandoned) {
            --abandoned;
        }
    });
}

void BackgroundJob::finish() {
    thread_.join();
    const std::shared_ptr<Run> run = std::exchange(run_, nullptr);
    run->outcome();
}

} // namespace pinmora
