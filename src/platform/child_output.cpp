#include "platform/child_output.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <sys/ioctl.h>

namespace pinmora {

int ChildOutput::open() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        return errno;
    }
    reading_ = FileDescriptor{ends[0]};
    writing_ = FileDescriptor{ends[1]};
    return ::fcntl(ends[0], F_SETFL, O_NONBLOCK) == 0 ? 0 : errno;
}

std::size_t ChildOutput::read(const Taker &take) {
    std::array<char, 16 * 1024> buffer;
    const ssize_t count = ::read(reading_.get(), buffer.data(), buffer.size());
    if (count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR)) {
        reading_.close();
    }
    const auto came = static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    if (came > 0) {
        take({buffer.data(), came});
    }
    return came;
}

void ChildOutput::drain(const Taker &take) {
    int waiting = 0;
    if (!reading_.isOpen() || ::ioctl(reading_.get(), FIONREAD, &waiting) != 0) {
        return;
    }
    auto rest = static_cast<std::size_t>(waiting);
    while (rest > 0) {
        const std::size_t came = read(take);
        if (came == 0) {
            return;
        }
        rest -= std::min(rest, came);
    }
}

} // namespace pinmora
