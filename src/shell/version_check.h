#pragma once

#include "outlets/observable.h"
#include "shell/build_settings.h"
#include "update/update_test.h"

#include <memory>

namespace pinmora {

class Defaults;

/// The setting with the address of the version information, in place of that of the build.
inline constexpr std::string_view versionInfoUrlKey = "versionInfoURL";

/// When the program asks for newer versions: at start, unless a person has turned that off, and by
/// command. The window and what is behind it are made when the first of these needs them.
class VersionCheck {
public:
    /// The settings must outlive it.
    explicit VersionCheck(Defaults &defaults, BuildSettings build = buildSettings());
    ~VersionCheck();
    VersionCheck(const VersionCheck &) = delete;
    VersionCheck &operator=(const VersionCheck &) = delete;

    /// What a start does: looks for a newer version unless a person has turned that off.
    void start();
    /// What the menu's command does.
    void checkNewVersion();

    /// The program's name, and the address of its version information: that of the setting, also
    /// where it is empty, else that of the build.
    ProgDict getProgDict() const;
    const BuildSettings &build() const { return build_; }

    /// The update window and what is behind it; null until it has been needed. It stays then.
    Observable<updateTest *> testUpdate{nullptr};

private:
    void loadUpdateNib();

    Defaults &defaults_;
    const BuildSettings build_;
    std::unique_ptr<updateTest> update_;
};

} // namespace pinmora
