#pragma once

#include <bit>
#include <string>
#include <string_view>

namespace pinmora {

/// The text of an Exif user comment: 8 bytes that name its character code ("ASCII", "JIS",
/// "UNICODE" or NULs for undefined), then the text, cut at its first NUL. A byte-order mark goes
/// before the file's byte order. Bytes that begin with no known code are all text.
/// (Exif 2.32, 4.6.5 "UserComment")
std::string decodeUserComment(std::string_view bytes, std::endian fileOrder);

/// Text of unknown encoding, as cameras write it: cut at the first NUL, UTF-8 if it is, else
/// ISO 8859-1.
std::string decodeUndeclaredText(std::string_view bytes);

/// An IPTC text in UTF-8, cut at its first NUL. `codedCharacterSet` is the value of dataset 1:90,
/// ISO 2022 escape sequences; UTF-8 and the sets of ISO 8859 are known. Where it is empty or
/// unknown, or the text breaks its rules, the text counts as undeclared.
std::string decodeIptcText(std::string_view bytes, std::string_view codedCharacterSet);

/// Whether the value of dataset 1:90 says UTF-8.
bool declaresUtf8(std::string_view codedCharacterSet);

} // namespace pinmora
