#include "platform/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace pinmora {

namespace {

bool isBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// A number as it stands in a text.
struct Numeral {
    bool negative = false;
    std::string_view digits; ///< with at most one point; empty when there is no digit
    std::string_view whole;  ///< the digits before the point
};

/// How many characters of such a kind the text begins with.
template <typename Kind>
std::size_t runOf(Kind kind, std::string_view text) {
    const auto end = std::find_if_not(text.begin(), text.end(), kind);
    return static_cast<std::size_t>(end - text.begin());
}

Numeral numeralAt(std::string_view text) {
    Numeral numeral;
    text.remove_prefix(runOf(isBlank, text));
    const char sign = text.empty() ? '\0' : text.front();
    if (sign == '-' || sign == '+') {
        text.remove_prefix(1);
    }
    const std::size_t whole = runOf(isDigit, text);
    std::size_t length = whole;
    if (length < text.size() && text[length] == '.') {
        const std::size_t decimals = runOf(isDigit, text.substr(length + 1));
        length = whole + decimals > 0 ? length + 1 + decimals : 0;
    }
    numeral.negative = sign == '-' && length > 0;
    numeral.digits = text.substr(0, length);
    numeral.whole = text.substr(0, whole);
    return numeral;
}

template <typename Real>
Real leadingReal(std::string_view text) {
    const Numeral numeral = numeralAt(text);
    const char *const end = numeral.digits.data() + numeral.digits.size();
    Real value = 0;
    const auto result =
        std::from_chars(numeral.digits.data(), end, value, std::chars_format::fixed);
    if (result.ec == std::errc::result_out_of_range) {
        const bool large = numeral.whole.find_first_not_of('0') != std::string_view::npos;
        value = large ? std::numeric_limits<Real>::infinity() : 0;
    }
    return numeral.negative ? -value : value;
}

/// printf's "%.*f"; `longest` is the most characters that a number of the type has before its
/// point.
template <typename Real>
std::string fixed(Real value, int decimals, std::size_t longest) {
    std::string text(longest + 1 + static_cast<std::size_t>(decimals), '\0');
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value,
                                      std::chars_format::fixed, decimals);
    text.resize(static_cast<std::size_t>(result.ptr - text.data()));
    return text;
}

template <typename Real>
constexpr std::size_t longestWhole = std::numeric_limits<Real>::max_exponent10 + 2; // with a sign

} // namespace

float leadingFloat(std::string_view text) {
    return leadingReal<float>(text);
}

double leadingDouble(std::string_view text) {
    return leadingReal<double>(text);
}

int leadingInt(std::string_view text) {
    const Numeral numeral = numeralAt(text);
    long long value = 0;
    const auto result =
        std::from_chars(numeral.whole.data(), numeral.whole.data() + numeral.whole.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        value = std::numeric_limits<long long>::max();
    }
    return static_cast<int>(std::clamp<long long>(numeral.negative ? -value : value,
                                                  std::numeric_limits<int>::min(),
                                                  std::numeric_limits<int>::max()));
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\n\v\f\r";
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::optional<double> plainDecimal(std::string_view text) {
    text = trimmed(text);
    std::string_view digits = text;
    if (digits.starts_with('-') || digits.starts_with('+')) {
        digits.remove_prefix(1);
    }
    const bool plain = digits.find_first_of("0123456789") != std::string_view::npos &&
                       digits.find_first_not_of("0123456789.") == std::string_view::npos &&
                       std::count(digits.begin(), digits.end(), '.') <= 1;
    return plain ? std::optional(leadingDouble(text)) : std::nullopt;
}

std::string decimalText(double value, int maxDecimals) {
    if (!std::isfinite(value)) {
        return {};
    }
    std::string text = fixed(value, maxDecimals, longestWhole<double>);
    if (maxDecimals > 0) {
        text.resize(text.find_last_not_of('0') + 1);
        if (text.back() == '.') {
            text.pop_back();
        }
    }
    return text == "-0" ? "0" : text;
}

std::string fixedText(float value, int decimals) {
    return fixed(value, decimals, longestWhole<float>);
}

} // namespace pinmora
