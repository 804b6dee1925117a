#pragma once

#include <string>
#include <string_view>

namespace pinmora {

/// What a name (UTF-8) is compared by: small letters without accents, words parted by one blank.
/// Apostrophes and points vanish ("L'Aquila", "St. Gallen": "laquila", "st gallen"), all other
/// signs part words, and so do bytes that are not UTF-8.
std::string folded(std::string_view text);

} // namespace pinmora
