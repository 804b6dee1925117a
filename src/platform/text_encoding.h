#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace pinmora {

bool isUtf8(std::string_view bytes);

/// ISO 8859-1 to UTF-8.
std::string utf8FromLatin1(std::string_view bytes);

/// The text as it stands if it is UTF-8, else read as ISO 8859-1.
std::string utf8OrLatin1(std::string bytes);

/// Whether every character of a UTF-8 text exists in ISO 8859-1.
bool fitsLatin1(std::string_view utf8);

/// Whether the text is ASCII throughout.
bool isAscii(std::string_view text);

/// The text without a UTF-8 byte-order mark at its start.
std::string_view withoutByteOrderMark(std::string_view bytes);

/// The text up to its first NUL character.
std::string_view upToNul(std::string_view text);

} // namespace pinmora
