#include "store/degrees.h"

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <limits>

/// How the notations are worked out from each other. The same input must give the same bits
/// everywhere, so each step is taken in the precision that its types say. Fusing a product with the
/// sum after it would change nothing: the only such product, minutes from a fraction of a degree,
/// is exact in double precision.
namespace pinmora {

namespace {

static_assert(FLT_EVAL_METHOD == 0, "float and double are worked in as such, not in a wider type");
static_assert(std::numeric_limits<float>::is_iec559 && std::numeric_limits<double>::is_iec559);

float single(const degrees::Number &number) {
    return static_cast<float>(number.value_or(0));
}

/// Toward zero; beyond the range its nearest end, and 0 where there is no number.
std::int32_t truncated(const degrees::Number &number) {
    return Value(number).integer();
}

double magnitude(std::int32_t whole) {
    return std::abs(static_cast<double>(whole));
}

} // namespace

void degrees::updateDegreeMinFromD(const Axis &axis) {
    const Number &value = this->*axis.d.field;
    const std::int32_t whole = truncated(value);
    const float minutes = (single(value) - static_cast<float>(whole)) * 60.0f;
    write(axis.dmDegree, whole);
    write(axis.dmMinute, std::abs(minutes));
}

void degrees::updateDegreeMinSecFromD(const Axis &axis) {
    const Number &value = this->*axis.d.field;
    const std::int32_t whole = truncated(value);
    const double minutes = (static_cast<double>(single(value)) - whole) * 60.0;
    const std::int32_t wholeMinutes = truncated(minutes);
    const double seconds = std::abs(60.0 * (minutes - wholeMinutes));
    write(axis.dmsDegree, whole);
    write(axis.dmsMinute, magnitude(wholeMinutes));
    write(axis.dmsSecond, static_cast<float>(seconds));
}

void degrees::updateDegreeMinSecFromDM(const Axis &axis) {
    const Number &minutes = this->*axis.dmMinute.field;
    const std::int32_t wholeMinutes = truncated(minutes);
    const double seconds = std::abs((static_cast<double>(single(minutes)) - wholeMinutes) * 60.0);
    write(axis.dmsDegree, truncated(this->*axis.dmDegree.field));
    write(axis.dmsMinute, magnitude(wholeMinutes));
    write(axis.dmsSecond, static_cast<float>(seconds));
}

void degrees::updateDegreeMinFromDMS(const Axis &axis) {
    const double minutes =
        single(this->*axis.dmsMinute.field) + single(this->*axis.dmsSecond.field) / 60.0;
    write(axis.dmDegree, this->*axis.dmsDegree.field);
    write(axis.dmMinute, std::abs(static_cast<float>(minutes)));
}

void degrees::updateDegreeFromDM(const Axis &axis) {
    const float wholeDegrees = single(this->*axis.dmDegree.field);
    writeDegree(axis, wholeDegrees,
                std::abs(wholeDegrees) + single(this->*axis.dmMinute.field) / 60.0f);
}

void degrees::updateDegreeFromDMS(const Axis &axis) {
    const float wholeDegrees = single(this->*axis.dmsDegree.field);
    const auto fromSeconds = static_cast<float>(single(this->*axis.dmsSecond.field) / 60.0 / 60.0);
    writeDegree(axis, wholeDegrees,
                std::abs(wholeDegrees) + single(this->*axis.dmsMinute.field) / 60.0f + fromSeconds);
}

/// Between -1 and 0 degrees only the hemisphere knows the sign.
void degrees::writeDegree(const Axis &axis, float wholeDegrees, float magnitude) {
    const bool negative =
        wholeDegrees < 0 || (wholeDegrees == 0 && magnitude != 0 && this->*axis.negative);
    write(axis.d, negative ? -magnitude : magnitude);
}

} // namespace pinmora
