#include "platform/input_file.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace pinmora {

std::error_code InputFile::open(const std::filesystem::path &path, int flags) {
    file_ = FileDescriptor(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | flags));
    struct stat status {};
    if (!file_.isOpen() || ::fstat(file_.get(), &status) != 0) {
        return lastError();
    }
    if (S_ISDIR(status.st_mode)) {
        return std::make_error_code(std::errc::is_a_directory);
    }
    if (!S_ISREG(status.st_mode)) {
        return std::make_error_code(std::errc::not_supported);
    }
    return {};
}

std::optional<std::string_view> InputFile::read(std::span<char> buffer) {
    std::size_t filled = 0;
    while (filled < buffer.size()) {
        const ssize_t got = ::read(file_.get(), buffer.data() + filled, buffer.size() - filled);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            failure_ = lastError();
            return std::nullopt;
        }
        if (got == 0) {
            break;
        }
        filled += static_cast<std::size_t>(got);
    }
    return std::string_view(buffer.data(), filled);
}

bool InputFile::readRest(std::string &text) {
    struct stat status {};
    if (::fstat(file_.get(), &status) == 0 && status.st_size > 0) {
        // The last block is asked for in full and comes short: room for it, or all would be copied.
        text.reserve(static_cast<std::size_t>(status.st_size) + inputBlockSize);
    }
    for (;;) {
        const std::size_t before = text.size();
        text.resize(before + inputBlockSize);
        const auto block = read({text.data() + before, inputBlockSize});
        text.resize(before + (block ? block->size() : 0));
        if (!block || block->size() < inputBlockSize) {
            return block.has_value();
        }
    }
}

} // namespace pinmora
