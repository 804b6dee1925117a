#pragma once

#include "persistence/record.h"

#include <optional>
#include <string_view>

namespace pinmora {

/// One position in three notations: decimal degrees (D), whole degrees and decimal minutes (D-M),
/// and whole degrees, whole minutes and decimal seconds (D-M-S). Positive north and east; in D-M
/// and D-M-S the whole degrees carry the sign.
///
/// Every value is kept as it was given. Each setter then works out the other two notations of its
/// axis, mostly in single precision, by the two conversions that belong to it and no more, so that
/// what a person has typed is never written over.
class degrees : public Record {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }

    /// A number or none; none counts as 0.
    using Number = std::optional<double>;

    /// Shows a position given as texts in decimal degrees; one without a number is no value. By key
    /// the two can be given so one by one.
    void showPosition(const Text &latitude, const Text &longitude);

    const Number &degree_lat() const { return get(lat.d); }
    void setDegree_lat(Number v) { setDegree(lat, v); }
    const Number &degree_min_degree_lat() const { return get(lat.dmDegree); }
    void setDegree_min_degree_lat(Number v) { setDegreeMin(lat, lat.dmDegree, v); }
    const Number &degree_min_min_lat() const { return get(lat.dmMinute); }
    void setDegree_min_min_lat(Number v) { setDegreeMin(lat, lat.dmMinute, v); }
    const Number &degree_min_sec_degree_lat() const { return get(lat.dmsDegree); }
    void setDegree_min_sec_degree_lat(Number v) { setDegreeMinSec(lat, lat.dmsDegree, v); }
    const Number &degree_min_sec_min_lat() const { return get(lat.dmsMinute); }
    void setDegree_min_sec_min_lat(Number v) { setDegreeMinSec(lat, lat.dmsMinute, v); }
    const Number &degree_min_sec_sec_lat() const { return get(lat.dmsSecond); }
    void setDegree_min_sec_sec_lat(Number v) { setDegreeMinSec(lat, lat.dmsSecond, v); }
    /// Whether the position lies south, also where its whole degrees are 0 and cannot say so: as D
    /// says, or the last whole degrees that were not 0, or this setter.
    bool negative_lat() const { return read(lat.negativeKey, this->*lat.negative); }
    /// Moves the position to the other hemisphere: D and the whole degrees change their signs.
    void setNegative_lat(bool negative) { setNegative(lat, negative); }

    void updateDegreeMin_FromD_lat() { updateDegreeMinFromD(lat); }
    void updateDegreeMinSec_FromD_lat() { updateDegreeMinSecFromD(lat); }
    void updateDegree_FromDM_lat() { updateDegreeFromDM(lat); }
    void updateDegreeMinSec_FromDM_lat() { updateDegreeMinSecFromDM(lat); }
    void updateDegree_FromDMS_lat() { updateDegreeFromDMS(lat); }
    void updateDegreeMin_FromDMS_lat() { updateDegreeMinFromDMS(lat); }

    const Number &degree_lon() const { return get(lon.d); }
    void setDegree_lon(Number v) { setDegree(lon, v); }
    const Number &degree_min_degree_lon() const { return get(lon.dmDegree); }
    void setDegree_min_degree_lon(Number v) { setDegreeMin(lon, lon.dmDegree, v); }
    const Number &degree_min_min_lon() const { return get(lon.dmMinute); }
    void setDegree_min_min_lon(Number v) { setDegreeMin(lon, lon.dmMinute, v); }
    const Number &degree_min_sec_degree_lon() const { return get(lon.dmsDegree); }
    void setDegree_min_sec_degree_lon(Number v) { setDegreeMinSec(lon, lon.dmsDegree, v); }
    const Number &degree_min_sec_min_lon() const { return get(lon.dmsMinute); }
    void setDegree_min_sec_min_lon(Number v) { setDegreeMinSec(lon, lon.dmsMinute, v); }
    const Number &degree_min_sec_sec_lon() const { return get(lon.dmsSecond); }
    void setDegree_min_sec_sec_lon(Number v) { setDegreeMinSec(lon, lon.dmsSecond, v); }
    /// Whether the position lies west; see negative_lat().
    bool negative_lon() const { return read(lon.negativeKey, this->*lon.negative); }
    void setNegative_lon(bool negative) { setNegative(lon, negative); }

    void updateDegreeMin_FromD_lon() { updateDegreeMinFromD(lon); }
    void updateDegreeMinSec_FromD_lon() { updateDegreeMinSecFromD(lon); }
    void updateDegree_FromDM_lon() { updateDegreeFromDM(lon); }
    void updateDegreeMinSec_FromDM_lon() { updateDegreeMinSecFromDM(lon); }
    void updateDegree_FromDMS_lon() { updateDegreeFromDMS(lon); }
    void updateDegreeMin_FromDMS_lon() { updateDegreeMinFromDMS(lon); }

private:
    struct Component {
        std::string_view key;
        Number degrees::*field;
    };
    /// Latitude and longitude differ in nothing but where their values are.
    struct Axis {
        Component d, dmDegree, dmMinute, dmsDegree, dmsMinute, dmsSecond;
        std::string_view negativeKey;
        bool degrees::*negative;
    };
    static const Axis lat;
    static const Axis lon;

    const Number &get(const Component &component) const {
        return read(component.key, this->*component.field);
    }
    void write(const Component &component, Number value) {
        change(component.key, this->*component.field, value);
    }
    void setDegreeValue_lat(const Value &v) { setDegree(lat, numberIn(v)); }
    void setDegreeValue_lon(const Value &v) { setDegree(lon, numberIn(v)); }
    static Number numberIn(const Value &value);
    void setDegree(const Axis &axis, Number value);
    void setDegreeMin(const Axis &axis, const Component &edited, Number value);
    void setDegreeMinSec(const Axis &axis, const Component &edited, Number value);
    void edit(const Axis &axis, const Component &edited, Number value, const Component &whole);
    void setNegative(const Axis &axis, bool negative);

    // In degrees_conversions.cpp.
    void updateDegreeMinFromD(const Axis &axis);
    void updateDegreeMinSecFromD(const Axis &axis);
    void updateDegreeFromDM(const Axis &axis);
    void updateDegreeMinSecFromDM(const Axis &axis);
    void updateDegreeFromDMS(const Axis &axis);
    void updateDegreeMinFromDMS(const Axis &axis);
    void writeDegree(const Axis &axis, float wholeDegrees, float magnitude);

    Number degree_lat_;
    Number degree_min_degree_lat_;
    Number degree_min_min_lat_;
    Number degree_min_sec_degree_lat_;
    Number degree_min_sec_min_lat_;
    Number degree_min_sec_sec_lat_;
    Number degree_lon_;
    Number degree_min_degree_lon_;
    Number degree_min_min_lon_;
    Number degree_min_sec_degree_lon_;
    Number degree_min_sec_min_lon_;
    Number degree_min_sec_sec_lon_;
    bool negative_lat_ = false;
    bool negative_lon_ = false;
};

} // namespace pinmora
