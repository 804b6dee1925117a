#include "saving/long_values.h"

#include "platform/file_descriptor.h"

#include <cstdlib>
#include <fcntl.h>
#include <string_view>

namespace pinmora {

namespace {

/// Linux' MAX_ARG_STRLEN (32 pages of 4 KiB) without the NUL at the end.
constexpr std::size_t longestArgument = 128 * 1024 - 1;

std::error_code writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return lastError();
        }
        if (written > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }
    return {};
}

} // namespace

LongValues::~LongValues() {
    for (const std::filesystem::path &file : files_) {
        std::error_code ignored;
        std::filesystem::remove(file, ignored);
    }
}

bool LongValues::fitsOnCommandLine(const std::string &argument) {
    return argument.size() <= longestArgument;
}

std::error_code LongValues::moveOut(std::vector<std::string> &arguments, Judge fits) {
    for (std::string &argument : arguments) {
        const std::size_t equals = argument.find('=');
        if (fits(argument) || equals == std::string::npos || !argument.starts_with('-')) {
            continue;
        }
        std::error_code error;
        const auto folder = std::filesystem::temp_directory_path(error);
        if (error) {
            return error;
        }
        std::string name = folder / "pinmora-value-XXXXXX";
        FileDescriptor file{::mkostemp(name.data(), O_CLOEXEC)};
        if (!file.isOpen()) {
            return lastError();
        }
        files_.emplace_back(name);
        if (error = writeAll(file.get(), std::string_view{argument}.substr(equals + 1)); error) {
            return error;
        }
        if (error = file.close(); error) {
            return error;
        }
        argument.replace(equals, std::string::npos, "<=" + name);
    }
    return {};
}

} // namespace pinmora
