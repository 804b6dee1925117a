#include "platform/file_lock.h"

#include <fcntl.h>
#include <sys/file.h>

namespace pinmora {

std::error_code FileLock::acquire(const std::filesystem::path &path) {
    FileDescriptor file{
        ::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666)};
    if (!file.isOpen()) {
        const std::error_code error = lastError();
        // Somebody else's, perhaps: to lock it, it is enough to be able to read it.
        file = FileDescriptor{::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC)};
        if (!file.isOpen()) {
            return error;
        }
    }
    while (::flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EINTR) {
            return lastError();
        }
    }
    file_ = std::move(file);
    return {};
}

} // namespace pinmora
