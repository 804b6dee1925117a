#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

#include "platform/image_source.h"

namespace pinmora {

/// What Exiv2 reads in an image file's metadata.
struct Exiv2Reading {
    ImageProperties properties;
    MetadataLayout layout;
};

/// Reads a regular file's metadata, seeking past the pixels. The name is taken as a local path
/// whatever it looks like. Nothing when the file is no image that Exiv2 knows. Never throws: of a
/// damaged file, what was read before the damage counts.
std::optional<Exiv2Reading> readWithExiv2(const std::filesystem::path &file);

/// The same for the bytes of a file in memory.
std::optional<Exiv2Reading> readWithExiv2(std::span<const std::byte> bytes);

/// The bytes (JPEG or TIFF) of the thumbnail in a file's Exif block; empty where there is none.
/// Never throws.
std::string thumbnailSeenByExiv2(const std::filesystem::path &file);

} // namespace pinmora
