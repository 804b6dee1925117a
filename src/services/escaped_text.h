#pragma once

#include <string>
#include <string_view>

namespace pinmora {

/// A text as content, or as an attribute's value in either kind of quotes, of XML and HTML.
std::string escapedForXml(std::string_view text);

/// A UTF-8 text as a string of JSON, quotes included.
std::string jsonString(std::string_view text);

} // namespace pinmora
