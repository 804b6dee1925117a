#include "platform/picture_fit.h"

#include <algorithm>
#include <cmath>

namespace pinmora {

std::optional<PixelSize> sizeWithin(PixelSize size, std::optional<PixelSize> fit) {
    if (!fit || (size.width <= fit->width && size.height <= fit->height)) {
        return std::nullopt;
    }
    const double factor = std::min(static_cast<double>(fit->width) / size.width,
                                   static_cast<double>(fit->height) / size.height);
    const auto smaller = [factor](int length) { // of a very long strip, the short side stays
        return std::max(1, static_cast<int>(std::lround(length * factor)));
    };
    return PixelSize{smaller(size.width), smaller(size.height)};
}

QImage scaledWithin(const QImage &image, std::optional<PixelSize> fit) {
    const auto smaller = sizeWithin({image.width(), image.height()}, fit);
    return smaller ? image.scaled(smaller->width, smaller->height, Qt::IgnoreAspectRatio,
                                  Qt::SmoothTransformation)
                   : image;
}

} // namespace pinmora
