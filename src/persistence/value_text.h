#pragma once

#include "persistence/entity_description.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// Appends a value as an XML attribute, with the blank before it: ` lat="47.38"`. The value must be
/// there and of that type.
void appendAttribute(std::string &out, std::string_view key, ValueType type, const Value &value);

/// Appends a whole number as an XML attribute.
void appendAttribute(std::string &out, std::string_view key, std::uint32_t number);

/// The value that an attribute's text stands for. Nothing for a text that appendAttribute() does
/// not write for that type.
std::optional<Value> valueFromText(ValueType type, std::string_view text);

/// A decimal number from 0 to 4294967295, nothing else around it.
std::optional<std::uint32_t> serialFromText(std::string_view text);

} // namespace pinmora
