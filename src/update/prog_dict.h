#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace pinmora {

/// What the update check is told of the program:
///
/// - "progName": the name that messages show
/// - "progPlist": the address of the version information; "" where there is none
/// - "progDownload": the address of a newer version, once one has been found
using ProgDict = std::map<std::string, std::string, std::less<>>;

/// The text under a key; "" without one.
inline std::string textIn(const ProgDict &dictionary, std::string_view key) {
    const auto entry = dictionary.find(key);
    return entry == dictionary.end() ? std::string() : entry->second;
}

} // namespace pinmora
