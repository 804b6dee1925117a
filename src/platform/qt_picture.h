#pragma once

#include <QByteArray>
#include <QImage>

#include <filesystem>
#include <optional>

#include "platform/readable_image.h"

namespace pinmora {

/// What Qt's image readers see in a file, as far as they recognise its format by its content;
/// nothing for other files. Any thread.
std::optional<PixelSize> sizeSeenByQt(const std::filesystem::path &file);

/// The first picture of a file, not turned; within `fit` (see decodePicture()).
std::optional<QImage> decodeWithQt(const std::filesystem::path &file, std::optional<PixelSize> fit);

/// The same for the bytes of a file in memory.
std::optional<QImage> decodeWithQt(QByteArray bytes, std::optional<PixelSize> fit);

} // namespace pinmora
