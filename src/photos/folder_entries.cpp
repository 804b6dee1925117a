#include "photos/folder_entries.h"

#include "photos/file_names.h"
#include "photos/open_folder.h"

#include <algorithm>

namespace pinmora {

FolderEntries folderEntries(const std::string &folder, HiddenEntries hidden,
                            const std::function<bool()> &goOn) {
    constexpr std::size_t entriesBetweenQuestions = 256;
    FolderEntries listing;
    OpenFolder open(folder);
    while (const dirent *entry = open.next()) {
        const std::string_view name = entry->d_name;
        if (name.starts_with('.') && hidden == HiddenEntries::LeftOut) {
            continue;
        }
        const unsigned char kind = open.kindOf(*entry);
        const bool isLink = kind == DT_LNK;
        const bool isFolder = isLink ? open.leadsToFolder(entry->d_name) : kind == DT_DIR;
        listing.entries.push_back({std::string(name), isFolder, isLink});
        if (listing.entries.size() % entriesBetweenQuestions == 0 && !goOn()) {
            return listing;
        }
    }
    listing.error = open.error();
    // Folders give their entries in no order that means anything.
    std::sort(
        listing.entries.begin(), listing.entries.end(),
        [](const FolderEntry &a, const FolderEntry &b) { return namesInOrder(a.name, b.name); });
    return listing;
}

} // namespace pinmora
