#pragma once

#include "platform/file_placement.h"
#include "platform/process.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace pinmora {

/// What became of writing data into one copy.
struct ToolResult {
    enum class End {
        Written,            ///< all is in the copy
        WrittenWithWarning, ///< the copy was written; the tool has remarked on something
        NotWritten,         ///< the tool failed; the copy is as it was
        HalfWritten,        ///< the tool failed, or was ended, when it had begun to write into it
    };
    End end = End::NotWritten;
    std::string words; ///< one line, mostly the tool's own, without the file's path
};

/// Starts ExifTool on copies, one process a photo. May be used by several threads at once.
class MetadataTool {
public:
    explicit MetadataTool(std::filesystem::path resourceFolder, ProcessLimits limits = {})
        : resourceFolder_(std::move(resourceFolder)), limits_(limits) {}

    /// The executable "exiftool" in the resource folder if there is one, else on the PATH. Looked
    /// up anew each time.
    std::optional<std::filesystem::path> locate() const;

    /// Runs the tool with the given arguments, the copy's path last, and waits for its end. Then
    /// the copy gets the times `times`. A copy that its owner may not write is made writable for
    /// the while: cameras mark protected photos so.
    ToolResult write(std::vector<std::string> arguments, const FileTimes &times) const;

private:
    std::filesystem::path resourceFolder_;
    ProcessLimits limits_;
};

/// What to tell a person who has no such tool.
std::string toolMissingMessage();

} // namespace pinmora
