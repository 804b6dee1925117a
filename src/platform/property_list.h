#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// The text under a key of a property list file (XML or binary) whose top is a dictionary; nothing
/// where the file, the key or the text is missing, or the file is larger than a megabyte. UTF-8,
/// cut at the first NUL.
std::optional<std::string> stringInPropertyList(const std::filesystem::path &file,
                                                std::string_view key);

} // namespace pinmora
