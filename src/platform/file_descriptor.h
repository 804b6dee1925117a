#pragma once

#include <cerrno>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace pinmora {

/// What errno says of the call that has just failed.
inline std::error_code lastError() {
    return {errno, std::generic_category()};
}

/// Owns an open file descriptor, or none (-1).
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : number_(number) {}
    FileDescriptor(FileDescriptor &&other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    ~FileDescriptor() { close(); }

    int get() const { return number_; }
    bool isOpen() const { return number_ >= 0; }

    /// Closes it, if it is open. Network file systems may report only now that a write failed.
    std::error_code close() {
        const int number = std::exchange(number_, -1);
        return number >= 0 && ::close(number) != 0 ? lastError() : std::error_code{};
    }

private:
    int number_ = -1;
};

} // namespace pinmora
