#include "outlets/workspace.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace pinmora {

bool canOpenAddress(std::string_view address) {
    static constexpr std::array<std::string_view, 3> beginnings{"http://", "https://", "mailto:"};
    return std::any_of(beginnings.begin(), beginnings.end(), [address](std::string_view wanted) {
        return address.size() > wanted.size() &&
               std::equal(wanted.begin(), wanted.end(), address.begin(), [](char a, char b) {
                   return a == std::tolower(static_cast<unsigned char>(b));
               });
    });
}

} // namespace pinmora
