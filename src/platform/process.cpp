#include "platform/process.h"

#include "platform/child_output.h"
#include "platform/child_process.h"
#include "platform/patience.h"

#include <algorithm>
#include <array>
#include <new>
#include <poll.h>
#include <sys/wait.h>

namespace pinmora {

namespace {

/// The beginning of what a child says.
struct Kept {
    std::size_t limit;
    std::string text;

    void take(std::string_view bytes) { text.append(bytes.substr(0, limit - text.size())); }
};

/// Reads both streams until the child has ended; whether it did so within its time.
bool awaitEnd(const ChildProcess &child, ChildOutput &output, const ChildOutput::Taker &takeOutput,
              ChildOutput &errors, const ChildOutput::Taker &takeErrors,
              const ProcessLimits &limits) {
    Patience patience{child, limits};
    while (!child.hasEnded()) {
        const auto wait = patience.enforce();
        std::array<pollfd, 3> polled{
            {{output.watch(), POLLIN, 0}, {errors.watch(), POLLIN, 0}, {child.watch(), POLLIN, 0}}};
        if (::poll(polled.data(), polled.size(), static_cast<int>(wait.count())) > 0) {
            if (polled[0].revents != 0) {
                output.read(takeOutput);
            }
            if (polled[1].revents != 0) {
                errors.read(takeErrors);
            }
        }
    }
    output.drain(takeOutput);
    errors.drain(takeErrors);
    return !patience.isOver();
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
    ChildOutput output;
    ChildOutput errors;
    ChildProcess child;
    for (ChildOutput *stream : {&output, &errors}) {
        if (const int error = stream->open()) {
            return notStarted(error);
        }
    }
    if (const int error = child.start(
            std::move(words), {.output = output.childsEnd(), .errors = errors.childsEnd()})) {
        return notStarted(error);
    }
    output.closeChildsEnd();
    errors.closeChildsEnd();

    Kept said{limits.output, {}};
    Kept complained{limits.output, {}};
    ProcessOutcome outcome;
    if (awaitEnd(
            child, output, [&](std::string_view bytes) { said.take(bytes); }, errors,
            [&](std::string_view bytes) { complained.take(bytes); }, limits)) {
        outcome = outcomeOf(child.hasExited() ? child.collect() : child.end());
    } else {
        outcome.end = ProcessOutcome::End::TimedOut; // what is left of its group ends with `child`
    }
    outcome.output = std::move(said.text);
    outcome.errors = std::move(complained.text);
    return outcome;
}

} // namespace

ProcessOutcome outcomeOf(int status) {
    ProcessOutcome outcome;
    const bool exited = WIFEXITED(status);
    outcome.end = exited ? ProcessOutcome::End::Exited : ProcessOutcome::End::Crashed;
    outcome.code = exited ? WEXITSTATUS(status) : WTERMSIG(status);
    return outcome;
}

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
