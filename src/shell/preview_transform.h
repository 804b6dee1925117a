#pragma once

#include <QImage>

#include "platform/image_source.h"
#include "platform/readable_image.h"

namespace pinmora {

/// Maps (x, y) to (a·x + c·y + tx, b·x + d·y + ty); the origin at the bottom left, y upwards.
struct AffineTransform {
    double a = 1;
    double b = 0;
    double c = 0;
    double d = 1;
    double tx = 0;
    double ty = 0;

    friend bool operator==(const AffineTransform &, const AffineTransform &) = default;

    /// Whether width and height change places.
    bool isSideways() const { return a == 0 && d == 0; }
};

/// What turns a picture upright and makes its pixels square, by its properties at the top. An
/// orientation outside 1 to 8 counts as 1.
AffineTransform imageTransform(const PropertyDictionary &properties);

/// The picture turned, mirrored and stretched like that; it lies at the origin again, wherever the
/// transform would move it. Null where there is not the memory for it.
QImage transformed(const QImage &image, const AffineTransform &transform);

/// The size of a picture of that size when it is transformed. One that would be stretched to an
/// unreasonable size is smaller.
PixelSize sizeAfter(PixelSize size, const AffineTransform &transform);

/// The size, as a picture lies, that becomes `size` when it is transformed.
PixelSize sizeBefore(PixelSize size, const AffineTransform &transform);

} // namespace pinmora
