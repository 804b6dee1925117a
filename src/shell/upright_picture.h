#pragma once

#include <QImage>

#include <filesystem>
#include <optional>

#include "platform/readable_image.h"

namespace pinmora {

/// The picture of a file as it is to be looked at: upright and with square pixels, where its
/// properties at the top are the ten of a photo; other pictures as they are decoded. One larger
/// than `fit` (pixels of the result) is made to fit. Null for what cannot be decoded. Any thread.
std::optional<QImage> uprightPicture(const std::filesystem::path &file,
                                     std::optional<PixelSize> fit);

/// The same, `side` pixels along the longer side, from the thumbnail in the file where that is good
/// enough.
std::optional<QImage> uprightThumbnail(const std::filesystem::path &file, int side);

} // namespace pinmora
