#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace pinmora::tag {

/// A text from outside, such as a file's name, as it may be shown: UTF-8, with "\\xE9" for a byte
/// that is none, so that two such names can be told apart.
std::string validText(std::string_view bytes);

/// validText() fit for a terminal: control characters, which it might obey, become "?".
std::string terminalText(std::string_view bytes);

/// UTF-8 as the toolkit has it.
QString toQString(std::string_view text);

} // namespace pinmora::tag
