#pragma once

#include <string>

namespace pinmora {

/// The texts of the map page in the language of the program, as a JSON object from the English
/// ones; those that are not translated are left out.
std::string pageWords();

} // namespace pinmora
