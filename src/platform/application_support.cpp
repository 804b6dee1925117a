#include "platform/application_support.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace pinmora {

namespace {

/// The folder that an environment variable names; empty unless that is an absolute path. The rules
/// for XDG folders have relative ones ignored.
std::filesystem::path folderFrom(const char *variable) {
    const char *const value = std::getenv(variable);
    const std::filesystem::path folder = value ? value : "";
    return folder.is_absolute() ? folder : std::filesystem::path();
}

} // namespace

std::filesystem::path applicationSupportBase() {
    if (auto data = folderFrom("XDG_DATA_HOME"); !data.empty()) {
        return data;
    }
    if (const auto home = folderFrom("HOME"); !home.empty()) {
        return home / ".local" / "share";
    }
    const auto temporary = folderFrom("TMPDIR");
    return temporary.empty() ? std::filesystem::path("/tmp") : temporary;
}

std::string homeFolder() {
    if (auto home = folderFrom("HOME"); !home.empty()) {
        return home.native();
    }
    const passwd *const account = ::getpwuid(::getuid());
    return account && account->pw_dir[0] == '/' ? account->pw_dir : "/";
}

} // namespace pinmora
