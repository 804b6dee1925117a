#include "services/folded_names.h"

#include "services/folded_text.h"

#include <algorithm>

namespace pinmora {

FoldedNames::FoldedNames(const Gazetteer &gazetteer) : text_("\n") {
    begins_.reserve(gazetteer.size() + 1);
    for (std::size_t place = 0; place < gazetteer.size(); ++place) {
        begins_.push_back(static_cast<std::uint32_t>(text_.size()));
        text_ += folded(gazetteer.name(place));
        text_ += '\n';
    }
    begins_.push_back(static_cast<std::uint32_t>(text_.size()));
    for (std::size_t heading = 0; heading < gazetteer.headings(); ++heading) {
        regions_.push_back(folded(gazetteer.headingRegion(heading)));
        countries_.push_back(folded(gazetteer.headingCountry(heading)));
    }
}

std::size_t FoldedNames::placeAt(std::size_t offset) const {
    const auto next = std::upper_bound(begins_.begin(), begins_.end(), offset);
    return static_cast<std::size_t>(next - begins_.begin()) - 1;
}

std::string_view FoldedNames::name(std::size_t place) const {
    const std::size_t begin = begins_[place];
    return std::string_view(text_).substr(begin, begins_[place + 1] - begin - 1);
}

} // namespace pinmora
