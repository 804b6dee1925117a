#include "platform/file_placement.h"

#include "platform/file_descriptor.h"

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

namespace pinmora {

std::error_code placeByReservation(const std::filesystem::path &finished,
                                   const std::filesystem::path &target) {
    constexpr mode_t mode = S_IRUSR | S_IWUSR;
    FileDescriptor reservation{
        ::open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode)};
    if (!reservation.isOpen()) {
        return lastError();
    }
    reservation.close(); // nothing was written to it
    if (::rename(finished.c_str(), target.c_str()) != 0) {
        const std::error_code error = lastError();
        ::unlink(target.c_str());
        return error;
    }
    return {};
}

std::error_code placeWithoutReplacing(const std::filesystem::path &finished,
                                      const std::filesystem::path &target) {
    if (::renameat2(AT_FDCWD, finished.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0) {
        return {};
    }
    // EINVAL: the kernel knows such a rename, the file system (NFS, some of FUSE) does not.
    if (errno == EINVAL || errno == ENOSYS || errno == ENOTSUP) {
        return placeByReservation(finished, target);
    }
    return lastError();
}

std::error_code readFileTimes(const std::filesystem::path &file, FileTimes &times) {
    struct stat state {};
    if (::stat(file.c_str(), &state) != 0) {
        return lastError();
    }
    times = {state.st_atim, state.st_mtim};
    return {};
}

std::error_code writeFileTimes(const std::filesystem::path &file, const FileTimes &times) {
    const std::array<timespec, 2> both{times.access, times.modification};
    return ::utimensat(AT_FDCWD, file.c_str(), both.data(), 0) == 0 ? std::error_code{}
                                                                    : lastError();
}

} // namespace pinmora
