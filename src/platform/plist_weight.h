#pragma once

#include <string_view>

namespace pinmora {

/// Whether a property list can be handed to the library that reads it. In memory it becomes a tree
/// in which everything is copied as often as it is referred to, and which is walked by recursion: a
/// small file can be made to fill any memory or any stack.
///
/// The binary form's check refuses what is broken as well; XML that is broken the library refuses.
bool isHarmlessBinaryPlist(std::string_view bytes);
bool isHarmlessXmlPlist(std::string_view bytes);

} // namespace pinmora
