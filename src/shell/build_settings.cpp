#include "shell/build_settings.h"

namespace pinmora {

BuildSettings buildSettings() {
    return {.version = PINMORA_VERSION,
            .versionInfoUrl = PINMORA_VERSION_INFO_URL,
            .webSite = PINMORA_WEB_SITE,
            .reportProblemAddress = PINMORA_REPORT_ADDRESS};
}

} // namespace pinmora
