#include "photos/open_folder.h"

#include <cerrno>
#include <fcntl.h>
#include <string_view>

namespace pinmora {
namespace {

std::error_code errorOfCall() {
    return {errno, std::generic_category()};
}

} // namespace

OpenFolder::OpenFolder(const std::string &path) : folder_(::opendir(path.c_str())) {
    if (!folder_) {
        error_ = errorOfCall();
    }
}

OpenFolder::~OpenFolder() {
    if (folder_) {
        ::closedir(folder_);
    }
}

const dirent *OpenFolder::next() {
    while (folder_ && !error_) {
        errno = 0;
        const dirent *entry = ::readdir(folder_);
        if (!entry) {
            error_ = errorOfCall(); // 0 at the end
            return nullptr;
        }
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") {
            return entry;
        }
    }
    return nullptr;
}

unsigned char OpenFolder::kindOf(const dirent &entry) const {
    if (entry.d_type != DT_UNKNOWN) {
        return entry.d_type;
    }
    struct stat found {};
    return ::fstatat(::dirfd(folder_), entry.d_name, &found, AT_SYMLINK_NOFOLLOW) == 0
               ? static_cast<unsigned char>(IFTODT(found.st_mode))
               : entry.d_type;
}

bool OpenFolder::leadsToFolder(const char *name) const {
    const auto found = statusOf(name);
    return found && S_ISDIR(found->st_mode);
}

std::optional<struct stat> OpenFolder::statusOf(const char *name) const {
    struct stat found {};
    return ::fstatat(::dirfd(folder_), name, &found, 0) == 0 ? std::optional(found) : std::nullopt;
}

std::optional<struct stat> OpenFolder::status() const {
    struct stat found {};
    return folder_ && ::fstat(::dirfd(folder_), &found) == 0 ? std::optional(found) : std::nullopt;
}

} // namespace pinmora
