#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

/// The extensions of photo files in the order in which an open panel offers them, each in lower and
/// in upper case ("MRW" twice).
const std::vector<std::string> &imageTypes();

/// The same extensions for look-up, exactly as spelled.
const std::set<std::string, std::less<>> &imageSupportDict();

/// Whether a name or path is that of a photo file, by its extension; hidden names are not.
bool isPict(std::string_view path);

} // namespace pinmora
