#pragma once

#include "outlets/controls.h"
#include "store/degrees.h"

#include <optional>
#include <string_view>

namespace pinmora {

/// What latitude and longitude differ in.
struct AxisKind {
    std::string_view key; ///< the photo's; the keys of `degrees` end in it
    int limit;            ///< degrees
    /// What is wrong with a field's text, to be translated: no decimal degrees within the limit; no
    /// whole degrees within it; minutes and seconds that lead beyond it.
    const char *noDegrees;
    const char *noWholeDegrees;
    const char *tooFar;
    bool (degrees::*negative)() const;
    void (degrees::*setNegative)(bool);
};
extern const AxisKind latitudeKind;
extern const AxisKind longitudeKind;

/// The decimal degrees in a field. Nothing when its text is no plain decimal number, or beyond the
/// axis's limit: the field's problem then says so, and is cleared otherwise.
std::optional<double> readDegrees(CheckedField &field, const AxisKind &kind);

} // namespace pinmora
