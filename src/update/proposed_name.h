#pragma once

#include <string>

namespace pinmora {

/// The name to propose for the file that an address stands for: its last part, without what makes
/// it a question, and without what is no part of a file's name. "" where nothing is left.
std::string proposedName(const std::string &address);

} // namespace pinmora
