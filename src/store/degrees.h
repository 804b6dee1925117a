#pragma once

#include "persistence/record.h"

#include <cstdint>
#include <optional>

namespace pinmora {

/// One position in three notations: decimal degrees, degrees and decimal minutes, and degrees,
/// minutes and decimal seconds. Positive north and east.
class degrees : public Record {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }

    using Whole = std::optional<std::int32_t>;
    using Decimal = std::optional<float>;
    /// Wide enough for a decimal number as it was typed as well as for one worked out in single
    /// precision.
    using Number = std::optional<double>;

    const Number &degree_lat() const { return read("degree_lat", degree_lat_); }
    void setDegree_lat(Number v) { change("degree_lat", degree_lat_, v); }
    const Whole &degree_min_degree_lat() const {
        return read("degree_min_degree_lat", degree_min_degree_lat_);
    }
    void setDegree_min_degree_lat(Whole v) {
        change("degree_min_degree_lat", degree_min_degree_lat_, v);
    }
    const Decimal &degree_min_min_lat() const {
        return read("degree_min_min_lat", degree_min_min_lat_);
    }
    void setDegree_min_min_lat(Decimal v) { change("degree_min_min_lat", degree_min_min_lat_, v); }
    const Whole &degree_min_sec_degree_lat() const {
        return read("degree_min_sec_degree_lat", degree_min_sec_degree_lat_);
    }
    void setDegree_min_sec_degree_lat(Whole v) {
        change("degree_min_sec_degree_lat", degree_min_sec_degree_lat_, v);
    }
    const Whole &degree_min_sec_min_lat() const {
        return read("degree_min_sec_min_lat", degree_min_sec_min_lat_);
    }
    void setDegree_min_sec_min_lat(Whole v) {
        change("degree_min_sec_min_lat", degree_min_sec_min_lat_, v);
    }
    const Decimal &degree_min_sec_sec_lat() const {
        return read("degree_min_sec_sec_lat", degree_min_sec_sec_lat_);
    }
    void setDegree_min_sec_sec_lat(Decimal v) {
        change("degree_min_sec_sec_lat", degree_min_sec_sec_lat_, v);
    }

    const Number &degree_lon() const { return read("degree_lon", degree_lon_); }
    void setDegree_lon(Number v) { change("degree_lon", degree_lon_, v); }
    const Whole &degree_min_degree_lon() const {
        return read("degree_min_degree_lon", degree_min_degree_lon_);
    }
    void setDegree_min_degree_lon(Whole v) {
        change("degree_min_degree_lon", degree_min_degree_lon_, v);
    }
    const Decimal &degree_min_min_lon() const {
        return read("degree_min_min_lon", degree_min_min_lon_);
    }
    void setDegree_min_min_lon(Decimal v) { change("degree_min_min_lon", degree_min_min_lon_, v); }
    const Whole &degree_min_sec_degree_lon() const {
        return read("degree_min_sec_degree_lon", degree_min_sec_degree_lon_);
    }
    void setDegree_min_sec_degree_lon(Whole v) {
        change("degree_min_sec_degree_lon", degree_min_sec_degree_lon_, v);
    }
    const Whole &degree_min_sec_min_lon() const {
        return read("degree_min_sec_min_lon", degree_min_sec_min_lon_);
    }
    void setDegree_min_sec_min_lon(Whole v) {
        change("degree_min_sec_min_lon", degree_min_sec_min_lon_, v);
    }
    const Decimal &degree_min_sec_sec_lon() const {
        return read("degree_min_sec_sec_lon", degree_min_sec_sec_lon_);
    }
    void setDegree_min_sec_sec_lon(Decimal v) {
        change("degree_min_sec_sec_lon", degree_min_sec_sec_lon_, v);
    }

private:
    Number degree_lat_;
    Whole degree_min_degree_lat_;
    Decimal degree_min_min_lat_;
    Whole degree_min_sec_degree_lat_;
    Whole degree_min_sec_min_lat_;
    Decimal degree_min_sec_sec_lat_;
    Number degree_lon_;
    Whole degree_min_degree_lon_;
    Decimal degree_min_min_lon_;
    Whole degree_min_sec_degree_lon_;
    Whole degree_min_sec_min_lon_;
    Decimal degree_min_sec_sec_lon_;
};

} // namespace pinmora
