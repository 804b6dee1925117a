#include "recovery/serial_ranges.h"

#include <algorithm>
#include <charconv>

namespace pinmora {

bool SerialRanges::contains(std::uint32_t serial) const {
    const auto after = rows_.upper_bound(serial);
    return after != rows_.begin() && serial <= std::prev(after)->second;
}

std::uint64_t SerialRanges::count() const {
    std::uint64_t count = 0;
    for (const auto &[first, last] : rows_) {
        count += std::uint64_t{last} - first + 1;
    }
    return count;
}

void SerialRanges::add(std::uint32_t first, std::uint32_t last) {
    auto row = rows_.upper_bound(first);
    if (row != rows_.begin() && std::uint64_t{std::prev(row)->second} + 1 >= first) {
        --row;
        first = row->first;
        last = std::max(last, row->second);
    }
    auto end = row;
    while (end != rows_.end() && end->first <= std::uint64_t{last} + 1) {
        last = std::max(last, end->second);
        ++end;
    }
    if (row != end && row->first == first) {
        row->second = last;
        rows_.erase(std::next(row), end);
    } else if (row != end && std::next(row) == end) {
        auto node = rows_.extract(row); // a row that grows at its front, as when serials fall
        node.key() = first;
        node.mapped() = last;
        rows_.insert(std::move(node));
    } else {
        rows_.emplace_hint(rows_.erase(row, end), first, last);
    }
}

void SerialRanges::remove(std::uint32_t first, std::uint32_t last) {
    auto row = rows_.upper_bound(first);
    if (row != rows_.begin()) {
        --row;
    }
    while (row != rows_.end() && row->first <= last) {
        const auto [rowFirst, rowLast] = *row;
        if (rowLast < first) {
            ++row;
            continue;
        }
        row = rows_.erase(row);
        if (rowFirst < first) {
            rows_.emplace_hint(row, rowFirst, first - 1);
        }
        if (rowLast > last) {
            rows_.emplace_hint(row, last + 1, rowLast);
        }
    }
}

void SerialRanges::add(const SerialRanges &other) {
    for (const auto &[first, last] : other.rows_) {
        add(first, last);
    }
}

void SerialRanges::remove(const SerialRanges &other) {
    for (const auto &[first, last] : other.rows_) {
        remove(first, last);
    }
}

SerialRanges SerialRanges::common(const SerialRanges &other) const {
    SerialRanges both;
    auto mine = rows_.begin();
    auto theirs = other.rows_.begin();
    while (mine != rows_.end() && theirs != other.rows_.end()) {
        const std::uint32_t first = std::max(mine->first, theirs->first);
        const std::uint32_t last = std::min(mine->second, theirs->second);
        if (first <= last) {
            both.rows_.emplace_hint(both.rows_.end(), first, last);
        }
        (mine->second < theirs->second ? mine : theirs)++;
    }
    return both;
}

std::string SerialRanges::text() const {
    std::string text;
    for (const auto &[first, last] : rows_) {
        text += (text.empty() ? "" : " ") + std::to_string(first);
        text += first == last ? "" : "-" + std::to_string(last);
    }
    return text;
}

std::optional<SerialRanges> SerialRanges::fromText(std::string_view text) {
    SerialRanges ranges;
    const char *at = text.data();
    const char *const end = at + text.size();
    const auto read = [&](std::uint32_t &number) {
        const auto [stop, error] = std::from_chars(at, end, number);
        at = stop;
        return error == std::errc();
    };
    const auto skip = [&](char c) { return at != end && *at == c && ++at; };
    while (at != end) {
        std::uint32_t first = 0;
        if (!read(first)) {
            return std::nullopt;
        }
        std::uint32_t last = first;
        if (skip('-') && (!read(last) || last < first)) {
            return std::nullopt;
        }
        ranges.add(first, last);
        if (at != end && !(skip(' ') && at != end)) {
            return std::nullopt;
        }
    }
    return ranges;
}

} // namespace pinmora
