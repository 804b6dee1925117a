#pragma once

#include <string>

namespace pinmora::tag {

/// What --help prints.
std::string helpText();

} // namespace pinmora::tag
