#pragma once

#include <QImage>

#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/readable_image.h"

namespace pinmora {

/// Whether a file with this head holds pictures in the HEIF container: HEIC and AVIF. Such a file
/// says itself how its pixels are turned, and readers turn them; what Exif says of it does not
/// count (ISO/IEC 23008-12, Annex A.2.1).
bool isHeif(std::string_view head);

/// The size of a HEIF file's main picture, upright; nothing for other files.
std::optional<PixelSize> sizeSeenByHeif(const std::filesystem::path &file);

/// The main picture, upright; within `fit` (see decodePicture()). Any thread.
std::optional<QImage> decodeWithHeif(const std::filesystem::path &file,
                                     std::optional<PixelSize> fit);

} // namespace pinmora
