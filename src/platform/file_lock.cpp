#include "platform/file_lock.h"

#include <fcntl.h>
#include <sys/file.h>

namespace pinmora {

std::error_code FileLock::acquire(const std::filesystem::path &path) {
    FileDescriptor file{
        ::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666)};
    if (!file.isOpen()) {
        return lastError();
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
