#include "services/gunzip.h"

#include <cstdint>
#include <memory>

#include <zlib.h>

namespace pinmora {
namespace {

/// The size of the content, which stands at the end of a member (RFC 1952), least byte first.
std::uint32_t statedSize(std::string_view bytes) {
    std::uint32_t size = 0;
    for (std::size_t i = 1; i <= 4; ++i) {
        size = size << 8U | static_cast<unsigned char>(bytes[bytes.size() - i]);
    }
    return size;
}

} // namespace

std::optional<std::string> gunzip(std::string_view bytes) {
    constexpr std::size_t leastSize = 18; // header and trailer
    // Deflate cannot shrink further than this: a false statement does not cost memory.
    constexpr std::size_t mostRatio = 1032;
    if (bytes.size() < leastSize || bytes.size() > UINT32_MAX ||
        statedSize(bytes) > bytes.size() * mostRatio) {
        return std::nullopt;
    }
    constexpr int gzipOnly = 16 + MAX_WBITS;
    z_stream stream{};
    if (inflateInit2(&stream, gzipOnly) != Z_OK) {
        return std::nullopt;
    }
    const auto end = [](z_stream *ended) { inflateEnd(ended); };
    const std::unique_ptr<z_stream, decltype(end)> ending(&stream, end);

    std::string content(statedSize(bytes), '\0');
    // zlib takes what it only reads as not const.
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef *>(content.data());
    stream.avail_out = static_cast<uInt>(content.size());
    if (inflate(&stream, Z_FINISH) != Z_STREAM_END || stream.avail_out != 0) {
        return std::nullopt;
    }
    return content;
}

} // namespace pinmora
