#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

/// Texts for people, in their language as far as the program's translation has them, in UTF-8. The
/// context is the name of the room; the text itself is English and stands in the source as a
/// literal, where the translation's tools find it.
namespace pinmora {

/// `text` in the language of the program.
std::string translated(const char *context, const char *text);

/// The same for texts with a number in them, where "%n" stands, or "%Ln" for one with its digits in
/// groups: `one` is the English for exactly one, `many` for any other number. A translation has as
/// many forms as its language needs.
std::string translated(const char *context, const char *many, const char *one, std::size_t count);

/// `text` with `values` in the places of "%1", "%2", up to "%9", bytes as they are: names of files
/// need not be UTF-8, and what looks like a place in a value is none.
std::string filled(std::string_view text, std::initializer_list<std::string_view> values);

} // namespace pinmora
