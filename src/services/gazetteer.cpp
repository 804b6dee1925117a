#include "services/gazetteer.h"

#include "services/bundled_files.h"

#include <algorithm>
#include <array>
#include <optional>

namespace pinmora {
namespace {

constexpr int decimals = 5;
constexpr double unitsPerDegree = 100'000;

/// "-12.345" in 1/100,000 degree; nothing for what is no such number. The general readers of
/// numbers take several times as long, and 340,000 of these are read before the first answer.
std::optional<std::int32_t> hundredThousandths(std::string_view text) {
    const bool negative = text.starts_with('-');
    if (negative) {
        text.remove_prefix(1);
    }
    const std::size_t point = std::min(text.find('.'), text.size());
    const std::size_t behind = text.size() - std::min(point + 1, text.size());
    if (point == 0 || point > 3 || behind > decimals) {
        return std::nullopt;
    }
    std::int32_t value = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i == point) {
            continue;
        }
        if (text[i] < '0' || text[i] > '9') {
            return std::nullopt;
        }
        value = 10 * value + (text[i] - '0');
    }
    constexpr std::array scale{100'000, 10'000, 1'000, 100, 10, 1};
    value *= scale[behind];
    return negative ? -value : value;
}

} // namespace

Gazetteer::Gazetteer(std::string_view text) {
    names_.reserve(text.size() / 2);
    places_.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')));
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        readLine(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    names_.shrink_to_fit();
}

Gazetteer Gazetteer::bundled() {
    return Gazetteer(bundledGazetteer());
}

void Gazetteer::readLine(std::string_view line) {
    const std::size_t first = line.find('\t');
    if (first == std::string_view::npos) {
        return;
    }
    const std::size_t second = line.find('\t', first + 1);
    if (second == std::string_view::npos) {
        if (first == 1) {
            readHeading(line.front(), line.substr(2));
        }
        return;
    }
    const auto lat = hundredThousandths(line.substr(first + 1, second - first - 1));
    const auto lon = hundredThousandths(line.substr(second + 1));
    if (lat && lon && !headings_.empty()) {
        places_.push_back({static_cast<std::uint32_t>(names_.size()),
                           static_cast<std::uint32_t>(headings_.size() - 1), *lat, *lon});
        names_.append(line.substr(0, first));
    }
}

void Gazetteer::readHeading(char kind, std::string_view name) {
    if (kind == 'C') {
        headings_.push_back({std::string(name), {}});
    } else if (kind == 'R' && !headings_.empty()) {
        headings_.push_back({headings_.back().country, std::string(name)});
    }
}

std::string_view Gazetteer::name(std::size_t place) const {
    const std::size_t begin = places_[place].nameAt;
    const std::size_t end = place + 1 < places_.size() ? places_[place + 1].nameAt : names_.size();
    return std::string_view(names_).substr(begin, end - begin);
}

std::string_view Gazetteer::region(std::size_t place) const {
    return headings_[places_[place].heading].region;
}

std::string_view Gazetteer::country(std::size_t place) const {
    return headings_[places_[place].heading].country;
}

Position Gazetteer::position(std::size_t place) const {
    return {places_[place].lat / unitsPerDegree, places_[place].lon / unitsPerDegree};
}

} // namespace pinmora
