#include "platform/qt_picture.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QLoggingCategory>
#include <QSize>

#include <cstdarg>

#include <dlfcn.h>

#include "platform/file_descriptor.h"
#include "platform/picture_fit.h"

namespace pinmora {
namespace {

/// Megabytes that one picture may take. Qt's own limit, 128, is below what cameras make.
constexpr int largestPicture = 1024;

/// libtiff, which raw files remind of TIFF, writes what it finds odd to standard error. Only Qt's
/// plug-in is linked with it; where that brings its own copy, it goes on writing.
void silenceTiff() {
    using Handler = void (*)(const char *, const char *, std::va_list);
    using SetHandler = Handler (*)(Handler);
    QBuffer nothing;
    QImageReader(&nothing, "tiff").canRead(); // has the plug-in loaded
    for (const char *library : {"libtiff.so.6", "libtiff.so.5"}) {
        void *const tiff = ::dlopen(library, RTLD_LAZY | RTLD_NOLOAD);
        for (const char *name : {"TIFFSetWarningHandler", "TIFFSetErrorHandler"}) {
            if (void *const found = tiff ? ::dlsym(tiff, name) : nullptr) {
                reinterpret_cast<SetHandler>(found)(nullptr);
            }
        }
    }
}

void prepareReaders() {
    static const bool prepared = [] {
        // They would write on standard error what they think of a damaged file.
        QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false"));
        silenceTiff();
        QImageReader::setAllocationLimit(largestPicture);
        return true;
    }();
    static_cast<void>(prepared);
}

/// Whether the reader knows its format by the content; others take nearly any bytes.
bool recognises(QImageReader &reader) {
    static const QList<QByteArray> trusted{"jpeg", "png", "tiff", "gif", "bmp",
                                           "webp", "xbm", "ico",  "cur", "icns"};
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(false);
    return reader.canRead() && trusted.contains(reader.format());
}

std::optional<PixelSize> sizeSeenBy(QImageReader &reader) {
    if (!recognises(reader)) {
        return std::nullopt;
    }
    const QSize size = reader.size();
    return size.isEmpty() ? std::nullopt : std::optional(PixelSize{size.width(), size.height()});
}

std::optional<QImage> decode(QImageReader &reader, std::optional<PixelSize> fit) {
    const auto size = sizeSeenBy(reader);
    if (!size) {
        return std::nullopt;
    }
    if (const auto smaller = sizeWithin(*size, fit)) {
        reader.setScaledSize(QSize(smaller->width, smaller->height));
    }
    QImage image = reader.read();
    return image.isNull() ? std::nullopt : std::optional(std::move(image));
}

/// Calls `use` with a reader on a regular file, opened by its descriptor: a file name that is not
/// UTF-8 does not survive in a QString.
template <class Use>
auto withReaderOn(const std::filesystem::path &file, Use use)
    -> decltype(use(std::declval<QImageReader &>())) {
    prepareReaders();
    const FileDescriptor descriptor = openRegularFile(file);
    QFile device;
    if (!descriptor.isOpen() || !device.open(descriptor.get(), QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    QImageReader reader(&device);
    return use(reader);
}

} // namespace

std::optional<PixelSize> sizeSeenByQt(const std::filesystem::path &file) {
    return withReaderOn(file, sizeSeenBy);
}

std::optional<QImage> decodeWithQt(const std::filesystem::path &file,
                                   std::optional<PixelSize> fit) {
    return withReaderOn(file, [fit](QImageReader &reader) { return decode(reader, fit); });
}

std::optional<QImage> decodeWithQt(QByteArray bytes, std::optional<PixelSize> fit) {
    prepareReaders();
    QBuffer device(&bytes);
    QImageReader reader(&device);
    return decode(reader, fit);
}

} // namespace pinmora
