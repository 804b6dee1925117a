#include "store/degrees.h"

#include "persistence/property.h"
#include "platform/number_text.h"

namespace pinmora {

constinit const degrees::Axis degrees::lat{
    .d = {"degree_lat", &degrees::degree_lat_},
    .dmDegree = {"degree_min_degree_lat", &degrees::degree_min_degree_lat_},
    .dmMinute = {"degree_min_min_lat", &degrees::degree_min_min_lat_},
    .dmsDegree = {"degree_min_sec_degree_lat", &degrees::degree_min_sec_degree_lat_},
    .dmsMinute = {"degree_min_sec_min_lat", &degrees::degree_min_sec_min_lat_},
    .dmsSecond = {"degree_min_sec_sec_lat", &degrees::degree_min_sec_sec_lat_},
    .negativeKey = "negative_lat",
    .negative = &degrees::negative_lat_,
};
constinit const degrees::Axis degrees::lon{
    .d = {"degree_lon", &degrees::degree_lon_},
    .dmDegree = {"degree_min_degree_lon", &degrees::degree_min_degree_lon_},
    .dmMinute = {"degree_min_min_lon", &degrees::degree_min_min_lon_},
    .dmsDegree = {"degree_min_sec_degree_lon", &degrees::degree_min_sec_degree_lon_},
    .dmsMinute = {"degree_min_sec_min_lon", &degrees::degree_min_sec_min_lon_},
    .dmsSecond = {"degree_min_sec_sec_lon", &degrees::degree_min_sec_sec_lon_},
    .negativeKey = "negative_lon",
    .negative = &degrees::negative_lon_,
};

const EntityDescription &degrees::description() {
    using D = degrees;
    static const EntityDescription entity(
        "degrees", []() -> std::unique_ptr<Record> { return std::make_unique<D>(); },
        {
            attribute<&D::degree_lat, &D::setDegreeValue_lat, &D::degree_lat_>("degree_lat"),
            attribute<&D::degree_min_degree_lat, &D::setDegree_min_degree_lat,
                      &D::degree_min_degree_lat_>("degree_min_degree_lat"),
            attribute<&D::degree_min_min_lat, &D::setDegree_min_min_lat, &D::degree_min_min_lat_>(
                "degree_min_min_lat"),
            attribute<&D::degree_min_sec_degree_lat, &D::setDegree_min_sec_degree_lat,
                      &D::degree_min_sec_degree_lat_>("degree_min_sec_degree_lat"),
            attribute<&D::degree_min_sec_min_lat, &D::setDegree_min_sec_min_lat,
                      &D::degree_min_sec_min_lat_>("degree_min_sec_min_lat"),
            attribute<&D::degree_min_sec_sec_lat, &D::setDegree_min_sec_sec_lat,
                      &D::degree_min_sec_sec_lat_>("degree_min_sec_sec_lat"),
            derived<&D::negative_lat>("negative_lat", {"degree_lat", "degree_min_degree_lat",
                                                       "degree_min_sec_degree_lat"}),
            attribute<&D::degree_lon, &D::setDegreeValue_lon, &D::degree_lon_>("degree_lon"),
            attribute<&D::degree_min_degree_lon, &D::setDegree_min_degree_lon,
                      &D::degree_min_degree_lon_>("degree_min_degree_lon"),
            attribute<&D::degree_min_min_lon, &D::setDegree_min_min_lon, &D::degree_min_min_lon_>(
                "degree_min_min_lon"),
            attribute<&D::degree_min_sec_degree_lon, &D::setDegree_min_sec_degree_lon,
                      &D::degree_min_sec_degree_lon_>("degree_min_sec_degree_lon"),
            attribute<&D::degree_min_sec_min_lon, &D::setDegree_min_sec_min_lon,
                      &D::degree_min_sec_min_lon_>("degree_min_sec_min_lon"),
            attribute<&D::degree_min_sec_sec_lon, &D::setDegree_min_sec_sec_lon,
                      &D::degree_min_sec_sec_lon_>("degree_min_sec_sec_lon"),
            derived<&D::negative_lon>("negative_lon", {"degree_lon", "degree_min_degree_lon",
                                                       "degree_min_sec_degree_lon"}),
        },
        Lifetime::Memory);
    return entity;
}

void degrees::showPosition(const Text &latitude, const Text &longitude) {
    setDegreeValue_lat(latitude);
    setDegreeValue_lon(longitude);
}

degrees::Number degrees::numberIn(const Value &value) {
    return plainDecimal(value.toText().view()) ? value.toNumber() : std::nullopt;
}

void degrees::setDegree(const Axis &axis, Number value) {
    willChangeValueForKey(axis.d.key);
    this->*axis.d.field = value;
    this->*axis.negative = value.value_or(0) < 0;
    didChangeValueForKey(axis.d.key);
    updateDegreeMinFromD(axis);
    updateDegreeMinSecFromD(axis);
}

void degrees::setDegreeMin(const Axis &axis, const Component &edited, Number value) {
    edit(axis, edited, value, axis.dmDegree);
    updateDegreeFromDM(axis);
    updateDegreeMinSecFromDM(axis);
}

void degrees::setDegreeMinSec(const Axis &axis, const Component &edited, Number value) {
    edit(axis, edited, value, axis.dmsDegree);
    updateDegreeFromDMS(axis);
    updateDegreeMinFromDMS(axis);
}

/// Stores a component of a notation and keeps the hemisphere in step with that notation's whole
/// degrees; 0, also -0, says nothing about it.
void degrees::edit(const Axis &axis, const Component &edited, Number value,
                   const Component &whole) {
    willChangeValueForKey(edited.key);
    this->*edited.field = value;
    const double wholeDegrees = (this->*whole.field).value_or(0);
    if (wholeDegrees != 0) {
        this->*axis.negative = wholeDegrees < 0;
    }
    didChangeValueForKey(edited.key);
}

void degrees::setNegative(const Axis &axis, bool negative) {
    change(axis.negativeKey, this->*axis.negative, negative);
    for (const Component &component : {axis.dmDegree, axis.dmsDegree, axis.d}) {
        const double value = (this->*component.field).value_or(0);
        if (value != 0 && (value < 0) != negative) {
            write(component, -value);
        }
    }
}

} // namespace pinmora
