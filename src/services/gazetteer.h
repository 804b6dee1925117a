#pragma once

#include "services/sphere.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

/// Named places, each with its region and country, in the order of the text they come from: by
/// country, region and name.
///
/// Unchanged once made: any thread may read.
class Gazetteer {
public:
    /// Reads lines of "C<tab>country", "R<tab>region" and "name<tab>latitude<tab>longitude", as
    /// script/lib/gazetteer.mjs writes them; other lines are left out.
    explicit Gazetteer(std::string_view text);

    /// The one that comes with the program.
    static Gazetteer bundled();

    std::size_t size() const { return places_.size(); }
    std::string_view name(std::size_t place) const;
    /// "" where it is not known.
    std::string_view region(std::size_t place) const;
    std::string_view country(std::size_t place) const;
    Position position(std::size_t place) const;

    /// Places of the same region have the same heading, a number below headings().
    std::size_t heading(std::size_t place) const { return places_[place].heading; }
    std::size_t headings() const { return headings_.size(); }
    std::string_view headingRegion(std::size_t heading) const { return headings_[heading].region; }
    std::string_view headingCountry(std::size_t heading) const {
        return headings_[heading].country;
    }

private:
    struct Heading {
        std::string country;
        std::string region;
    };
    struct Place {
        std::uint32_t nameAt; ///< its name ends where that of the next begins
        std::uint32_t heading;
        std::int32_t lat; ///< in 1/100,000 degree, as fine as the source is
        std::int32_t lon;
    };

    void readLine(std::string_view line);
    void readHeading(char kind, std::string_view name);

    std::string names_;
    std::vector<Place> places_;
    std::vector<Heading> headings_;
};

} // namespace pinmora
