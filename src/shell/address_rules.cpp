#include "shell/address_rules.h"

#include "platform/http.h"
#include "platform/translation.h"

#include <algorithm>
#include <array>

namespace pinmora {
namespace {

/// Such an address with something in the places that are filled in for each tile: braces stand in
/// no address.
std::string filledTileAddress(const std::string &text) {
    std::string filled;
    std::size_t from = 0;
    for (std::size_t open = text.find('{'); open != std::string::npos;
         open = text.find('{', from)) {
        const std::size_t close = text.find('}', open);
        if (close == std::string::npos) {
            break;
        }
        filled.append(text, from, open - from).append("1");
        from = close + 1;
    }
    return filled.append(text, from);
}

/// Nothing in it can end a header's line or an attribute.
bool isOneWord(const std::string &text) {
    return std::none_of(text.begin(), text.end(), [](char c) {
        return (c >= 0 && c <= ' ') || c == '\x7f' || c == '"' || c == '<' || c == '>';
    });
}

} // namespace

std::string webAddressProblem(const std::string &text) {
    return webUrl(QByteArray::fromStdString(text)) && isOneWord(text)
               ? std::string()
               : translated("shell", "An address is needed that begins with http:// or https:// "
                                     "and goes on with the name of a server.");
}

std::string tileAddressProblem(const std::string &text) {
    std::string problem = webAddressProblem(filledTileAddress(text));
    if (!problem.empty()) {
        return problem;
    }
    constexpr std::array places{"{z}", "{x}", "{y}"};
    const auto missing = std::find_if(places.begin(), places.end(), [&text](const char *place) {
        return text.find(place) == std::string::npos;
    });
    return missing == places.end()
               ? std::string()
               : filled(translated("shell", "%1 is missing: the address needs {z}, {x} and {y}, "
                                            "where zoom, column and row of a tile go."),
                        {*missing});
}

std::string placeHostProblem(const std::string &text) {
    const bool isFit = text.empty() || (isOneWord(text) && text.find('/') == std::string::npos);
    return isFit ? std::string()
                 : translated("shell", "The name of a server is needed, without http:// and "
                                       "without blanks, or nothing.");
}

std::string placeNamespaceProblem(const std::string &text) {
    const bool isFit = text.empty() || (isOneWord(text) && text.ends_with('/'));
    return isFit ? std::string()
                 : translated("shell", "A name that ends in a slash is needed, without blanks, "
                                       "or nothing.");
}

} // namespace pinmora
