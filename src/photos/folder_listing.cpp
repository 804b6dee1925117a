#include "photos/folder_listing.h"

#include "photos/file_names.h"

#include <algorithm>
#include <filesystem>

namespace pinmora {

FolderListing listFolder(const std::string &folder) {
    FolderListing listing;
    std::filesystem::directory_iterator entry(folder, listing.error);
    while (!listing.error && entry != std::filesystem::directory_iterator()) {
        std::error_code unknown; // then it is no folder that could be entered
        std::vector<std::string> &kind =
            entry->is_directory(unknown) ? listing.folders : listing.names;
        kind.push_back(entry->path().filename().native());
        entry.increment(listing.error);
    }
    // Folders give their entries in no order that means anything.
    std::sort(listing.names.begin(), listing.names.end(), namesInOrder);
    std::sort(listing.folders.begin(), listing.folders.end(), namesInOrder);
    return listing;
}

} // namespace pinmora
