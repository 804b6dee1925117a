#include "outlets/pointer_script.h"

#include "platform/number_text.h"

namespace pinmora {

namespace {

/// The number as scripts read it: "07.5" would be no number there, or one to the base of 8.
std::string withoutLeadingZeros(std::string_view number) {
    const std::size_t sign = number.find_first_of("+-") == 0 ? 1 : 0;
    std::string_view size = number.substr(sign);
    while (size.size() > 1 && size[0] == '0' && size[1] != '.') {
        size.remove_prefix(1);
    }
    return std::string(number.substr(0, sign)).append(size);
}

/// A text as a script holds it between single quotes. Line ends in it, also those beyond ASCII,
/// would end the script's line; "<" could end the script in a page.
std::string quoted(std::string_view text) {
    std::string script = "'";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (text.substr(i, 2) == "\xE2\x80" && (text.substr(i, 3).back() & 0xFE) == 0xA8) {
            script += text[i + 2] == '\xA8' ? "\\u2028" : "\\u2029";
            i += 2;
        } else if (byte < 0x20 || byte == '\'' || byte == '"' || byte == '\\' || byte == '<') {
            static constexpr std::string_view digits = "0123456789abcdef";
            script.append("\\x") += digits[byte / 16];
            script += digits[byte % 16];
        } else {
            script += text[i];
        }
    }
    return script + "'";
}

/// "FUNCTION(LAT,LON" and what follows; `otherwise` where the position is no number.
std::string scriptFor(std::string_view function, std::string_view lat, std::string_view lon,
                      const std::string &rest, std::string_view otherwise = "removePointer()") {
    if (!plainDecimal(lat) || !plainDecimal(lon)) {
        return std::string(otherwise);
    }
    return std::string(function) + "(" + withoutLeadingZeros(trimmed(lat)) + "," +
           withoutLeadingZeros(trimmed(lon)) + "," + rest + ")";
}

} // namespace

std::string pointerScript(std::string_view lat, std::string_view lon, int zoom) {
    return scriptFor("movePointer", lat, lon, std::to_string(zoom) + ",''");
}

std::string pointerScript(std::string_view lat, std::string_view lon) {
    return scriptFor("movePointer", lat, lon, "''");
}

std::string pointerScript(std::string_view lat, std::string_view lon, int zoom,
                          std::string_view label) {
    return scriptFor("movePointerWithZoom", lat, lon, std::to_string(zoom) + "," + quoted(label));
}

std::string newMarkerScript(std::string_view lat, std::string_view lon, int zoom) {
    return scriptFor("addNewMarkerToMap", lat.empty() ? "0" : lat, lon.empty() ? "0" : lon,
                     std::to_string(zoom), newMarkerScript());
}

std::string newMarkerScript() {
    return "addNewMarkerToMap(0,0,1)";
}

} // namespace pinmora
