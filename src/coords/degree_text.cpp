#include "coords/degree_text.h"

#include "platform/number_text.h"
#include "platform/translation.h"

#include <QtGlobal>

#include <cmath>

namespace pinmora {

const AxisKind latitudeKind{
    "lat",
    90,
    QT_TRANSLATE_NOOP("coords", "The latitude is a number from -90 to 90, such as 47.3825."),
    QT_TRANSLATE_NOOP("coords", "Degrees of latitude are a whole number from 0 to 90."),
    QT_TRANSLATE_NOOP("coords", "The latitude ends at 90 degrees."),
    &degrees::negative_lat,
    &degrees::setNegative_lat};
const AxisKind longitudeKind{
    "lon",
    180,
    QT_TRANSLATE_NOOP("coords", "The longitude is a number from -180 to 180, such as 8.5417."),
    QT_TRANSLATE_NOOP("coords", "Degrees of longitude are a whole number from 0 to 180."),
    QT_TRANSLATE_NOOP("coords", "The longitude ends at 180 degrees."),
    &degrees::negative_lon,
    &degrees::setNegative_lon};

std::optional<double> readDegrees(CheckedField &field, const AxisKind &kind) {
    const std::optional<double> number = plainDecimal(field.text.get());
    if (number && std::abs(*number) <= kind.limit) {
        field.problem.set("");
        return number;
    }
    field.problem.set(translated("coords", kind.noDegrees));
    return std::nullopt;
}

} // namespace pinmora
