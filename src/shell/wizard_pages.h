#pragma once

#include <string>

namespace pinmora {

/// The pages of the wizard: their identifiers are their places in its tab view.
enum class WizardPage {
    Welcome,
    Photos,
    GpsData,
    OffsetSelect, ///< how the camera's clock is to be set
    OffsetByMap,
    OffsetByLatLon,
    OffsetByKnown,
    MatchAll, ///< apply the logs to all photos, and save
};

inline constexpr int wizardPageCount = 8;

/// As the tab view knows it.
inline std::string identifierOf(WizardPage page) {
    return std::to_string(static_cast<int>(page));
}

} // namespace pinmora
