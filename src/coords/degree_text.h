#pragma once

#include "outlets/controls.h"
#include "store/degrees.h"

#include <optional>
#include <string_view>

namespace pinmora {

/// What latitude and longitude differ in.
struct AxisKind {
    std::string_view key;  ///< the photo's; the keys of `degrees` end in it
    std::string_view name; ///< in sentences
    int limit;             ///< degrees
    std::string_view example;
    bool (degrees::*negative)() const;
    void (degrees::*setNegative)(bool);
};
extern const AxisKind latitudeKind;
extern const AxisKind longitudeKind;

/// The decimal degrees in a field. Nothing when its text is no plain decimal number, or beyond the
/// axis's limit: the field's problem then says so, and is cleared otherwise.
std::optional<double> readDegrees(CheckedField &field, const AxisKind &kind);

} // namespace pinmora
