#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace pinmora {

/// A file that is no longer where it was. Paths and names are bytes.
struct WantedFile {
    std::string name;                   ///< without folders
    std::optional<std::uintmax_t> size; ///< bytes; nothing: any size will do
    std::string formerPath;             ///< whole, with the name
};

struct SearchProgress {
    std::size_t folders = 0; ///< that have been looked through
    std::string folder;      ///< whose turn it is
};

/// Where each of the wanted files is found in a folder or below it, as whole paths; nothing for
/// those that are not. Hidden folders are left out and unreadable ones passed over; links are
/// followed, to no folder twice. A file is found for one of the wanted only. Ends with what was
/// found so far when `goOn`, asked before each folder, returns false. Any thread.
std::vector<std::optional<std::string>>
findFiles(const std::string &folder, const std::vector<WantedFile> &wanted,
          const std::function<bool(const SearchProgress &)> &goOn);

} // namespace pinmora
