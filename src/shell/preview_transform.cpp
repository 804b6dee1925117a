#include "shell/preview_transform.h"

#include <QTransform>

#include <algorithm>
#include <cmath>
#include <utility>

namespace pinmora {
namespace {

/// Pixels along the longer side, and pixels altogether. A file may claim any resolution.
constexpr double longestSide = 32'000;
constexpr double largestArea = 150e6;

/// A resolution in pixels per inch, or a length in pixels.
double numberIn(const PropertyDictionary &properties, std::string_view key, double fallback) {
    const double number = properties.number(key).value_or(0);
    return std::isfinite(number) && number > 0 ? number : fallback;
}

int rounded(double length) {
    return std::max(1, static_cast<int>(std::lround(length)));
}

} // namespace

AffineTransform imageTransform(const PropertyDictionary &properties) {
    const double dpiWidth = numberIn(properties, "DPIWidth", 72);
    const double dpiHeight = numberIn(properties, "DPIHeight", 72);
    const double sx = dpiHeight > dpiWidth ? dpiHeight / dpiWidth : 1;
    const double sy = dpiWidth > dpiHeight ? dpiWidth / dpiHeight : 1;
    const double w = numberIn(properties, "PixelWidth", 0) * sx;
    const double h = numberIn(properties, "PixelHeight", 0) * sy;
    switch (static_cast<int>(numberIn(properties, "Orientation", 1))) {
    case 2:
        return {-sx, 0, 0, sy, w, 0};
    case 3:
        return {-sx, 0, 0, -sy, w, h};
    case 4:
        return {sx, 0, 0, -sy, 0, h};
    case 5:
        return {0, -sx, -sy, 0, h, w};
    case 6:
        return {0, -sx, sy, 0, 0, w};
    case 7:
        return {0, sx, sy, 0, 0, 0};
    case 8:
        return {0, sx, -sy, 0, h, 0};
    default:
        return {sx, 0, 0, sy, 0, 0};
    }
}

QImage transformed(const QImage &image, const AffineTransform &transform) {
    const auto [a, b, c, d, tx, ty] = transform;
    const PixelSize after = sizeAfter({image.width(), image.height()}, transform);
    const QSize size(after.width, after.height);
    QImage turned;
    if (transform.isSideways()) {
        // A quarter turn clockwise is b < 0 < c: anything else is mirrored beside it.
        turned = image.transformed(QTransform().rotate(90)).mirrored(c<0, b> 0);
    } else {
        turned = image.mirrored(a < 0, d < 0);
    }
    return turned.isNull() || size == turned.size()
               ? turned
               : turned.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

PixelSize sizeAfter(PixelSize size, const AffineTransform &transform) {
    const double along = transform.isSideways() ? transform.b : transform.a;
    const double up = transform.isSideways() ? transform.c : transform.d;
    double width = size.width * std::abs(along);
    double height = size.height * std::abs(up);
    if (transform.isSideways()) {
        std::swap(width, height);
    }
    // What has been decoded is there: only stretching must not make more of it.
    const double most = std::max(largestArea, 1.0 * size.width * size.height);
    const double excess =
        std::max({1.0, std::max(width, height) / longestSide, std::sqrt(width * height / most)});
    return {rounded(width / excess), rounded(height / excess)};
}

PixelSize sizeBefore(PixelSize size, const AffineTransform &transform) {
    const auto before = [](int length, double factor) {
        return std::max(1, static_cast<int>(length / std::max(1.0, std::abs(factor))));
    };
    return transform.isSideways()
               ? PixelSize{before(size.height, transform.b), before(size.width, transform.c)}
               : PixelSize{before(size.width, transform.a), before(size.height, transform.d)};
}

} // namespace pinmora
