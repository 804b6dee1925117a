#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// The number that a text begins with: leading blanks are skipped, then an optional sign and
/// digits with an optional decimal point are read; reading stops at the first other character.
/// No exponent, no "inf" or "nan", the same in every locale. Text with no number reads as 0, a
/// number too large for the type as infinity. Rounded once, from the decimal text to the type.
float leadingFloat(std::string_view text);

/// leadingFloat() in double precision.
double leadingDouble(std::string_view text);

/// The whole number that a text begins with, read likewise; out of range gives the nearest limit.
int leadingInt(std::string_view text);

/// The text without the white space around it.
std::string_view trimmed(std::string_view text);

/// A trimmed text that is a number as a whole: digits with at most one decimal point and perhaps a
/// sign before them ("-33.8568"), no exponent, no other decimal sign. Nothing when it is anything
/// else.
std::optional<double> plainDecimal(std::string_view text);

/// A number as plain decimal text: at most `maxDecimals` decimals, zeros at the end trimmed, never
/// an exponent ("47.3825", "8.5", "-12"; a rounded zero is "0"). Not finite gives "".
std::string decimalText(double value, int maxDecimals = 8);

/// A single-precision number with exactly `decimals` decimals, as printf's "%.*f" writes it in the
/// "C" locale.
std::string fixedText(float value, int decimals);

} // namespace pinmora
