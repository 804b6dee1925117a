#include "store/offset.h"

#include "persistence/property.h"

namespace pinmora {

const EntityDescription &offset::description() {
    static const EntityDescription entity(
        "offset", []() -> std::unique_ptr<Record> { return std::make_unique<offset>(); },
        {
            attribute<&offset::plus, &offset::setPlus, &offset::plus_>("plus"),
            attribute<&offset::hours, &offset::setHours, &offset::hours_>("hours"),
            attribute<&offset::minutes, &offset::setMinutes, &offset::minutes_>("minutes"),
            attribute<&offset::seconds, &offset::setSeconds, &offset::seconds_>("seconds"),
            attribute<&offset::offset_set, &offset::setOffset_set, &offset::offset_set_>(
                "offset_set"),
            derived<&offset::not_enabled>("not_enabled"),
        });
    return entity;
}

std::chrono::seconds offset::signedOffset() const {
    const std::chrono::seconds sum = std::chrono::hours(hours().value_or(0)) +
                                     std::chrono::minutes(minutes().value_or(0)) +
                                     std::chrono::seconds(seconds().value_or(0));
    return plus().value_or(0) == 0 ? -sum : sum;
}

} // namespace pinmora
