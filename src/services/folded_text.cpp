#include "services/folded_text.h"

#include <QChar>
#include <QString>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace pinmora {
namespace {

/// Letters that Unicode does not take apart, but people who lack the key do.
std::optional<std::string_view> spelledOut(char32_t letter) {
    switch (letter) {
    case U'ß':
        return "ss";
    case U'æ':
        return "ae";
    case U'œ':
        return "oe";
    case U'ø':
        return "o";
    case U'ð':
    case U'đ':
        return "d";
    case U'ħ':
        return "h";
    case U'ı':
        return "i";
    case U'ł':
        return "l";
    case U'ŧ':
        return "t";
    case U'þ':
        return "th";
    case U'ə':
    case U'ǝ':
        return "e";
    default:
        return std::nullopt;
    }
}

bool vanishes(char32_t character) {
    constexpr std::u32string_view apostrophes = U"'.`´ʻʼʽ‘’";
    return apostrophes.find(character) != std::u32string_view::npos || QChar::isMark(character);
}

/// A blank for what parts words.
std::string foldedCharacter(char32_t character) {
    if (vanishes(character)) {
        return {};
    }
    if (!QChar::isLetterOrNumber(character)) {
        return " ";
    }
    const char32_t small = QChar::toCaseFolded(character);
    if (const auto spelling = spelledOut(small)) {
        return std::string(*spelling);
    }
    if (QChar::decompositionTag(small) == QChar::NoDecomposition) {
        return QString::fromUcs4(&small, 1).toStdString();
    }
    std::string parts;
    for (const char32_t part : QChar::decomposition(small).toStdU32String()) {
        parts += part == small ? std::string() : foldedCharacter(part);
    }
    return parts;
}

/// Most names have nothing else: the characters below U+2000, worked out once.
const std::string &foldedCommon(char32_t character) {
    static const std::vector<std::string> table = [] {
        std::vector<std::string> all(0x2000);
        for (char32_t each = 0; each < all.size(); ++each) {
            all[each] = foldedCharacter(each);
        }
        return all;
    }();
    return table[character];
}

/// Takes the first character off a text; nothing, and one byte off, where it is not UTF-8.
std::optional<char32_t> takeCharacter(std::string_view &text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    constexpr std::array<unsigned, 5> payload{0, 0x7F, 0x1F, 0x0F, 0x07};
    char32_t character = lead & payload[length];
    bool valid = length != 0 && length <= text.size();
    for (std::size_t i = 1; valid && i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        valid = (next & 0xC0U) == 0x80U;
        character = character << 6U | (next & 0x3FU);
    }
    text.remove_prefix(valid ? length : 1);
    return valid ? std::optional(character) : std::nullopt;
}

} // namespace

std::string folded(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    const auto add = [&result](std::string_view part) {
        const bool parts = part == " ";
        if (!parts || (!result.empty() && result.back() != ' ')) {
            result.append(part);
        }
    };
    while (!text.empty()) {
        const auto character = takeCharacter(text);
        if (!character) {
            add(" ");
        } else if (*character < 0x2000) {
            add(foldedCommon(*character));
        } else {
            add(foldedCharacter(*character));
        }
    }
    if (result.ends_with(' ')) {
        result.pop_back();
    }
    return result;
}

} // namespace pinmora
