#pragma once

#include <string>

namespace pinmora {

/// What whoever built the program has set.
struct BuildSettings {
    std::string version;
    std::string versionInfoUrl; ///< where the makers say which version is the present one, or ""
    std::string webSite;        ///< an address on the web, or ""
    std::string reportProblemAddress; ///< on the web, or of mail ("mailto:..."), or ""
};

BuildSettings buildSettings();

} // namespace pinmora
