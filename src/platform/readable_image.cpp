#include "platform/readable_image.h"

#include <QFile>
#include <QImageReader>
#include <QLoggingCategory>
#include <QSize>
#include <algorithm>
#include <array>
#include <fcntl.h>
#include <libraw/libraw.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/file_descriptor.h"

namespace pinmora {
namespace {

/// A regular file open for reading, or none. Without O_NONBLOCK a pipe would hold the caller until
/// somebody writes.
FileDescriptor openRegularFile(const std::filesystem::path &file) {
    FileDescriptor descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (descriptor.isOpen() &&
        (::fstat(descriptor.get(), &status) != 0 || !S_ISREG(status.st_mode)))
        return {};
    return descriptor;
}

std::optional<PixelSize> sizeSeenByQt(const std::filesystem::path &file) {
    // Readers that recognise their format by its content; others take nearly any bytes.
    static const QList<QByteArray> trusted{"jpeg", "png", "tiff", "gif", "bmp",
                                           "webp", "xbm", "ico",  "cur", "icns"};
    // Qt's readers would write on standard error what they think of a damaged file.
    static const bool quiet = [] {
        QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false"));
        return true;
    }();
    static_cast<void>(quiet);

    const FileDescriptor descriptor = openRegularFile(file);
    QFile device; // by descriptor: a file name that is not UTF-8 does not survive in a QString
    if (!descriptor.isOpen() || !device.open(descriptor.get(), QIODevice::ReadOnly))
        return std::nullopt;
    QImageReader reader(&device);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead() || !trusted.contains(reader.format()))
        return std::nullopt;
    const QSize size = reader.size();
    if (size.isEmpty())
        return std::nullopt;
    return PixelSize{size.width(), size.height()};
}

std::optional<PixelSize> sizeSeenByLibRaw(const std::filesystem::path &file) {
    const auto raw = std::make_unique<LibRaw>();  // too big for the stack
    raw->set_dataerror_handler(nullptr, nullptr); // the default writes to standard error
    if (raw->open_file(file.c_str()) != LIBRAW_SUCCESS)
        return std::nullopt;
    return PixelSize{raw->imgdata.sizes.width, raw->imgdata.sizes.height};
}

} // namespace

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
    const auto size = sizeSeenByQt(file);
    return size ? size : sizeSeenByLibRaw(file);
}

} // namespace pinmora
