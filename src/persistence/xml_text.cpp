#include "persistence/xml_text.h"

#include "platform/text_encoding.h"

#include <QByteArray>

#include <algorithm>
#include <array>

namespace pinmora {

namespace {

/// What an attribute value can do with a byte, from the best to the worst.
enum class ByteKind : unsigned char { Plain, Escaped, Beyond, Impossible };

constexpr std::array<ByteKind, 256> byteKinds() {
    std::array<ByteKind, 256> kinds{};
    for (std::size_t byte = 0; byte < kinds.size(); ++byte) {
        kinds[byte] = byte < 0x20   ? ByteKind::Impossible
                      : byte < 0x80 ? ByteKind::Plain
                                    : ByteKind::Beyond;
    }
    // Written plainly, tabs and line ends would be read as blanks.
    for (const char c : {'\t', '\n', '\r', '&', '<', '>', '"'}) {
        kinds[static_cast<unsigned char>(c)] = ByteKind::Escaped;
    }
    return kinds;
}

ByteKind kindOf(char c) {
    static constexpr auto kinds = byteKinds();
    return kinds[static_cast<unsigned char>(c)];
}

/// Whether a text with characters beyond ASCII consists of characters that XML has.
bool isXmlText(std::string_view text) {
    return isUtf8(text) && text.find("\xEF\xBF\xBE") == std::string_view::npos && // U+FFFE
           text.find("\xEF\xBF\xBF") == std::string_view::npos;                   // U+FFFF
}

std::string_view escapeOf(char c) {
    switch (c) {
    case '\t':
        return "&#9;";
    case '\n':
        return "&#10;";
    case '\r':
        return "&#13;";
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    default:
        return "&quot;";
    }
}

void appendEscaped(std::string &out, std::string_view text) {
    std::size_t plain = 0; // where the run of bytes that stay as they are began
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (kindOf(text[i]) == ByteKind::Escaped) {
            out += text.substr(plain, i - plain);
            out += escapeOf(text[i]);
            plain = i + 1;
        }
    }
    out += text.substr(plain);
}

QByteArray view(std::string_view bytes) {
    return QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

} // namespace

void appendBase64(std::string &out, std::string_view bytes) {
    const QByteArray text = view(bytes).toBase64();
    out.append(text.data(), static_cast<std::size_t>(text.size()));
}

std::optional<std::string> fromBase64(std::string_view text) {
    const QByteArray decoded = QByteArray::fromBase64(view(text));
    // Qt overlooks what is no base64, and missing ends.
    return decoded.toBase64() == view(text) ? std::optional(decoded.toStdString()) : std::nullopt;
}

void appendTextAttribute(std::string &out, std::string_view key, std::string_view text) {
    ByteKind worst = ByteKind::Plain;
    for (const char c : text) {
        worst = std::max(worst, kindOf(c));
    }
    const bool possible =
        worst < ByteKind::Beyond || (worst == ByteKind::Beyond && isXmlText(text));
    out += ' ';
    out += key;
    if (!possible) {
        out += base64Suffix;
    }
    out += "=\"";
    if (!possible) {
        appendBase64(out, text);
    } else if (worst == ByteKind::Plain) {
        out += text;
    } else {
        appendEscaped(out, text);
    }
    out += '"';
}

std::string quoted(std::string_view text) {
    constexpr std::size_t most = 60;
    std::size_t length = std::min(text.size(), most);
    while (length > 0 && length < text.size() &&
           (static_cast<unsigned char>(text[length]) >> 6U) == 2) {
        --length; // not in the middle of a character
    }
    return "\"" + std::string(text.substr(0, length)) + (length < text.size() ? "..." : "") + "\"";
}

} // namespace pinmora
