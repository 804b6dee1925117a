#include "shown_text.h"

#include "platform/text_encoding.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace pinmora::tag {

namespace {

/// The length of the UTF-8 character that the text begins with; 0 when it begins with none.
std::size_t characterAt(std::string_view text) {
    constexpr std::size_t longest = 4;
    for (std::size_t length = 1; length <= std::min(longest, text.size()); ++length) {
        if (isUtf8(text.substr(0, length))) {
            return length;
        }
    }
    return 0;
}

bool isControl(std::string_view character) {
    const auto first = static_cast<unsigned char>(character[0]);
    const bool isC1 =
        first == 0xc2 && character.size() == 2 && static_cast<unsigned char>(character[1]) < 0xa0;
    return first < 0x20 || first == 0x7f || isC1;
}

} // namespace

std::string validText(std::string_view bytes) {
    std::string text;
    while (!bytes.empty()) {
        const std::size_t length = characterAt(bytes);
        if (length > 0) {
            text += bytes.substr(0, length);
        } else {
            std::array<char, 5> code{};
            std::snprintf(code.data(), code.size(), "\\x%02X",
                          static_cast<unsigned>(static_cast<unsigned char>(bytes[0])));
            text += code.data();
        }
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return text;
}

std::string terminalText(std::string_view bytes) {
    const std::string valid = validText(bytes);
    std::string text;
    for (std::string_view rest = valid; !rest.empty();) {
        const std::string_view character = rest.substr(0, characterAt(rest));
        text += isControl(character) ? "?" : character;
        rest.remove_prefix(character.size());
    }
    return text;
}

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace pinmora::tag
