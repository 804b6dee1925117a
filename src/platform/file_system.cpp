#include "platform/file_system.h"

#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

namespace pinmora {

namespace {

/// The error of a call that returned `result`.
std::error_code errorOf(int result) {
    return result == 0 ? std::error_code{} : lastError();
}

int syncRepeatedly(int file) {
    int result = ::fsync(file);
    while (result != 0 && errno == EINTR) {
        result = ::fsync(file);
    }
    return result;
}

} // namespace

std::error_code FileSystem::createNew(const std::filesystem::path &path, mode_t mode,
                                      FileDescriptor &file) {
    file = FileDescriptor{
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode)};
    return file.isOpen() ? std::error_code{} : lastError();
}

std::error_code FileSystem::setMode(int file, mode_t mode) {
    return errorOf(::fchmod(file, mode));
}

std::error_code FileSystem::write(int file, std::string_view bytes, std::size_t &written) {
    const ssize_t count = ::write(file, bytes.data(), bytes.size());
    written = count > 0 ? static_cast<std::size_t>(count) : 0;
    return count < 0 && errno != EINTR ? lastError() : std::error_code{};
}

void FileSystem::startWriteBack(int file, std::uint64_t offset, std::uint64_t length) {
    // A hint: what it cannot do, sync() does.
    ::sync_file_range(file, static_cast<off64_t>(offset), static_cast<off64_t>(length),
                      SYNC_FILE_RANGE_WRITE);
}

std::error_code FileSystem::sync(int file) {
    return errorOf(syncRepeatedly(file));
}

std::error_code FileSystem::close(FileDescriptor &file) {
    return file.close();
}

std::error_code FileSystem::rename(const std::filesystem::path &from,
                                   const std::filesystem::path &to) {
    return errorOf(::rename(from.c_str(), to.c_str()));
}

std::error_code FileSystem::remove(const std::filesystem::path &path) {
    return errorOf(::unlink(path.c_str()));
}

std::error_code FileSystem::link(const std::filesystem::path &file,
                                 const std::filesystem::path &newName) {
    return errorOf(::linkat(AT_FDCWD, file.c_str(), AT_FDCWD, newName.c_str(), AT_SYMLINK_FOLLOW));
}

std::error_code FileSystem::syncFolder(const std::filesystem::path &folder) {
    const FileDescriptor opened{::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    if (!opened.isOpen()) {
        // A folder may be written to by somebody who may not list it.
        return errno == EACCES ? std::error_code{} : lastError();
    }
    // EINVAL: the file system (of FUSE, of the network) has no such thing.
    return syncRepeatedly(opened.get()) == 0 || errno == EINVAL ? std::error_code{} : lastError();
}

FileSystem &realFileSystem() {
    static FileSystem real;
    return real;
}

} // namespace pinmora
