#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

/// Bounds on a child process.
struct ProcessLimits {
    std::chrono::milliseconds total{
        std::chrono::minutes{5}};   ///< then it is ended, by force if need be
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

/// Runs a program to its end and returns what it said until then. Arguments are bytes, as file
/// names are: they reach the program unchanged. Standard input is empty, the environment is
/// inherited. The program leads a process group of its own, which is ended as a whole when the time
/// is over; what it leaves behind in good time is not waited for. Blocks the calling thread only;
/// may be called from several at once. Never throws.
ProcessOutcome runProcess(const std::filesystem::path &program,
                          const std::vector<std::string> &arguments,
                          const ProcessLimits &limits = {});

/// The first executable file of that name in the folders of PATH.
std::optional<std::filesystem::path> findOnPath(std::string_view name);

} // namespace pinmora
