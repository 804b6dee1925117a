#pragma once

#include "platform/process.h"

#include <filesystem>
#include <string>

namespace pinmora {

/// What a run of the tool over a copy says to a person, in one line of bounded length: the tool's
/// own remarks without the copy's path, and how it ended where that was unusual; mostly "".
std::string toolWords(const ProcessOutcome &outcome, const std::filesystem::path &copy);

} // namespace pinmora
