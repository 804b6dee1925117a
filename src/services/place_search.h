#pragma once

#include "services/folded_names.h"
#include "services/gazetteer.h"
#include "services/prominence.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

/// Finds places by what a person types: names without regard to case and accents.
class PlaceSearch {
public:
    /// All must outlive it.
    PlaceSearch(const Gazetteer &gazetteer, const FoldedNames &names, const Prominence &prominence)
        : gazetteer_(gazetteer), names_(names), prominence_(prominence) {}

    /// At most `limit` places, the best first: whose name is the text, then whose name begins with
    /// it, then with a word of the name that begins so. "Name, region or country" leaves those
    /// elsewhere out; where nothing is found, the last words are taken for such ("paris texas").
    /// Of equally good ones those nearer to `near` come first, else the more prominent.
    std::vector<std::size_t> find(std::string_view text, std::optional<Position> near,
                                  std::size_t limit) const;

private:
    struct Query;
    struct Match;

    std::vector<Match> matches(const Query &query) const;
    bool liesIn(std::size_t place, std::string_view area) const;
    bool liesIn(std::size_t place, const Query &query) const;
    std::vector<Match> matchesOfWords(const std::string &words) const;

    const Gazetteer &gazetteer_;
    const FoldedNames &names_;
    const Prominence &prominence_;
};

} // namespace pinmora
