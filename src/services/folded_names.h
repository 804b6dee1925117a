#pragma once

#include "services/gazetteer.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

/// The names of a gazetteer as folded() makes them, in one text, so that a search is one pass over
/// it. Unchanged once made: any thread may read.
class FoldedNames {
public:
    explicit FoldedNames(const Gazetteer &gazetteer);

    /// All names in the gazetteer's order, each between two line ends.
    std::string_view text() const { return text_; }
    /// Whose name the character at an offset of text() belongs to.
    std::size_t placeAt(std::size_t offset) const;
    std::string_view name(std::size_t place) const;

    std::string_view region(std::size_t heading) const { return regions_[heading]; }
    std::string_view country(std::size_t heading) const { return countries_[heading]; }

private:
    std::string text_;
    std::vector<std::uint32_t> begins_; ///< of each name in text_, and one beyond the last
    std::vector<std::string> regions_;
    std::vector<std::string> countries_;
};

} // namespace pinmora
