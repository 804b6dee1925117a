#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// A set of record serials. Serials in a row cost one entry, however many they are.
class SerialRanges {
public:
    /// First serial of each row, and its last.
    using Rows = std::map<std::uint32_t, std::uint32_t>;

    bool isEmpty() const { return rows_.empty(); }
    const Rows &rows() const { return rows_; }
    bool contains(std::uint32_t serial) const;
    std::uint64_t count() const;

    void clear() { rows_.clear(); }
    void add(std::uint32_t first, std::uint32_t last);
    /// Fast where serials come in order, rising or falling.
    void add(std::uint32_t serial) { add(serial, serial); }
    void remove(std::uint32_t first, std::uint32_t last);
    void add(const SerialRanges &other);
    void remove(const SerialRanges &other);

    /// What is in both.
    SerialRanges common(const SerialRanges &other) const;

    /// "3 7-1000 1002"; "" for none.
    std::string text() const;
    /// Nothing for a text that text() could not have made.
    static std::optional<SerialRanges> fromText(std::string_view text);

    friend bool operator==(const SerialRanges &, const SerialRanges &) = default;

private:
    Rows rows_; ///< no two overlap or touch
};

} // namespace pinmora
