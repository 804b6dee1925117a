#include "platform/decoded_picture.h"

#include "platform/colour_profile.h"
#include "platform/exiv2_properties.h"
#include "platform/heif_picture.h"
#include "platform/qt_picture.h"
#include "platform/raw_picture.h"

namespace pinmora {
namespace {

/// Whether a file is a raw picture that looks like a TIFF file: its first page, which Qt's reader
/// would take, is a thumbnail.
bool isRawInTiff(const std::filesystem::path &file) {
    const auto raw = sizeSeenByLibRaw(file);
    const auto page = raw ? sizeSeenByQt(file) : std::nullopt;
    return page && page->width < raw->width && page->height < raw->height;
}

std::optional<QImage> decode(const std::filesystem::path &file, std::optional<PixelSize> fit) {
    const auto head = headOfRegularFile(file);
    if (!head || !mayBeImage(*head)) {
        return std::nullopt;
    }
    std::optional<QImage> image;
    const bool looksLikeTiff = head->starts_with("II") || head->starts_with("MM");
    if (looksLikeTiff && isRawInTiff(file)) {
        image = decodeWithLibRaw(file, fit);
    }
    if (!image) {
        image = decodeWithQt(file, fit);
    }
    if (!image && isHeif(*head)) {
        image = decodeWithHeif(file, fit);
    }
    if (!image) {
        image = decodeWithLibRaw(file, fit);
    }
    return image;
}

} // namespace

std::optional<QImage> decodePicture(const std::filesystem::path &file,
                                    std::optional<PixelSize> fit) {
    try {
        auto image = decode(file, fit);
        return image ? std::optional(readyToDraw(std::move(*image))) : std::nullopt;
    } catch (...) { // of a damaged file, sizes that no memory holds
        return std::nullopt;
    }
}

std::optional<QImage> embeddedThumbnail(const std::filesystem::path &file) {
    try {
        const std::string bytes = thumbnailSeenByExiv2(file);
        auto image = decodeWithQt(QByteArray::fromStdString(bytes), std::nullopt);
        return image ? std::optional(readyToDraw(std::move(*image))) : std::nullopt;
    } catch (...) {
        return std::nullopt;
    }
}

} // namespace pinmora
