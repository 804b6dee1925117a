#pragma once

#include <string>
#include <system_error>
#include <vector>

namespace pinmora {

/// What stands directly in a folder, by names in the order of namesInOrder().
struct FolderListing {
    std::vector<std::string> names;   ///< of all that is no folder
    std::vector<std::string> folders; ///< of its subfolders
    std::error_code error;            ///< why the folder could not be read, or not to its end
};

/// Lists a folder one level deep. Links to folders count as folders; links that lead nowhere,
/// pipes and devices are listed like files.
FolderListing listFolder(const std::string &folder);

} // namespace pinmora
