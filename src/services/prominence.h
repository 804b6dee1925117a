#pragma once

#include "services/folded_names.h"
#include "services/gazetteer.h"

#include <cstddef>
#include <vector>

namespace pinmora {

/// Which of two places more people know, guessed from the gazetteer alone, which has no numbers of
/// inhabitants: towns that their region or their own quarters are named after, then those with more
/// places around them.
class Prominence {
public:
    Prominence(const Gazetteer &gazetteer, const FoldedNames &names);

    /// More for a place that is rather known; means nothing but in comparison.
    int of(std::size_t place) const { return values_[place]; }

private:
    std::vector<int> values_;
};

} // namespace pinmora
