#include "shell/upright_picture.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/decoded_picture.h"
#include "platform/image_source.h"
#include "platform/picture_fit.h"
#include "shell/preview_transform.h"

namespace pinmora {
namespace {

constexpr std::size_t entriesOfPhoto = 10;

AffineTransform transformOf(const std::optional<ImageProperties> &properties) {
    return properties && properties->topLevelNames().size() == entriesOfPhoto
               ? imageTransform(properties->top)
               : AffineTransform{};
}

/// The middle of a thumbnail, in the proportions of the picture: cameras fill it up with black bars
/// to 4:3. Null where they differ by more than such bars, as after a crop by a program that has
/// left the thumbnail alone.
std::optional<QImage> withoutBars(const QImage &thumbnail, const PropertyDictionary &top) {
    const double width = top.number("PixelWidth").value_or(0);
    const double height = top.number("PixelHeight").value_or(0);
    if (width <= 0 || height <= 0) {
        return std::nullopt;
    }
    const double factor = std::min(thumbnail.width() / width, thumbnail.height() / height);
    const QSize shown(static_cast<int>(std::lround(width * factor)),
                      static_cast<int>(std::lround(height * factor)));
    constexpr double mostBars = 0.3; // 16:9 in 4:3 leaves a quarter
    if (shown.width() < (1 - mostBars) * thumbnail.width() ||
        shown.height() < (1 - mostBars) * thumbnail.height()) {
        return std::nullopt;
    }
    return thumbnail.copy((thumbnail.width() - shown.width()) / 2,
                          (thumbnail.height() - shown.height()) / 2, shown.width(), shown.height());
}

/// Null also where there was not the memory to turn it.
std::optional<QImage> upright(const std::optional<QImage> &picture,
                              const AffineTransform &transform) {
    QImage turned = picture ? transformed(*picture, transform) : QImage();
    return turned.isNull() ? std::nullopt : std::optional(std::move(turned));
}

std::optional<QImage> thumbnailInFile(const std::filesystem::path &file,
                                      const std::optional<ImageProperties> &properties, int side) {
    const auto thumbnail = properties ? embeddedThumbnail(file) : std::nullopt;
    if (!thumbnail || std::max(thumbnail->width(), thumbnail->height()) < side) {
        return std::nullopt;
    }
    return withoutBars(*thumbnail, properties->top);
}

} // namespace

std::optional<QImage> uprightPicture(const std::filesystem::path &file,
                                     std::optional<PixelSize> fit) {
    const AffineTransform transform = transformOf(readImageProperties(file, ImageRead::Light));
    if (fit) {
        fit = sizeBefore(*fit, transform);
    }
    return upright(decodePicture(file, fit), transform);
}

std::optional<QImage> uprightThumbnail(const std::filesystem::path &file, int side) {
    const auto properties = readImageProperties(file, ImageRead::Light);
    const AffineTransform transform = transformOf(properties);
    const PixelSize fit{side, side};
    auto picture = thumbnailInFile(file, properties, side);
    if (!picture) {
        picture = decodePicture(file, sizeBefore(fit, transform));
    }
    picture = upright(picture, transform);
    return picture ? std::optional(scaledWithin(*picture, fit)) : std::nullopt;
}

} // namespace pinmora
