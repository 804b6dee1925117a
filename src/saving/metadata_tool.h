#pragma once

#include "platform/file_placement.h"
#include "platform/process.h"
#include "saving/tool_settings.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace pinmora {

class ToolPool;

/// What became of writing data into one copy.
struct ToolResult {
    enum class End {
        Written,            ///< all is in the copy
        WrittenWithWarning, ///< the copy was written; the tool has remarked on something
        NotWritten,         ///< the tool failed; the copy is as it was
        /// The tool died, was ended, or failed when it had begun to write into the copy, which may
        /// not be whole.
        Doubtful,
    };
    End end = End::NotWritten;
    std::string words; ///< one line, mostly the tool's own, without the file's path
};

/// Has ExifTool write into copies. May be used by several threads at once.
class MetadataTool {
public:
    explicit MetadataTool(std::filesystem::path resourceFolder, ToolSettings settings = {});
    /// Ends the tools that were kept open.
    ~MetadataTool();
    MetadataTool(const MetadataTool &) = delete;
    MetadataTool &operator=(const MetadataTool &) = delete;

    /// The executable "exiftool" in the resource folder if there is one, else on the PATH. Looked
    /// up anew each time.
    std::optional<std::filesystem::path> locate() const;

    /// Runs the tool with the given arguments, the copy's path last, and waits for its end. Then
    /// the copy gets the times `times`. A copy that its owner may not write is made writable for
    /// the while: cameras mark protected photos so.
    ToolResult write(std::vector<std::string> arguments, const FileTimes &times) const;

private:
    ProcessOutcome carryOut(const std::filesystem::path &tool,
                            const std::vector<std::string> &arguments,
                            const ProcessLimits &limits) const;

    std::filesystem::path resourceFolder_;
    ToolSettings settings_;
    std::unique_ptr<ToolPool> pool_; ///< null when each photo gets a process of its own
};

/// What to tell a person who has no such tool.
std::string toolMissingMessage();

} // namespace pinmora
