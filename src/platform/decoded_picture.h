#pragma once

#include <QImage>

#include <filesystem>
#include <optional>

#include "platform/readable_image.h"

namespace pinmora {

/// Decodes the first picture of a file, as its pixels lie: not turned by what the file says of its
/// orientation; only HEIC and AVIF files turn theirs themselves. Qt's readers, libheif, LibRaw (a
/// raw file's embedded preview first), in this order; a raw file that looks like TIFF is LibRaw's.
///
/// With `fit` (pixels of the picture as it lies) a larger picture is made smaller, and decoded
/// smaller where the format allows, so that it just covers what fits into it. Null for what none
/// of them reads. Any thread. Never throws.
std::optional<QImage> decodePicture(const std::filesystem::path &file,
                                    std::optional<PixelSize> fit = std::nullopt);

/// The thumbnail that a photo's metadata holds, likewise not turned; null where there is none.
std::optional<QImage> embeddedThumbnail(const std::filesystem::path &file);

} // namespace pinmora
