#include "platform/text_encoding.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace pinmora {

namespace {

unsigned char byteAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}

/// The number of ASCII bytes from `at` on, found eight at a time.
std::size_t asciiRun(std::string_view bytes, std::size_t at) {
    const std::size_t begin = at;
    for (std::uint64_t eight = 0; bytes.size() - at >= sizeof eight; at += sizeof eight) {
        std::memcpy(&eight, bytes.data() + at, sizeof eight);
        if ((eight & 0x8080808080808080U) != 0) {
            break;
        }
    }
    while (at < bytes.size() && byteAt(bytes, at) < 0x80) {
        ++at;
    }
    return at - begin;
}

/// The length of the character beyond ASCII at `at`, 0 where the bytes are none. RFC 3629: nothing
/// longer than need be, no surrogates, nothing beyond U+10FFFF.
std::size_t characterLength(std::string_view bytes, std::size_t at) {
    const unsigned char lead = byteAt(bytes, at);
    if (lead < 0xC2 || lead > 0xF4) {
        return 0;
    }
    const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (bytes.size() - at < length) {
        return 0;
    }
    const unsigned char lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned char highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    if (byteAt(bytes, at + 1) < lowest || byteAt(bytes, at + 1) > highest) {
        return 0;
    }
    for (std::size_t i = 2; i < length; ++i) {
        if ((byteAt(bytes, at + i) & 0xC0U) != 0x80) {
            return 0;
        }
    }
    return length;
}

} // namespace

bool isUtf8(std::string_view bytes) {
    for (std::size_t at = asciiRun(bytes, 0); at < bytes.size(); at += asciiRun(bytes, at)) {
        const std::size_t length = characterLength(bytes, at);
        if (length == 0) {
            return false;
        }
        at += length;
    }
    return true;
}

std::string utf8FromLatin1(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x80) {
            text += c;
        } else {
            text += static_cast<char>(0xC0U | code >> 6U);
            text += static_cast<char>(0x80U | (code & 0x3FU));
        }
    }
    return text;
}

std::string utf8OrLatin1(std::string bytes) {
    return isUtf8(bytes) ? std::move(bytes) : utf8FromLatin1(bytes);
}

bool fitsLatin1(std::string_view utf8) {
    // U+00FF is C3 BF: every character beyond begins with a greater byte.
    return std::all_of(utf8.begin(), utf8.end(),
                       [](char c) { return static_cast<unsigned char>(c) <= 0xC3; });
}

bool isAscii(std::string_view text) {
    return asciiRun(text, 0) == text.size();
}

std::string_view withoutByteOrderMark(std::string_view bytes) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return bytes.starts_with(mark) ? bytes.substr(mark.size()) : bytes;
}

std::string_view upToNul(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

} // namespace pinmora
