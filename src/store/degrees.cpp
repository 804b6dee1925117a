#include "store/degrees.h"

#include "persistence/property.h"

namespace pinmora {

const EntityDescription &degrees::description() {
    using D = degrees;
    static const EntityDescription entity(
        "degrees", []() -> std::unique_ptr<Record> { return std::make_unique<D>(); },
        {
            attribute<&D::degree_lat, &D::setDegree_lat, &D::degree_lat_>("degree_lat"),
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
            attribute<&D::degree_lon, &D::setDegree_lon, &D::degree_lon_>("degree_lon"),
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
        });
    return entity;
}

} // namespace pinmora
