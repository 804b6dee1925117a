#include "coords/degree_text.h"

#include "platform/number_text.h"

#include <cmath>
#include <string>

namespace pinmora {

const AxisKind latitudeKind{
    "lat", "latitude", 90, "47.3825", &degrees::negative_lat, &degrees::setNegative_lat};
const AxisKind longitudeKind{
    "lon", "longitude", 180, "8.5417", &degrees::negative_lon, &degrees::setNegative_lon};

std::optional<double> readDegrees(CheckedField &field, const AxisKind &kind) {
    const std::optional<double> number = plainDecimal(field.text.get());
    if (number && std::abs(*number) <= kind.limit) {
        field.problem.set("");
        return number;
    }
    const std::string limit = std::to_string(kind.limit);
    field.problem.set("The " + std::string(kind.name) + " is a number from -" + limit + " to " +
                      limit + ", such as " + std::string(kind.example) + ".");
    return std::nullopt;
}

} // namespace pinmora
