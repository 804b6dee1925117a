#include "matching/pointer_script.h"

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

} // namespace

std::string pointerScript(std::string_view lat, std::string_view lon, int zoom) {
    if (!plainDecimal(lat) || !plainDecimal(lon)) {
        return "removePointer()";
    }
    return "movePointer(" + withoutLeadingZeros(trimmed(lat)) + "," +
           withoutLeadingZeros(trimmed(lon)) + "," + std::to_string(zoom) + ",'')";
}

} // namespace pinmora
