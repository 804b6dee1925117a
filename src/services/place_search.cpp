#include "services/place_search.h"

#include "services/folded_text.h"

#include <algorithm>
#include <string>
#include <tuple>

namespace pinmora {
namespace {

/// Longer than any name of the gazetteer with its region and country.
constexpr std::size_t longestText = 300;

/// No region or country has a name of more words.
constexpr int mostAreaWords = 8;

/// Whether a word of a folded text begins with a folded part.
bool hasWord(std::string_view text, std::string_view part) {
    for (std::size_t at = text.find(part); at != std::string_view::npos;
         at = text.find(part, at + 1)) {
        if (at == 0 || text[at - 1] == ' ') {
            return true;
        }
    }
    return false;
}

} // namespace

/// All folded.
struct PlaceSearch::Query {
    std::string name;
    std::vector<std::string> areas; ///< each a region or a country, or how one begins
};

struct PlaceSearch::Match {
    std::size_t place;
    int rank;            ///< 0: the whole name, 1: its beginning, 2: the beginning of a word
    double distance = 0; ///< or obscurity, where it is not known from where
};

bool PlaceSearch::liesIn(std::size_t place, std::string_view area) const {
    const std::size_t heading = gazetteer_.heading(place);
    return hasWord(names_.region(heading), area) || hasWord(names_.country(heading), area);
}

bool PlaceSearch::liesIn(std::size_t place, const Query &query) const {
    return std::all_of(query.areas.begin(), query.areas.end(),
                       [&](const std::string &area) { return liesIn(place, area); });
}

std::vector<PlaceSearch::Match> PlaceSearch::matches(const Query &query) const {
    std::vector<Match> found;
    const std::string_view text = names_.text();
    std::size_t at = query.name.empty() ? std::string_view::npos : text.find(query.name);
    while (at != std::string_view::npos) {
        const char before = text[at - 1];
        std::size_t next = at + 1;
        if (before == '\n' || before == ' ') {
            const std::size_t place = names_.placeAt(at);
            const bool whole = text[at + query.name.size()] == '\n';
            if (liesIn(place, query)) {
                found.push_back({place, before == ' ' ? 2 : whole ? 0 : 1});
            }
            // The first match within a name is its best.
            next = text.find('\n', at);
        }
        at = text.find(query.name, next);
    }
    return found;
}

std::vector<PlaceSearch::Match> PlaceSearch::matchesOfWords(const std::string &words) const {
    std::vector<Match> found = matches({words, {}});
    std::size_t blank = words.rfind(' ');
    for (int parts = 0; parts < mostAreaWords && found.empty() && blank < words.size(); ++parts) {
        found = matches({words.substr(0, blank), {words.substr(blank + 1)}});
        blank = words.rfind(' ', blank - 1);
    }
    return found;
}

std::vector<std::size_t> PlaceSearch::find(std::string_view text, std::optional<Position> near,
                                           std::size_t limit) const {
    if (text.size() > longestText) {
        return {};
    }
    const std::size_t comma = std::min(text.find(','), text.size());
    Query query{folded(text.substr(0, comma)), {}};
    while (!(text = text.substr(std::min(text.find(','), text.size()))).empty()) {
        text.remove_prefix(1);
        query.areas.push_back(folded(text.substr(0, text.find(','))));
    }
    std::vector<Match> found = query.areas.empty() ? matchesOfWords(query.name) : matches(query);
    const UnitVector centre = unitVector(near.value_or(Position{}));
    for (Match &match : found) {
        match.distance = near ? squaredChord(unitVector(gazetteer_.position(match.place)), centre)
                              : -prominence_.of(match.place);
    }
    const auto end = found.begin() + static_cast<std::ptrdiff_t>(std::min(limit, found.size()));
    std::partial_sort(found.begin(), end, found.end(), [](const Match &a, const Match &b) {
        return std::tie(a.rank, a.distance, a.place) < std::tie(b.rank, b.distance, b.place);
    });
    std::vector<std::size_t> places;
    std::transform(found.begin(), end, std::back_inserter(places),
                   [](const Match &match) { return match.place; });
    return places;
}

} // namespace pinmora
