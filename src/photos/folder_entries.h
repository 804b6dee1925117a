#pragma once

#include <functional>
#include <string>
#include <system_error>
#include <vector>

namespace pinmora {

struct FolderEntry {
    std::string name;
    bool isFolder = false; ///< or a link to one
    bool isLink = false;
};

struct FolderEntries {
    std::vector<FolderEntry> entries; ///< in the order of namesInOrder()
    std::error_code error;            ///< why the folder could not be read, or not to its end
};

enum class HiddenEntries { Listed, LeftOut };

/// What stands directly in a folder. Only links are looked at one by one, as far as the file system
/// names the kind of an entry along with it. Ends early, with entries left out and in no order,
/// when `goOn`, asked now and then, returns false. Any thread. Never throws for what it finds.
FolderEntries folderEntries(
    const std::string &folder, HiddenEntries hidden,
    const std::function<bool()> &goOn = [] { return true; });

} // namespace pinmora
