#include "services/escaped_text.h"

namespace pinmora {

std::string escapedForXml(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        case '\'':
            escaped += "&#39;";
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

std::string jsonString(std::string_view text) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string json = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            json += '\\';
            json += c;
        } else if (byte < 0x20) {
            json += "\\u00";
            json += digits[byte >> 4U];
            json += digits[byte & 0xFU];
        } else {
            json += c;
        }
    }
    return json += '"';
}

} // namespace pinmora
