#include "shell/photo_order.h"

#include "matching/photo_gaps.h"
#include "platform/number_text.h"
#include "store/image.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace pinmora {
namespace {

using Less = std::function<bool(const image &, const image &)>;

/// Orders by what `valueOf` answers for a photo (an optional); those without come last either way.
template <class ValueOf>
Less lessBy(ValueOf valueOf, bool ascending) {
    return [valueOf = std::move(valueOf), ascending](const image &a, const image &b) {
        const auto valueA = valueOf(a);
        const auto valueB = valueOf(b);
        if (!valueA || !valueB) {
            return valueA && !valueB;
        }
        return ascending ? *valueA < *valueB : *valueB < *valueA;
    };
}

template <class... Texts>
std::optional<std::tuple<Texts...>> unlessEmpty(Texts... texts) {
    if ((texts.empty() && ...)) {
        return std::nullopt;
    }
    return std::tuple(texts...);
}

std::optional<std::pair<double, double>> positionOf(const image &photo) {
    if (!photo.lat_and_lon()) {
        return std::nullopt;
    }
    return std::pair(leadingDouble(photo.lat().view()), leadingDouble(photo.lon().view()));
}

std::optional<double> altitudeOf(const image &photo) {
    return photo.alt().view().empty() ? std::nullopt
                                      : std::optional(leadingDouble(photo.alt().view()));
}

/// Gaps are searched for once a photo, not once a comparison. A gap depends on the time alone; the
/// address that a photo has left may be another's.
Less lessByGap(PhotoGaps &gaps, bool ascending) {
    struct Known {
        std::optional<Date> date;
        std::optional<std::chrono::seconds> size;
    };
    using KnownGaps = std::unordered_map<const image *, Known>;
    return lessBy(
        [&gaps, known = std::make_shared<KnownGaps>()](const image &photo) {
            const auto [entry, isNew] = known->try_emplace(&photo);
            if (isNew || entry->second.date != photo.date()) {
                const auto gap = gaps.gapOf(photo);
                entry->second = {photo.date(),
                                 gap ? std::optional(std::chrono::abs(*gap)) : std::nullopt};
            }
            return entry->second.size;
        },
        ascending);
}

Less lessFor(const SortOrder &order, PhotoGaps &gaps) {
    const bool ascending = order.ascending;
    if (order.key == "image_name") {
        return lessBy([](const image &photo) { return unlessEmpty(photo.image_name().view()); },
                      ascending);
    }
    if (order.key == "date") {
        return lessBy([](const image &photo) { return photo.date(); }, ascending);
    }
    if (order.key == "lat") {
        return lessBy(positionOf, ascending);
    }
    if (order.key == "alt") {
        return lessBy(altitudeOf, ascending);
    }
    if (order.key == "city") {
        return lessBy(
            [](const image &photo) {
                return unlessEmpty(photo.city().view(), photo.prov().view(),
                                   photo.country().view());
            },
            ascending);
    }
    if (order.key == "camera") {
        return lessBy([](const image &photo) { return unlessEmpty(photo.camera().view()); },
                      ascending);
    }
    return order.key == "gap" ? lessByGap(gaps, ascending) : Less();
}

} // namespace

PhotoOrder::PhotoOrder(ArrayController<image> &pictureArray, PhotoGaps &gaps)
    : pictureArray_(pictureArray), gaps_(gaps),
      orderChosen_(
          order.onChange([this](auto &) { pictureArray_.setSort(lessFor(order.get(), gaps_)); })),
      gapsChanged_(gaps.changed.connect([this] {
          if (order.get().key == "gap") {
              pictureArray_.setSort(lessFor(order.get(), gaps_));
          }
      })) {}

} // namespace pinmora
