#include "recovery/journal_thread.h"

#include "platform/input_file.h"

#include <iterator>
#include <utility>

namespace pinmora {

namespace {

using Clock = std::chrono::steady_clock;

/// A disk that has to sync all the time does nothing else.
constexpr auto syncInterval = std::chrono::seconds(1);

/// How many bytes are gathered before they are handed to the system.
constexpr std::size_t writeSize = std::size_t{256} * 1024;

constexpr std::size_t mostSpares = 32;

} // namespace

JournalThread::JournalThread(std::filesystem::path journal, std::string_view start,
                             FileSystem &files)
    : journal_(std::move(journal)), files_(files), bytes_(journalHeading) {
    appendFrame(bytes_, FrameKind::Start, start);
    thread_ = std::thread([this] { run(); });
}

JournalThread::~JournalThread() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wake_.notify_one();
    thread_.join();
}

void JournalThread::append(std::vector<Frame> frames) {
    {
        const std::lock_guard lock(mutex_);
        if (error_ || ending_) {
            return;
        }
        ++given_;
        std::move(frames.begin(), frames.end(), std::back_inserter(queue_));
    }
    wake_.notify_one();
}

bool JournalThread::flush() {
    std::unique_lock lock(mutex_);
    const std::uint64_t wanted = given_;
    while (onDisk_ < wanted && !error_) {
        flushing_ = true;
        wake_.notify_one();
        synced_.wait(lock);
    }
    return onDisk_ >= wanted;
}

void JournalThread::abandon() {
    const std::lock_guard lock(mutex_);
    ending_ = true;
    queue_.clear();
    error_ = std::make_error_code(std::errc::operation_canceled);
}

std::error_code JournalThread::error() const {
    const std::lock_guard lock(mutex_);
    return error_;
}

bool JournalThread::isInPlace() const {
    const std::lock_guard lock(mutex_);
    return inPlace_;
}

std::string JournalThread::spareBlock() {
    std::string block;
    {
        const std::lock_guard lock(mutex_);
        if (!spares_.empty()) {
            block = std::move(spares_.back());
            spares_.pop_back();
        }
    }
    block.resize(inputBlockSize);
    return block;
}

void JournalThread::run() {
    std::error_code error = create();
    Clock::time_point nextSync = Clock::now() + syncInterval;
    std::vector<Frame> frames;
    std::unique_lock lock(mutex_);
    written_ = onDisk_ = error ? 0 : 1;
    for (;;) {
        if (error && !error_) {
            error_ = error;
            queue_.clear();
        }
        synced_.notify_all();
        if (error_ || (ending_ && onDisk_ == given_)) {
            return;
        }
        waitForWork(lock, nextSync);
        std::swap(frames, queue_);
        written_ = given_;
        const bool isNew = onDisk_ < written_;
        const bool isAsked = std::exchange(flushing_, false) || ending_;
        lock.unlock();
        error = write(frames);
        const bool syncs = !error && isNew && (isAsked || Clock::now() >= nextSync);
        if (syncs) {
            error = files_.sync(file_.get());
            nextSync = Clock::now() + syncInterval;
        }
        lock.lock();
        onDisk_ = syncs && !error ? written_ : onDisk_;
        keepSpares(frames);
    }
}

/// Until there is something to write, or time to bring what was written to the disk.
void JournalThread::waitForWork(std::unique_lock<std::mutex> &lock, Clock::time_point sync) {
    const auto hasWork = [this] { return !queue_.empty() || flushing_ || ending_; };
    if (onDisk_ < written_) {
        wake_.wait_until(lock, sync, hasWork);
    } else {
        wake_.wait(lock, hasWork);
    }
}

/// The name stands for the old journal or for the new one with its start, whatever crashes.
std::error_code JournalThread::create() {
    const std::filesystem::path begun = journal_.string() + ".new";
    const std::filesystem::path folder = journal_.parent_path();
    files_.remove(begun); // of a program that was killed
    std::error_code error = files_.createNew(begun, 0600, file_);
    if (error || (error = flushBytes()) || (error = files_.sync(file_.get())) ||
        (error = files_.rename(begun, journal_))) {
        return error;
    }
    {
        const std::lock_guard lock(mutex_);
        inPlace_ = true;
    }
    // The folder itself may be new, and the one it is in.
    for (const auto &one : {folder, folder.parent_path(), folder.parent_path().parent_path()}) {
        error = error ? error : files_.syncFolder(one);
    }
    return error;
}

std::error_code JournalThread::write(const std::vector<Frame> &frames) {
    for (const Frame &frame : frames) {
        appendFrame(bytes_, frame.kind, frame.payload);
        if (bytes_.size() >= writeSize) {
            if (const std::error_code error = flushBytes()) {
                return error;
            }
        }
    }
    return flushBytes();
}

std::error_code JournalThread::flushBytes() {
    for (std::string_view rest = bytes_; !rest.empty();) {
        std::size_t count = 0;
        if (const std::error_code error = files_.write(file_.get(), rest, count)) {
            return error;
        }
        rest.remove_prefix(count);
    }
    bytes_.clear();
    return {};
}

void JournalThread::keepSpares(std::vector<Frame> &frames) {
    for (Frame &frame : frames) {
        if (frame.payload.capacity() >= inputBlockSize && spares_.size() < mostSpares) {
            spares_.push_back(std::move(frame.payload));
        }
    }
    frames.clear();
}

} // namespace pinmora
