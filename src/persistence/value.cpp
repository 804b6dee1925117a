#include "persistence/value.h"

#include "platform/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace pinmora {

namespace {

std::int32_t truncated(double number) {
    constexpr double low = std::numeric_limits<std::int32_t>::min();
    constexpr double high = std::numeric_limits<std::int32_t>::max();
    return number == number ? static_cast<std::int32_t>(std::clamp(number, low, high)) : 0;
}

/// The fewest digits that read back as the same number, without an exponent.
std::string shortestDecimalText(double number) {
    std::array<char, 400> buffer; // the longest double has 309 digits before the point
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                   std::chars_format::fixed)
                         .ptr;
    return {buffer.data(), end};
}

} // namespace

std::optional<bool> Value::toBool() const {
    if (const auto *flag = std::get_if<bool>(&held_)) {
        return *flag;
    }
    const std::optional<double> number = toNumber();
    return number ? std::optional(*number != 0) : std::nullopt;
}

std::optional<std::int32_t> Value::toInteger() const {
    if (const auto *whole = std::get_if<std::int32_t>(&held_)) {
        return *whole;
    }
    if (const auto *text = std::get_if<Text>(&held_)) {
        return leadingInt(text->view());
    }
    const std::optional<double> number = toNumber();
    return number ? std::optional(truncated(*number)) : std::nullopt;
}

std::optional<double> Value::toNumber() const {
    if (const auto *number = std::get_if<double>(&held_)) {
        return *number;
    }
    if (const auto *whole = std::get_if<std::int32_t>(&held_)) {
        return *whole;
    }
    if (const auto *flag = std::get_if<bool>(&held_)) {
        return *flag ? 1 : 0;
    }
    if (const auto *text = std::get_if<Text>(&held_)) {
        return leadingDouble(text->view());
    }
    return std::nullopt;
}

std::optional<Date> Value::toDate() const {
    const auto *date = std::get_if<Date>(&held_);
    return date ? std::optional(*date) : std::nullopt;
}

Text Value::toText() const {
    if (const auto *text = std::get_if<Text>(&held_)) {
        return *text;
    }
    const std::optional<double> number = toNumber();
    return number ? Text(shortestDecimalText(*number)) : Text();
}

std::optional<Bytes> Value::toBytes() const {
    const auto *bytes = std::get_if<Bytes>(&held_);
    return bytes ? std::optional(*bytes) : std::nullopt;
}

Record *Value::toRecord() const {
    const auto *record = std::get_if<Record *>(&held_);
    return record ? *record : nullptr;
}

RecordList Value::toRecordList() const {
    const auto *records = std::get_if<RecordList>(&held_);
    return records ? *records : RecordList();
}

} // namespace pinmora
