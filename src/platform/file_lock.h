#pragma once

#include "platform/file_descriptor.h"

#include <filesystem>
#include <system_error>

namespace pinmora {

/// A lock that only one holder can have, kept on a file made for it; it ends with the object, and
/// with the process however that ends. Programs that this one starts do not inherit it. The file
/// stays: removing it could part a holder from one who comes.
class FileLock {
public:
    /// Takes the lock, at once or not at all: `operation_would_block` when it is held elsewhere (or
    /// by another object here). Other errors: the file cannot be made, or the file system knows no
    /// locks.
    [[nodiscard]] std::error_code acquire(const std::filesystem::path &path);
    bool isHeld() const { return file_.isOpen(); }
    void release() { file_.close(); }

private:
    FileDescriptor file_;
};

} // namespace pinmora
