#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

/// Bounds on a child process.
struct ProcessLimits {
    /// How long it may go without getting on; then it is ended, by force if need be.
    std::chrono::milliseconds patience{std::chrono::minutes{5}};
    /// Asked from time to time whether it has got on since it was last asked. Where nobody can
    /// tell, its patience is all the time it has.
    std::function<bool()> hasGotOn = {};
    std::size_t output = 64 * 1024; ///< bytes kept of each stream; the rest is read and dropped
};

/// How a child process ended.
struct ProcessOutcome {
    enum class End { Exited, Crashed, TimedOut, NotStarted };
    End end = End::NotStarted;
    int code = 0;       ///< exit status, signal number or errno, by `end`; 0 for TimedOut
    std::string output; ///< standard output
    std::string errors; ///< standard error

    bool succeeded() const { return end == End::Exited && code == 0; }
};

/// What a child's status, as waitpid() tells it, says of its end.
ProcessOutcome outcomeOf(int status);

/// Runs a program to its end and returns what it said until then. Arguments are bytes, as file
/// names are: they reach the program unchanged. Standard input is empty, the environment is
/// inherited. The program leads a process group of its own, which is ended as a whole when its time
/// is over or a signal has ended it; what it leaves behind when it exits is not waited for. Blocks
/// the calling thread only; may be called from several at once. Never throws.
ProcessOutcome runProcess(const std::filesystem::path &program,
                          const std::vector<std::string> &arguments,
                          const ProcessLimits &limits = {});

/// The first executable file of that name in the folders of PATH.
std::optional<std::filesystem::path> findOnPath(std::string_view name);

} // namespace pinmora
