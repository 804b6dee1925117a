#include "services/prominence.h"

#include <cmath>
#include <cstdint>
#include <numbers>
#include <string>
#include <string_view>
#include <unordered_map>

namespace pinmora {
namespace {

constexpr int named = 1'000'000; ///< above what the surroundings give

/// "Zürich (Kreis 6) / Oberstrass": in some countries there are many of these.
bool isQuarter(std::string_view name) {
    return name.find_first_of("(/") != std::string_view::npos;
}

/// A tenth of a degree, 11 km, is about the size of a large town.
constexpr double cellsPerDegree = 10;

/// The places, without quarters, counted by cells of about the same size everywhere.
class Density {
public:
    explicit Density(const Gazetteer &gazetteer) {
        counts_.reserve(gazetteer.size());
        for (std::size_t place = 0; place < gazetteer.size(); ++place) {
            counts_[cell(gazetteer.position(place), 0, 0)] +=
                isQuarter(gazetteer.name(place)) ? 0 : 1;
        }
    }

    int around(Position position) const {
        int sum = 0;
        for (int rows = -1; rows <= 1; ++rows) {
            for (int columns = -1; columns <= 1; ++columns) {
                const auto found = counts_.find(cell(position, rows, columns));
                sum += found == counts_.end() ? 0 : found->second;
            }
        }
        return sum;
    }

private:
    static std::int64_t cell(Position position, int rows, int columns) {
        const auto row =
            static_cast<std::int64_t>(std::floor(position.lat * cellsPerDegree)) + rows;
        const double middle = (static_cast<double>(row) + 0.5) / cellsPerDegree;
        const double shrunk = std::cos(middle * std::numbers::pi / 180);
        const auto column =
            static_cast<std::int64_t>(std::floor(position.lon * shrunk * cellsPerDegree)) + columns;
        return row * 1'000'000 + column;
    }

    std::unordered_map<std::int64_t, int> counts_;
};

/// Whether the next places in the gazetteer are quarters: "Paris", "Paris 01", "Paris 02".
bool hasQuarters(const Gazetteer &gazetteer, const FoldedNames &names, std::size_t place) {
    constexpr double near = 0.2; // degrees
    constexpr std::size_t least = 3;
    const std::string beginning = std::string(names.name(place)) + ' ';
    for (std::size_t next = place + 1; next <= place + least; ++next) {
        if (next >= gazetteer.size() || !names.name(next).starts_with(beginning)) {
            return false;
        }
        const auto [lat, lon] = gazetteer.position(place);
        const auto [nextLat, nextLon] = gazetteer.position(next);
        if (std::abs(nextLat - lat) > near || std::abs(nextLon - lon) > near) {
            return false;
        }
    }
    return true;
}

} // namespace

Prominence::Prominence(const Gazetteer &gazetteer, const FoldedNames &names) {
    const Density density(gazetteer);
    values_.reserve(gazetteer.size());
    for (std::size_t place = 0; place < gazetteer.size(); ++place) {
        const bool isNamed = names.name(place) == names.region(gazetteer.heading(place)) ||
                             hasQuarters(gazetteer, names, place);
        values_.push_back(isQuarter(gazetteer.name(place))
                              ? 0
                              : density.around(gazetteer.position(place)) + (isNamed ? named : 0));
    }
}

} // namespace pinmora
