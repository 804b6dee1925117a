#pragma once

#include <string>
#include <vector>

namespace pinmora {

/// Whether an argument can be handed to ExifTool as a line of an argument file. Lines with escapes
/// take every byte but NUL, only that versions of the tool differ in what becomes of "$" and "@" in
/// them; without escapes a line end ends the argument.
bool fitsOnALine(const std::string &argument);

/// The arguments as lines of an argument file, one each, so that the tool takes them for what they
/// are. Each must fit.
std::string argumentLines(const std::vector<std::string> &arguments);

} // namespace pinmora
