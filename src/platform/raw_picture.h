#pragma once

#include <QImage>

#include <filesystem>
#include <optional>

#include "platform/readable_image.h"

namespace pinmora {

/// The size of the picture in a camera's raw file, by its header; nothing for other files.
std::optional<PixelSize> sizeSeenByLibRaw(const std::filesystem::path &file);

/// The picture of a raw file, not turned; within `fit` (see decodePicture()). That is the preview
/// which the camera has put into it, unless that is too small to be looked at: then the sensor's
/// values are developed, at half their size where that is enough. Any thread.
std::optional<QImage> decodeWithLibRaw(const std::filesystem::path &file,
                                       std::optional<PixelSize> fit);

} // namespace pinmora
