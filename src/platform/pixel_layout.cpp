#include "platform/pixel_layout.h"

#include <array>
#include <sys/types.h>
#include <unistd.h>

#include "platform/file_descriptor.h"
#include "platform/readable_image.h"

namespace pinmora {
namespace {

using namespace std::string_view_literals;

/// A frame header (ITU-T T.81, B.2.2): SOF0 to SOF15, less the tables and markers among them.
bool isFrameHeader(unsigned char marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

std::optional<PixelLayout> layoutOfJpeg(const std::filesystem::path &file) {
    constexpr int mostSegments = 1000;
    const FileDescriptor descriptor = openRegularFile(file);
    off_t position = 2;
    for (int i = 0; i < mostSegments; ++i) {
        // FF, marker, length (2), and of a frame header: precision, height (2), width (2),
        // components
        std::array<unsigned char, 10> segment{};
        const ssize_t size = ::pread(descriptor.get(), segment.data(), segment.size(), position);
        if (size != static_cast<ssize_t>(segment.size()) || segment[0] != 0xFF) {
            return std::nullopt;
        }
        if (segment[1] == 0xFF) { // padding
            ++position;
            continue;
        }
        if (isFrameHeader(segment[1])) {
            const int components = segment[9];
            return PixelLayout{components == 1   ? "Gray"
                               : components == 4 ? "CMYK"
                                                 : "RGB",
                               segment[4]};
        }
        position += 2 + segment[2] * 256 + segment[3];
    }
    return std::nullopt;
}

} // namespace

std::optional<PixelLayout> pixelLayout(const std::filesystem::path &file, std::string_view head) {
    if (head.starts_with("\xFF\xD8"sv)) {
        return layoutOfJpeg(file);
    }
    // The header chunk comes first: at 24 the bits of a sample, at 25 the colour type, of which 0
    // and 4 are grey (ISO/IEC 15948, 11.2.2).
    if (head.starts_with("\x89PNG\r\n\x1A\n"sv) && head.size() > 25) {
        const bool isGrey = head[25] == 0 || head[25] == 4;
        return PixelLayout{isGrey ? "Gray" : "RGB", static_cast<unsigned char>(head[24])};
    }
    return std::nullopt;
}

} // namespace pinmora
