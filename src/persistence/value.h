#pragma once

#include "persistence/text.h"
#include "platform/date.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace pinmora {

class Record;

using Bytes = std::vector<std::byte>;
using RecordList = std::vector<Record *>;

/// What a key of a record holds, whatever its type: nothing, a flag, a whole number, a number, an
/// instant, a text, bytes, another record, or the members of a to-many relationship.
///
/// Readers of a foreign type convert the way the system always has: nothing reads as 0 or as no
/// text, a text as the number it begins with, a number as plain decimal text.
class Value {
public:
    Value() = default;
    Value(std::nullopt_t) {}
    Value(bool value) : held_(value) {}
    Value(std::int32_t value) : held_(value) {}
    Value(double value) : held_(value) {}
    Value(float value) : held_(static_cast<double>(value)) {}
    Value(Date value) : held_(value) {}
    Value(Text value) {
        if (value.hasValue()) {
            held_ = std::move(value);
        }
    }
    Value(std::string_view value) : held_(Text(value)) {}
    Value(const std::string &value) : held_(Text(value)) {}
    Value(const char *value) : held_(Text(value)) {}
    Value(Bytes value) : held_(std::move(value)) {}
    Value(Record *value) {
        if (value) {
            held_ = value;
        }
    }
    Value(RecordList value) : held_(std::move(value)) {}
    template <class T>
    Value(const std::optional<T> &value) {
        if (value) {
            *this = Value(*value);
        }
    }

    bool hasValue() const { return held_.index() != 0; }
    friend bool operator==(const Value &, const Value &) = default;

    std::optional<bool> toBool() const;
    std::optional<std::int32_t> toInteger() const;
    std::optional<double> toNumber() const;
    std::optional<Date> toDate() const;
    Text toText() const;
    std::optional<Bytes> toBytes() const;
    Record *toRecord() const;
    RecordList toRecordList() const;

    /// toInteger() with nothing read as 0.
    std::int32_t integer() const { return toInteger().value_or(0); }

private:
    std::variant<std::monostate, bool, std::int32_t, double, Date, Text, Bytes, Record *,
                 RecordList>
        held_;
};

} // namespace pinmora
