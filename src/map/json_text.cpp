#include "map/json_text.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <array>
#include <charconv>

namespace pinmora {
namespace {

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

void appendEscaped(std::string &json, std::string_view text) {
    static constexpr std::string_view digits = "0123456789abcdef";
    json += '"';
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            json.append({'\\', c});
        } else if (byte < 0x20 || byte == 0x7f) {
            json.append("\\u00").append({digits[byte / 16], digits[byte % 16]});
        } else {
            json += c;
        }
    }
    json += '"';
}

} // namespace

void appendJson(std::string &json, double number) {
    std::array<char, 32> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), number);
    json.append(text.data(), written.ptr);
}

void appendJson(std::string &json, std::string_view text) {
    if (isAscii(text)) {
        appendEscaped(json, text);
    } else {
        appendEscaped(
            json,
            QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toStdString());
    }
}

} // namespace pinmora
