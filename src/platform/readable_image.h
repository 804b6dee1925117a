#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_descriptor.h"

namespace pinmora {

struct PixelSize {
    int width = 0;
    int height = 0;
};

struct Resolution {
    double horizontal = 0; ///< pixels per inch
    double vertical = 0;
};

/// A regular file open for reading, or none: not for folders, pipes, devices. Never waits for a
/// writer.
FileDescriptor openRegularFile(const std::filesystem::path &file);

/// The first bytes (up to 512) of a regular file; nothing for folders, pipes, devices and what
/// cannot be opened. Never waits for a writer.
std::optional<std::string> headOfRegularFile(const std::filesystem::path &file);

/// Whether a file with this head may be a picture. Some readers ask little ("BM" makes a bitmap),
/// so that plain text counts only where a text format of pictures begins: PostScript or X bitmap.
bool mayBeImage(std::string_view head);

/// The resolution that a JFIF segment at the start of a JPEG file gives, if it has a unit.
std::optional<Resolution> jfifResolution(std::string_view head);

/// The size that Qt's image readers, libheif or LibRaw see in a file's header; nothing when none of
/// them knows the file. No pixels are decoded.
std::optional<PixelSize> sizeSeenByDecoders(const std::filesystem::path &file);

} // namespace pinmora
