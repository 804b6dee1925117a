#pragma once

#include "platform/file_system.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace pinmora {

/// Writes a file so that at every moment, whatever crashes, its name stands for the whole old
/// content or the whole new one: a hidden temporary (".NAME.xxxxxx") in the same folder is written,
/// brought to the disk and renamed over the target.
///
/// The permissions of an old file are kept; a symbolic link stays and what it points to is
/// replaced. Every call is checked. The first failure removes the temporary, leaves the target as
/// it was, and is the answer to all later calls.
class AtomicFile {
public:
    explicit AtomicFile(FileSystem &files = realFileSystem()) : files_(files) {}
    AtomicFile(const AtomicFile &) = delete;
    AtomicFile &operator=(const AtomicFile &) = delete;
    /// Without commit() nothing has happened.
    ~AtomicFile() { discard(); }

    /// Begins a file that is to have this path. Anything there but a regular file is refused.
    [[nodiscard]] std::error_code open(const std::filesystem::path &target);
    /// Adds bytes at the end; they are gathered, and the disk is given work early, so that
    /// commit() need not wait for all of a large file.
    std::error_code write(std::string_view bytes);
    /// Puts the file in its place, on the disk. An error with isInPlace() is the folder's: the new
    /// file is there and whole, but after a power cut the old one might be.
    [[nodiscard]] std::error_code commit();
    bool isInPlace() const { return inPlace_; }

private:
    std::error_code handOver(std::string_view bytes);
    std::error_code fail(std::error_code error);
    void discard();

    FileSystem &files_;
    std::filesystem::path target_;
    std::filesystem::path temporary_;
    FileDescriptor file_;
    std::string buffer_;
    std::uint64_t written_ = 0;     ///< bytes handed to the system
    std::uint64_t writingBack_ = 0; ///< of these, the ones it has been asked to write back
    std::error_code error_;
    bool inPlace_ = false;
};

/// Removes the temporaries that programs which were killed have left for this target. Whoever else
/// is just writing it fails, so hold its lock if there can be another.
void removeLeftTemporaries(const std::filesystem::path &target,
                           FileSystem &files = realFileSystem());

/// A whole file by AtomicFile.
[[nodiscard]] std::error_code writeAtomically(const std::filesystem::path &target,
                                              std::string_view bytes,
                                              FileSystem &files = realFileSystem());

} // namespace pinmora
