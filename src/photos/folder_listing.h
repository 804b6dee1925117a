#pragma once

#include <string>
#include <system_error>
#include <vector>

namespace pinmora {

/// What stands directly in a folder, besides its subfolders.
struct FolderListing {
    std::vector<std::string> names; ///< in the order of namesInOrder()
    std::error_code error;          ///< why the folder could not be read, or not to its end
};

/// Lists a folder one level deep. Links to folders count as folders; links that lead nowhere,
/// pipes and devices are listed like files.
FolderListing listFolder(const std::string &folder);

} // namespace pinmora
