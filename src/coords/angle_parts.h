#pragma once

#include <array>

namespace pinmora {

/// The two notations that split an angle up.
enum class Notation { DegreesMinutes, DegreesMinutesSeconds };

/// An angle's magnitude as whole degrees and decimal minutes (then the last part is 0), or as whole
/// degrees, whole minutes and decimal seconds.
using AngleParts = std::array<double, 3>;

/// An angle in degrees, rounded to what its notation shows: thousandths of a minute or tenths of a
/// second, both a few metres on the ground. Minutes and seconds are below 60.
AngleParts shownParts(double angle, Notation notation);

/// The parts as exact as they make sense (a millionth of a second), to be changed one by one: those
/// shown where rounding has carried over into another part, since a person changes what is seen.
AngleParts partsToEdit(double angle, Notation notation);

/// The magnitude in degrees.
double degreesOf(const AngleParts &parts);

} // namespace pinmora
