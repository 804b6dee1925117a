#include "platform/process.h"

#include "platform/child_process.h"
#include "platform/file_descriptor.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <new>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/wait.h>

namespace pinmora {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// Between the friendly signal and the one that cannot be refused.
constexpr milliseconds grace{500};
/// How often to look whether the child has ended where the kernel cannot wake us for it.
constexpr milliseconds glance{20};

/// A stream of the child: what it writes at one end is kept here up to a limit.
struct Stream {
    FileDescriptor reading;
    FileDescriptor writing;
    std::string kept;

    /// errno, 0 for success. Closed on exec, so that a program started at the same time by another
    /// thread does not hold the stream open.
    int open() {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
            return errno;
        }
        reading = FileDescriptor{ends[0]};
        writing = FileDescriptor{ends[1]};
        return ::fcntl(ends[0], F_SETFL, O_NONBLOCK) == 0 ? 0 : errno;
    }

    /// Reads once; the number of bytes that came, kept or not.
    std::size_t read(std::size_t limit) {
        std::array<char, 16 * 1024> buffer;
        const ssize_t count = ::read(reading.get(), buffer.data(), buffer.size());
        if (count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR)) {
            reading.close();
        }
        const auto came = static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        kept.append(buffer.data(), std::min(came, limit - kept.size()));
        return came;
    }

    /// Reads what waits at this moment; more may follow without end from a process left behind.
    void drain(std::size_t limit) {
        int waiting = 0;
        if (!reading.isOpen() || ::ioctl(reading.get(), FIONREAD, &waiting) != 0) {
            return;
        }
        auto rest = static_cast<std::size_t>(waiting);
        while (rest > 0) {
            const std::size_t came = read(limit);
            if (came == 0) {
                return;
            }
            rest -= std::min(rest, came);
        }
    }
};

/// Reads both streams until the child has ended; whether it did so within its time.
bool awaitEnd(const ChildProcess &child, Stream &output, Stream &errors,
              const ProcessLimits &limits) {
    constexpr milliseconds longest = std::chrono::hours{24 * 365};
    auto deadline = Clock::now() + std::clamp(limits.total, milliseconds{0}, longest);
    int signalsSent = 0;
    while (!child.hasEnded()) {
        const auto now = Clock::now();
        if (now >= deadline) {
            child.signal(signalsSent++ == 0 ? SIGTERM : SIGKILL);
            deadline = now + grace;
        }
        const auto left = std::chrono::ceil<milliseconds>(deadline - now);
        const milliseconds wait =
            std::min<milliseconds>(left, child.watch() >= 0 ? std::chrono::hours{1} : glance);
        std::array<pollfd, 3> polled{{{output.reading.get(), POLLIN, 0},
                                      {errors.reading.get(), POLLIN, 0},
                                      {child.watch(), POLLIN, 0}}};
        if (::poll(polled.data(), polled.size(), static_cast<int>(wait.count())) > 0) {
            if (polled[0].revents != 0) {
                output.read(limits.output);
            }
            if (polled[1].revents != 0) {
                errors.read(limits.output);
            }
        }
    }
    output.drain(limits.output);
    errors.drain(limits.output);
    return signalsSent == 0;
}

bool hasNul(const std::string &word) {
    return word.find('\0') != std::string::npos;
}

ProcessOutcome notStarted(int error) {
    ProcessOutcome outcome;
    outcome.code = error;
    return outcome;
}

ProcessOutcome run(std::vector<std::string> words, const ProcessLimits &limits) {
    if (std::any_of(words.begin(), words.end(), hasNul)) {
        return notStarted(EINVAL); // would reach the program cut short
    }
    Stream output;
    Stream errors;
    ChildProcess child;
    for (Stream *stream : {&output, &errors}) {
        if (const int error = stream->open()) {
            return notStarted(error);
        }
    }
    if (const int error =
            child.start(std::move(words), output.writing.get(), errors.writing.get())) {
        return notStarted(error);
    }
    output.writing.close();
    errors.writing.close();

    ProcessOutcome outcome;
    if (awaitEnd(child, output, errors, limits)) {
        const int status = child.collect();
        const bool exited = WIFEXITED(status);
        outcome.end = exited ? ProcessOutcome::End::Exited : ProcessOutcome::End::Crashed;
        outcome.code = exited ? WEXITSTATUS(status) : WTERMSIG(status);
    } else {
        outcome.end = ProcessOutcome::End::TimedOut; // what is left of its group ends with `child`
    }
    outcome.output = std::move(output.kept);
    outcome.errors = std::move(errors.kept);
    return outcome;
}

} // namespace

ProcessOutcome runProcess(const std::filesystem::path &program,
                          const std::vector<std::string> &arguments, const ProcessLimits &limits) {
    try {
        std::vector<std::string> words{program.native()};
        words.insert(words.end(), arguments.begin(), arguments.end());
        return run(std::move(words), limits);
    } catch (const std::bad_alloc &) {
        return notStarted(ENOMEM);
    }
}

} // namespace pinmora
