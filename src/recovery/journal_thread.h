#pragma once

#include "platform/file_system.h"
#include "recovery/journal_format.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <filesystem>
#include <mutex>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>
#include <vector>

namespace pinmora {

/// Writes a new journal on a thread of its own: what is appended is handed to the system at once
/// and is on the disk about a second later. Whoever appends never waits and never hears of an
/// error; the first one ends the writing, and error() tells it from then on.
class JournalThread {
public:
    /// Replaces a journal of that name by a new one, whole with its start on the disk, or leaves
    /// it. `files` must outlive the thread and stand being called from it.
    JournalThread(std::filesystem::path journal, std::string_view start, FileSystem &files);
    JournalThread(const JournalThread &) = delete;
    JournalThread &operator=(const JournalThread &) = delete;
    /// Waits until all is on the disk, unless it was abandoned.
    ~JournalThread();

    void append(std::vector<Frame> frames);
    /// Waits until all that has been given is on the disk; false when it will not be.
    bool flush();
    /// Lets go of what has not been written yet; nothing more will be.
    void abandon();
    std::error_code error() const;
    /// Whether the name stands for this journal, also after an error; known after flush().
    bool isInPlace() const;

    /// Room for inputBlockSize bytes, from a block that has been written where there is one.
    std::string spareBlock();

private:
    void run();
    std::error_code create();
    void waitForWork(std::unique_lock<std::mutex> &lock,
                     std::chrono::steady_clock::time_point sync);
    std::error_code write(const std::vector<Frame> &frames);
    std::error_code flushBytes();
    void keepSpares(std::vector<Frame> &frames);

    const std::filesystem::path journal_;
    FileSystem &files_;
    FileDescriptor file_; ///< the thread's
    std::string bytes_;   ///< the thread's: frames as they go to the file, first the start

    mutable std::mutex mutex_;
    std::condition_variable wake_;   ///< the thread's
    std::condition_variable synced_; ///< for who waits in flush()
    std::vector<Frame> queue_;
    std::vector<std::string> spares_;
    std::uint64_t given_ = 1;   ///< how often something was given; the start is the first
    std::uint64_t written_ = 0; ///< how many of these the system has
    std::uint64_t onDisk_ = 0;  ///< how many are on the disk
    bool inPlace_ = false;
    bool flushing_ = false;
    bool ending_ = false;
    std::error_code error_;

    std::thread thread_; ///< the last member: it uses all others
};

} // namespace pinmora
