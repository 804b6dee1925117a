#pragma once

#include <filesystem>

namespace pinmora {

/// Whether both files can be read and hold the same bytes.
bool haveSameBytes(const std::filesystem::path &a, const std::filesystem::path &b);

} // namespace pinmora
