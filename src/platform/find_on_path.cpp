#include "platform/process.h"

#include <algorithm>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace pinmora {

std::optional<std::filesystem::path> findOnPath(std::string_view name) {
    const char *const variable = std::getenv("PATH");
    std::string_view folders = variable != nullptr ? variable : "";
    if (name.empty() || name.find('/') != std::string_view::npos) {
        return std::nullopt;
    }
    while (!folders.empty()) {
        const std::string_view folder = folders.substr(0, folders.find(':'));
        folders.remove_prefix(std::min(folder.size() + 1, folders.size()));
        if (folder.empty()) {
            continue; // the folder one happens to be in is no place to run programs from
        }
        std::filesystem::path file = std::filesystem::path{folder} / name;
        struct stat state {};
        if (::stat(file.c_str(), &state) == 0 && S_ISREG(state.st_mode) &&
            ::access(file.c_str(), X_OK) == 0) {
            return file;
        }
    }
    return std::nullopt;
}

} // namespace pinmora
