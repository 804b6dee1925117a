#pragma once

#include <QImage>

#include <optional>

#include "platform/readable_image.h"

namespace pinmora {

/// The size, in the same proportions, at which a picture larger than `fit` fits into it; nothing
/// for a picture that does so already, or where there is no limit.
std::optional<PixelSize> sizeWithin(PixelSize size, std::optional<PixelSize> fit);

/// The picture made smaller where it is larger than `fit`.
QImage scaledWithin(const QImage &image, std::optional<PixelSize> fit);

} // namespace pinmora
