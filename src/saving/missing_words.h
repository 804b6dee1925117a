#pragma once

#include <cstddef>
#include <string>

namespace pinmora {

/// "Searching DCIM/100CANON…": a folder as it is called below the one that is searched.
std::string searchingText(const std::string &searched, const std::string &folder);

/// "2 of 3 found."
std::string foundText(std::size_t found, std::size_t wanted);

} // namespace pinmora
