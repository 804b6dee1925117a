#pragma once

#include "coords/angle_parts.h"
#include "coords/coordinate_field.h"
#include "coords/degree_text.h"
#include "outlets/selector.h"
#include "store/degrees.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace pinmora {

/// What a person has typed, read.
struct TypedAngle {
    std::string text;            ///< for photos: decimal degrees; "" clears the axis
    std::optional<double> angle; ///< the same, not rounded
    bool negative = false;       ///< south or west
    /// What it sets in the coordinate record, in this order.
    std::vector<std::pair<std::string, degrees::Number>> values;
};

/// The fields of latitude or of longitude: decimal degrees (D), degrees and minutes (D-M), degrees,
/// minutes and seconds (D-M-S), and the hemisphere, which holds for D-M and D-M-S: their degrees
/// are shown without a sign. A minus sign that is typed before them changes it.
class AxisFields {
public:
    explicit AxisFields(const AxisKind &kind) : kind_(kind) {}

    CoordinateField d;
    CoordinateField dmDegree;
    CoordinateField dmMinute;
    CoordinateField dmsDegree;
    CoordinateField dmsMinute;
    CoordinateField dmsSecond;
    Selector hemisphere; ///< 0: north or east, 1: south or west

    const AxisKind &kind() const { return kind_; }
    std::vector<CoordinateField *> fields() {
        return {&d, &dmDegree, &dmMinute, &dmsDegree, &dmsMinute, &dmsSecond};
    }
    bool hasProblem();

    /// Shows the axis of a record; empty fields without one. Half-typed text is lost.
    void show(const degrees *record);
    /// Reads a notation whose fields have been edited; none, with the problem in the field, when
    /// something in it is unfit.
    std::optional<TypedAngle> readDecimal();
    std::optional<TypedAngle> readParts(Notation notation, const degrees &record);
    /// Gives the record what was typed, through its setters.
    void write(const TypedAngle &typed, degrees &record);
    /// Moves the record's position to the hemisphere.
    void setNegative(bool negative, degrees &record);

    /// Whether a field of the notation has been edited.
    bool isEdited(Notation notation);

private:
    struct Part {
        CoordinateField &field;
        std::string key; ///< in the coordinate record
        bool whole;
        int end; ///< the first number beyond the range
        std::string why;
    };
    std::vector<Part> partsOf(Notation notation);
    static std::optional<AngleParts> readEdited(const std::vector<Part> &parts,
                                                const std::optional<AngleParts> &before,
                                                bool &negative);
    std::string recordKey(std::string_view component) const;
    degrees::Number decimalOf(const degrees &record) const;
    std::optional<double> angleOf(const degrees &record) const;
    bool isNegative(const degrees &record) const;

    const AxisKind &kind_;
    /// The angle that the record was last given, and the D, perhaps in single precision, that it
    /// has made of it. As long as that one stands, the fields show the angle and no noise.
    std::optional<double> given_;
    degrees::Number madeOfGiven_;
};

} // namespace pinmora
