#include "persistence/value_text.h"

#include "persistence/xml_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace pinmora {

namespace {

constexpr std::uint64_t microsecondsPerSecond = 1'000'000;

template <typename Number>
void appendNumber(std::string &out, Number number) {
    std::array<char, 32> digits;
    out.append(digits.data(),
               std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
}

/// Seconds since 1970, as many decimals as there are.
void appendDate(std::string &out, Date date) {
    const std::int64_t count = date.time_since_epoch().count();
    const auto bits = static_cast<std::uint64_t>(count);
    const std::uint64_t size = count < 0 ? 0 - bits : bits;
    if (count < 0) {
        out += '-';
    }
    appendNumber(out, size / microsecondsPerSecond);
    if (const std::uint64_t fraction = size % microsecondsPerSecond; fraction != 0) {
        std::string decimals = std::to_string(microsecondsPerSecond + fraction);
        decimals[0] = '.';
        out.append(decimals, 0, decimals.find_last_not_of('0') + 1);
    }
}

template <typename Number>
std::optional<Number> numberFrom(std::string_view text) {
    Number number{};
    const char *const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc{} && result.ptr == end ? std::optional(number) : std::nullopt;
}

/// The decimals of a second as microseconds.
std::optional<std::uint64_t> fractionFrom(std::string_view decimals) {
    constexpr std::size_t most = 6;
    const auto number = numberFrom<std::uint64_t>(decimals);
    if (!number || decimals.size() > most) {
        return std::nullopt;
    }
    std::uint64_t fraction = *number;
    for (std::size_t i = decimals.size(); i < most; ++i) {
        fraction *= 10;
    }
    return fraction;
}

std::optional<Date> dateFrom(std::string_view text) {
    constexpr std::uint64_t highest = std::numeric_limits<std::int64_t>::max();
    const bool negative = text.starts_with('-');
    text.remove_prefix(negative ? 1 : 0);
    const std::size_t point = std::min(text.find('.'), text.size());
    const auto seconds = numberFrom<std::uint64_t>(text.substr(0, point));
    const auto fraction = point == text.size() ? std::optional<std::uint64_t>(0)
                                               : fractionFrom(text.substr(point + 1));
    if (!seconds || !fraction || *seconds > highest / microsecondsPerSecond) {
        return std::nullopt;
    }
    const std::uint64_t size = *seconds * microsecondsPerSecond + *fraction;
    if (size > highest + (negative ? 1 : 0)) {
        return std::nullopt;
    }
    return Date(std::chrono::microseconds(static_cast<std::int64_t>(negative ? 0 - size : size)));
}

template <typename T>
std::optional<Value> valueOf(const std::optional<T> &read) {
    return read ? std::optional(Value(*read)) : std::nullopt;
}

std::optional<Value> bytesFrom(std::string_view text) {
    const std::optional<std::string> decoded = fromBase64(text);
    if (!decoded) {
        return std::nullopt;
    }
    const auto *const first = reinterpret_cast<const std::byte *>(decoded->data());
    return Value(Bytes(first, first + decoded->size()));
}

} // namespace

void appendAttribute(std::string &out, std::string_view key, ValueType type, const Value &value) {
    if (type == ValueType::String) {
        appendTextAttribute(out, key, value.toText().view());
        return;
    }
    out += ' ';
    out += key;
    out += "=\"";
    switch (type) {
    case ValueType::Integer:
        appendNumber(out, value.toInteger().value_or(0));
        break;
    case ValueType::Float:
        appendNumber(out, static_cast<float>(value.toNumber().value_or(0)));
        break;
    case ValueType::Number:
        appendNumber(out, value.toNumber().value_or(0));
        break;
    case ValueType::Bool:
        out += value.toBool().value_or(false) ? '1' : '0';
        break;
    case ValueType::DateTime:
        appendDate(out, value.toDate().value_or(Date()));
        break;
    case ValueType::Data: {
        const Bytes bytes = value.toBytes().value_or(Bytes());
        appendBase64(out, {reinterpret_cast<const char *>(bytes.data()), bytes.size()});
        break;
    }
    case ValueType::String:
        break;
    }
    out += '"';
}

void appendAttribute(std::string &out, std::string_view key, std::uint32_t number) {
    out += ' ';
    out += key;
    out += "=\"";
    appendNumber(out, number);
    out += '"';
}

std::optional<Value> valueFromText(ValueType type, std::string_view text) {
    switch (type) {
    case ValueType::Integer:
        return valueOf(numberFrom<std::int32_t>(text));
    case ValueType::Float:
        return valueOf(numberFrom<float>(text));
    case ValueType::Number:
        return valueOf(numberFrom<double>(text));
    case ValueType::Bool:
        return text == "1" || text == "0" ? std::optional(Value(text == "1")) : std::nullopt;
    case ValueType::DateTime:
        return valueOf(dateFrom(text));
    case ValueType::String:
        return Value(text);
    case ValueType::Data:
        return bytesFrom(text);
    }
    return std::nullopt;
}

std::optional<std::uint32_t> serialFromText(std::string_view text) {
    return numberFrom<std::uint32_t>(text);
}

} // namespace pinmora
