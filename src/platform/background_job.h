#pragma once

#include <functional>
#include <memory>
#include <thread>

class QObject;

namespace pinmora {

/// One piece of work at a time on a thread of its own, for the thread that this object lives on.
class BackgroundJob {
public:
    /// What is to be done with the outcome, on the thread of this object, which it must not
    /// destroy.
    using Outcome = std::function<void()>;

    BackgroundJob();
    /// Drops the outcome. Work that does not end in a moment is abandoned, as no file on a network
    /// that hangs may keep the program from ending: it goes on with what `work` holds by itself, or
    /// ends with the process.
    ~BackgroundJob();
    BackgroundJob(const BackgroundJob &) = delete;
    BackgroundJob &operator=(const BackgroundJob &) = delete;

    bool isRunning() const { return run_ != nullptr; }
    /// Begins; none may be running. The event loop deals with the outcome. `work` must not throw,
    /// nor use anything that may go before it ends.
    void start(std::function<Outcome()> work);
    /// Waits for the work that is running and deals with its outcome at once.
    void finish();

private:
    struct Run;

    std::unique_ptr<QObject> receiver_; ///< events to it die with it
    std::shared_ptr<Run> run_;          ///< what the two threads share; null: none is running
    std::thread thread_;
    unsigned started_ = 0;
};

} // namespace pinmora
