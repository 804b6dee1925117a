#pragma once

#include <functional>
#include <future>
#include <memory>

class QObject;

namespace pinmora {

/// One piece of work at a time on a thread of its own, for the thread that this object lives on.
class BackgroundJob {
public:
    /// What is to be done with the outcome, on the thread of this object, which it must not
    /// destroy.
    using Outcome = std::function<void()>;

    BackgroundJob();
    /// Waits for the work; its outcome is dropped.
    ~BackgroundJob();
    BackgroundJob(const BackgroundJob &) = delete;
    BackgroundJob &operator=(const BackgroundJob &) = delete;

    bool isRunning() const { return running_.valid(); }
    /// Begins; none may be running. The event loop deals with the outcome. `work` must not throw.
    void start(std::function<Outcome()> work);
    /// Waits for the work that is running and deals with its outcome at once.
    void finish();

private:
    std::unique_ptr<QObject> receiver_; ///< events to it die with it
    std::future<Outcome> running_;      ///< waits when it is destroyed, while the receiver is there
    unsigned started_ = 0;
};

} // namespace pinmora
