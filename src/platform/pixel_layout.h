#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace pinmora {

/// How the pixels of a picture are stored.
struct PixelLayout {
    std::string_view colourModel = "RGB"; ///< "RGB", "Gray" or "CMYK"
    int depth = 8;                        ///< bits of one component
};

/// What the header of a JPEG or PNG file says of that; nothing for other files. `head`: the file's
/// first bytes.
std::optional<PixelLayout> pixelLayout(const std::filesystem::path &file, std::string_view head);

} // namespace pinmora
