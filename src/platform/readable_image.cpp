#include "platform/readable_image.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/heif_picture.h"
#include "platform/qt_picture.h"
#include "platform/raw_picture.h"

namespace pinmora {

FileDescriptor openRegularFile(const std::filesystem::path &file) {
    // Without O_NONBLOCK a pipe would hold the caller until somebody writes.
    FileDescriptor descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (descriptor.isOpen() &&
        (::fstat(descriptor.get(), &status) != 0 || !S_ISREG(status.st_mode)))
        return {};
    return descriptor;
}

std::optional<std::string> headOfRegularFile(const std::filesystem::path &file) {
    const FileDescriptor descriptor = openRegularFile(file);
    if (!descriptor.isOpen())
        return std::nullopt;
    std::array<char, 512> buffer{};
    const ssize_t size = ::read(descriptor.get(), buffer.data(), buffer.size());
    if (size < 0)
        return std::nullopt;
    return std::string(buffer.data(), static_cast<std::size_t>(size));
}

bool mayBeImage(std::string_view head) {
    const bool isText =
        std::none_of(head.begin(), head.end(), [](char byte) { return byte >= 0 && byte < '\t'; });
    return !isText || head.starts_with("%!PS") || head.find("#define") != std::string_view::npos;
}

std::optional<Resolution> jfifResolution(std::string_view head) {
    using namespace std::string_view_literals;
    if (head.size() < 18 || !head.starts_with("\xFF\xD8\xFF\xE0"sv) ||
        head.substr(6, 5) != "JFIF\0"sv)
        return std::nullopt;
    const auto at = [head](std::size_t i) { return static_cast<unsigned char>(head[i]); };
    const double perInch = at(13) == 1 ? 1.0 : at(13) == 2 ? 2.54 : 0.0;
    const Resolution resolution{perInch * (at(14) * 256 + at(15)),
                                perInch * (at(16) * 256 + at(17))};
    if (resolution.horizontal <= 0 || resolution.vertical <= 0)
        return std::nullopt;
    return resolution;
}

std::optional<PixelSize> sizeSeenByDecoders(const std::filesystem::path &file) {
    if (const auto size = sizeSeenByQt(file)) {
        return size;
    }
    if (const auto size = sizeSeenByHeif(file)) {
        return size;
    }
    return sizeSeenByLibRaw(file);
}

} // namespace pinmora
