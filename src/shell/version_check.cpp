#include "shell/version_check.h"

#include "platform/defaults.h"

#include <utility>

namespace pinmora {
VersionCheck::VersionCheck(Defaults &defaults, BuildSettings build)
    : defaults_(defaults), build_(std::move(build)) {}

VersionCheck::~VersionCheck() = default;

ProgDict VersionCheck::getProgDict() const {
    return {{"progName", "Pinmora"},
            {"progPlist", defaults_.text(versionInfoUrlKey).value_or(build_.versionInfoUrl)}};
}

void VersionCheck::start() {
    if (checksVersionAtStart(defaults_)) {
        loadUpdateNib();
        update_->newVersion(getProgDict());
    }
}

void VersionCheck::checkNewVersion() {
    loadUpdateNib();
    update_->checkNewVersion(getProgDict());
}

void VersionCheck::loadUpdateNib() {
    if (!update_) {
        update_ = std::make_unique<updateTest>(defaults_, build_.version);
        testUpdate.set(update_.get());
    }
}

} // namespace pinmora
