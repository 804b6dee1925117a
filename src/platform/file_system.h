#pragma once

#include "platform/file_descriptor.h"

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <sys/types.h>
#include <system_error>

namespace pinmora {

/// The calls by which a file is written so that it survives a crash. They go to the system; tests
/// override them to have each one fail.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// Creates a file for writing; `file_exists` when there is something of that name.
    virtual std::error_code createNew(const std::filesystem::path &path, mode_t mode,
                                      FileDescriptor &file);
    virtual std::error_code setMode(int file, mode_t mode);
    /// Writes the first `written` of the bytes, which may be fewer than all.
    virtual std::error_code write(int file, std::string_view bytes, std::size_t &written);
    /// Asks that what stands there be carried to the disk from now on; waits for nothing.
    virtual void startWriteBack(int file, std::uint64_t offset, std::uint64_t length);
    /// Returns when the file is on the disk.
    virtual std::error_code sync(int file);
    virtual std::error_code close(FileDescriptor &file);
    /// Replaces what has the new name.
    virtual std::error_code rename(const std::filesystem::path &from,
                                   const std::filesystem::path &to);
    virtual std::error_code remove(const std::filesystem::path &path);
    /// Gives a file, or the one that a symbolic link leads to, a second name; what is later renamed
    /// over the first does not touch it.
    virtual std::error_code link(const std::filesystem::path &file,
                                 const std::filesystem::path &newName);
    /// Returns when the names in the folder are on the disk, as far as the file system can do that.
    virtual std::error_code syncFolder(const std::filesystem::path &folder);
};

FileSystem &realFileSystem();

} // namespace pinmora
