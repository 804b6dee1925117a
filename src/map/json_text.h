#pragma once

#include <string>
#include <string_view>

namespace pinmora {

/// Appends a finite number as JSON has it, with all its digits.
void appendJson(std::string &json, double number);
/// Appends a text with its quotation marks. What is no UTF-8 in it becomes U+FFFD.
void appendJson(std::string &json, std::string_view text);

} // namespace pinmora
