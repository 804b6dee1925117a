#pragma once

#include "platform/file_descriptor.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

namespace pinmora {

/// The block in which files are read: large enough that the calls cost nothing beside the parsing,
/// small enough to stay in the processor's cache.
inline constexpr std::size_t inputBlockSize = std::size_t{64} * 1024;

/// A regular file that is read from its start to its end.
class InputFile {
public:
    /// Opens for reading, never waiting. Folders, pipes and devices are refused. `flags` are added
    /// to those of ::open().
    [[nodiscard]] std::error_code open(const std::filesystem::path &path, int flags = 0);

    /// The next bytes, as many as the buffer takes unless the file ends; empty at the end, nothing
    /// when the system reports an error, which lastFailure() then tells.
    std::optional<std::string_view> read(std::span<char> buffer);

    /// Appends all that is left to `text`; false when the system reports an error.
    bool readRest(std::string &text);

    std::error_code lastFailure() const { return failure_; }

private:
    FileDescriptor file_;
    std::error_code failure_;
};

} // namespace pinmora
