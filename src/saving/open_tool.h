#pragma once

#include "platform/child_output.h"
#include "platform/child_process.h"
#include "platform/file_descriptor.h"
#include "platform/process.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace pinmora {

/// An ExifTool process that is kept open and given one argument list after another through its
/// standard input. One thread at a time.
///
/// The tool does not end with its input, but with a goodbye in it. A second process, which does
/// nothing but wait for the end of this one's interest, says it: so the tool also ends, with the
/// photo it is at, when this program is killed.
class OpenTool {
public:
    OpenTool() = default;
    /// Lets it end by itself, waiting for a moment, then ends it by force.
    ~OpenTool();
    OpenTool(const OpenTool &) = delete;
    OpenTool &operator=(const OpenTool &) = delete;

    /// Starts it, once. errno, 0 for success.
    int start(const std::filesystem::path &tool);

    /// Hands over argument lines (see argumentLines()) and waits for the answer: as runProcess()
    /// with these arguments. Of an unusual end nothing is left running; a tool that ended of its
    /// own accord before it was done has Crashed with code 0. Never throws.
    ProcessOutcome run(const std::string &lines, const ProcessLimits &limits);

    /// Whether it can be given another list.
    bool isReady() const { return !process_.hasEnded(); }

    /// Has it told to end, without waiting for that.
    void dismiss() { guardInput_.close(); }

private:
    class Exchange;

    int startGuard();

    ChildProcess process_;
    ChildProcess guard_;
    FileDescriptor input_;
    FileDescriptor guardInput_;
    ChildOutput output_;
    ChildOutput errors_;
    std::uint64_t number_ = 0; ///< of the last list
};

} // namespace pinmora
