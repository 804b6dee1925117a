#include "recovery/journal_format.h"

#include "recovery/field_text.h"

#include <zlib.h>

namespace pinmora {

namespace {

constexpr std::size_t checksummedHead = 5; // kind and length

std::uint32_t checksumOf(std::string_view head, std::string_view payload) {
    const auto add = [](uLong sum, std::string_view bytes) {
        return crc32_z(sum, reinterpret_cast<const Bytef *>(bytes.data()), bytes.size());
    };
    const uLong sum = add(crc32_z(0, nullptr, 0), head.substr(0, checksummedHead));
    return static_cast<std::uint32_t>(payload.empty() ? sum : add(sum, payload));
}

} // namespace

void appendFrame(std::string &out, FrameKind kind, std::string_view payload) {
    const std::size_t begin = out.size();
    out += static_cast<char>(kind);
    appendNumber(out, static_cast<std::uint32_t>(payload.size()));
    appendNumber(out, checksumOf(std::string_view(out).substr(begin), payload));
    out += payload;
}

FrameHead frameHead(std::string_view bytes) {
    const auto kind = static_cast<FrameKind>(bytes.front());
    return {kind, numberAt(bytes.substr(1)), numberAt(bytes.substr(checksummedHead))};
}

bool fits(std::string_view headBytes, std::string_view payload) {
    return frameHead(headBytes).checksum == checksumOf(headBytes, payload);
}

} // namespace pinmora
