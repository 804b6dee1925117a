#include "photos/fs_node_info.h"

#include "photos/folder_entries.h"
#include "platform/translation.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace pinmora {

std::string FSNodeInfo::absolutePath() const {
    if (!parentNode_) {
        return relativePath_;
    }
    std::string path = parentNode_->absolutePath();
    if (path == "/") {
        path.clear();
    }
    return path + "/" + relativePath_;
}

std::string FSNodeInfo::lastPathComponent() const {
    const std::size_t last = relativePath_.find_last_not_of('/');
    if (last == std::string::npos) {
        return relativePath_.substr(0, 1); // the root folder, or no name at all
    }
    const std::size_t before = relativePath_.rfind('/', last);
    const std::size_t first = before == std::string::npos ? 0 : before + 1;
    return relativePath_.substr(first, last + 1 - first);
}

std::string FSNodeInfo::fsType() const {
    //: what an entry of the file system is
    return isDirectory() ? translated("photos", "Directory")
                         : translated("photos", "Non-Directory");
}

bool FSNodeInfo::isVisible() const {
    const std::string name = lastPathComponent();
    return !name.empty() && !name.starts_with('.');
}

bool FSNodeInfo::isReadable() const {
    return ::faccessat(AT_FDCWD, absolutePath().c_str(), R_OK, AT_EACCESS) == 0;
}

bool FSNodeInfo::isDirectory() const {
    struct stat found {};
    return ::stat(absolutePath().c_str(), &found) == 0 && S_ISDIR(found.st_mode);
}

bool FSNodeInfo::isLink() const {
    struct stat found {};
    return ::lstat(absolutePath().c_str(), &found) == 0 && S_ISLNK(found.st_mode);
}

std::vector<FSNodeInfo> FSNodeInfo::subNodes() const {
    return nodesOf(HiddenEntries::Listed);
}

std::vector<FSNodeInfo> FSNodeInfo::visibleSubNodes() const {
    return nodesOf(HiddenEntries::LeftOut);
}

std::vector<FSNodeInfo> FSNodeInfo::nodesOf(HiddenEntries hidden) const {
    std::vector<FSNodeInfo> nodes;
    for (FolderEntry &entry : folderEntries(absolutePath(), hidden).entries) {
        nodes.push_back(nodeWithParent(this, std::move(entry.name)));
    }
    return nodes;
}

} // namespace pinmora
