#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include <httplib.h>

namespace pinmora {

/// A thread for each connection that is open, started when it is needed and kept for the next one.
/// A connection takes its thread for as long as the client keeps it; with a fixed number of
/// threads a few idle clients would keep the next one waiting.
class ConnectionThreads : public httplib::TaskQueue {
public:
    explicit ConnectionThreads(std::size_t most) : most_(most) {}
    ~ConnectionThreads() override = default;
    ConnectionThreads(const ConnectionThreads &) = delete;
    ConnectionThreads &operator=(const ConnectionThreads &) = delete;

    void enqueue(std::function<void()> task) override;
    /// Does what is queued, then ends the threads.
    void shutdown() override;

private:
    void work();

    const std::size_t most_;
    std::vector<std::thread> threads_; ///< only of the thread that enqueues
    std::mutex mutex_;                 ///< of all below
    std::condition_variable changed_;
    std::deque<std::function<void()>> tasks_;
    std::size_t idle_ = 0;
    bool ending_ = false;
};

} // namespace pinmora
