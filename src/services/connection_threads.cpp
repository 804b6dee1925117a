#include "services/connection_threads.h"

#include <system_error>
#include <utility>

namespace pinmora {

void ConnectionThreads::enqueue(std::function<void()> task) {
    bool oneMore = false;
    {
        const std::lock_guard lock(mutex_);
        tasks_.push_back(std::move(task));
        oneMore = tasks_.size() > idle_ && threads_.size() < most_;
    }
    if (oneMore) {
        try {
            threads_.emplace_back([this] { work(); });
        } catch (const std::system_error &) {
            // No thread to be had: those there are come to it in their turn.
        }
    }
    changed_.notify_one();
}

void ConnectionThreads::shutdown() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    for (std::thread &thread : threads_) {
        thread.join();
    }
    threads_.clear();
}

void ConnectionThreads::work() {
    std::unique_lock lock(mutex_);
    for (;;) {
        ++idle_;
        changed_.wait(lock, [this] { return ending_ || !tasks_.empty(); });
        --idle_;
        if (tasks_.empty()) {
            return;
        }
        const std::function<void()> task = std::move(tasks_.front());
        tasks_.pop_front();
        lock.unlock();
        task();
        lock.lock();
    }
}

} // namespace pinmora
