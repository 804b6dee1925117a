#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// What follows a key under which a text stands in base64 because XML cannot hold it: control
/// characters, and bytes that are not UTF-8, which file names may have.
inline constexpr std::string_view base64Suffix = ".base64";

/// Appends an XML attribute, with the blank before it, that reads back as the same bytes: under the
/// key itself, or in base64 under the key with the base64Suffix.
void appendTextAttribute(std::string &out, std::string_view key, std::string_view text);

void appendBase64(std::string &out, std::string_view bytes);

/// The bytes that appendBase64() has written; nothing for any other text.
std::optional<std::string> fromBase64(std::string_view text);

/// A text in quotation marks, for a message; of a long one only the beginning.
std::string quoted(std::string_view text);

} // namespace pinmora
