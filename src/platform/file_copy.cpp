#include "platform/file_descriptor.h"
#include "platform/file_placement.h"

#include <array>
#include <fcntl.h>
#include <linux/fs.h>
#include <memory>
#include <string_view>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <vector>

namespace pinmora {

namespace {

constexpr std::size_t bufferSize = 128 * 1024;

std::error_code openRegular(const std::filesystem::path &path, FileDescriptor &file,
                            struct stat &state) {
    // O_NONBLOCK: a pipe without a writer must not hold us up. It changes nothing for a file.
    file = FileDescriptor{::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK)};
    if (!file.isOpen() || ::fstat(file.get(), &state) != 0) {
        return lastError();
    }
    if (S_ISDIR(state.st_mode)) {
        return std::make_error_code(std::errc::is_a_directory);
    }
    return S_ISREG(state.st_mode) ? std::error_code{}
                                  : std::make_error_code(std::errc::invalid_argument);
}

std::error_code writeAll(int file, const char *bytes, std::size_t count) {
    while (count > 0) {
        const ssize_t written = ::write(file, bytes, count);
        if (written < 0 && errno != EINTR) {
            return lastError();
        }
        if (written > 0) {
            bytes += written;
            count -= static_cast<std::size_t>(written);
        }
    }
    return {};
}

/// Copies from where both files stand to the end of the source.
std::error_code copyByReading(int source, int target) {
    const auto buffer = std::make_unique_for_overwrite<char[]>(bufferSize);
    for (;;) {
        const ssize_t count = ::read(source, buffer.get(), bufferSize);
        if (count == 0) {
            return {};
        }
        if (count < 0 && errno != EINTR) {
            return lastError();
        }
        if (count > 0) {
            if (const auto error =
                    writeAll(target, buffer.get(), static_cast<std::size_t>(count))) {
                return error;
            }
        }
    }
}

std::error_code copyBytes(int source, off_t size, int target) {
    if (::ioctl(target, FICLONE, source) == 0) {
        return {};
    }
    ::posix_fadvise(source, 0, 0, POSIX_FADV_SEQUENTIAL);
    // Finding the room in one piece is quicker; where that fails, writing says whether it matters.
    ::fallocate(target, FALLOC_FL_KEEP_SIZE, 0, size);
    // What the kernel does not copy by itself, for whatever reason, is read and written: some file
    // systems refuse, some claim an early end. A true error shows again there.
    constexpr std::size_t atOnce = std::size_t{1} << 30U;
    while (::copy_file_range(source, nullptr, target, nullptr, atOnce, 0) > 0) {
    }
    return copyByReading(source, target);
}

/// Whether an error only means that the file system has no room or no notion for an extra.
bool isWithoutSuch(const std::error_code &error) {
    switch (error.value()) {
    case ENOTSUP:
    case ENOSYS:
    case EPERM:
    case EACCES:
    case ENOSPC: // ext4 holds 4 KiB of extended attributes; a full disk shows in the bytes
    case E2BIG:
    case ERANGE:
        return true;
    default:
        return false;
    }
}

std::error_code errorUnlessWithoutSuch(int result) {
    const std::error_code error = result == 0 ? std::error_code{} : lastError();
    return isWithoutSuch(error) ? std::error_code{} : error;
}

std::error_code copyExtendedAttributes(int source, int target) {
    if (::flistxattr(source, nullptr, 0) <= 0) {
        return {}; // mostly
    }
    std::vector<char> names(XATTR_LIST_MAX);
    std::vector<char> value(XATTR_SIZE_MAX);
    const ssize_t length = ::flistxattr(source, names.data(), names.size());
    std::string_view rest{names.data(), length > 0 ? static_cast<std::size_t>(length) : 0};
    while (!rest.empty()) {
        const char *const name = rest.data(); // each ends in a NUL
        rest.remove_prefix(std::string_view{name}.size() + 1);
        const ssize_t size = std::string_view{name}.starts_with("user.")
                                 ? ::fgetxattr(source, name, value.data(), value.size())
                                 : -1;
        if (size < 0) {
            continue;
        }
        if (const auto error = errorUnlessWithoutSuch(
                ::fsetxattr(target, name, value.data(), static_cast<std::size_t>(size), 0))) {
            return error;
        }
    }
    return {};
}

std::error_code fill(int source, const struct stat &state, int target) {
    if (const auto error = copyBytes(source, state.st_size, target)) {
        return error;
    }
    // Attributes before permissions: a file that is not writable takes none.
    if (const auto error = copyExtendedAttributes(source, target)) {
        return error;
    }
    // Without set-user-ID and set-group-ID: the copy may belong to somebody else.
    const mode_t mode = state.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    if (const auto error = errorUnlessWithoutSuch(::fchmod(target, mode))) {
        return error;
    }
    const std::array<timespec, 2> times{state.st_atim, state.st_mtim};
    return errorUnlessWithoutSuch(::futimens(target, times.data()));
}

} // namespace

std::error_code copyFile(const std::filesystem::path &source, const std::filesystem::path &target) {
    FileDescriptor from;
    struct stat state {};
    if (const auto error = openRegular(source, from, state)) {
        return error;
    }
    constexpr mode_t privateMode = S_IRUSR | S_IWUSR;
    FileDescriptor to{
        ::open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, privateMode)};
    if (!to.isOpen()) {
        return lastError();
    }
    std::error_code error = fill(from.get(), state, to.get());
    const std::error_code closing = to.close();
    if (!error) {
        error = closing;
    }
    if (error) {
        ::unlink(target.c_str());
    }
    return error;
}

} // namespace pinmora
