#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace house {

/// Reads every include under src/ and apps/ of the tree at `root` and returns a sentence for each
/// that the design does not allow, with the file and line it stands in. An empty list: all is well.
///
/// - A room (a folder of src/, or of apps/ with its path) includes itself and the rooms that the
///   table in include_rules.cpp gives it.
/// - A quoted include names a file that is there, from src/ or beside the file that includes it.
/// - Qt Widgets and WebEngine belong to ui and apps/pinmora.
/// - Exiv2 belongs to one file of platform.
std::vector<std::string> forbiddenIncludes(const std::filesystem::path &root);

} // namespace house
