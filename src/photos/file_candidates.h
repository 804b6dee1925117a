#pragma once

#include "photos/file_search.h"

#include <string_view>
#include <sys/types.h>
#include <utility>

namespace pinmora {

/// The same for all names of a file.
using FileIdentity = std::pair<dev_t, ino_t>;

/// A file that a wanted one could be now.
struct FileCandidate {
    std::size_t wanted = 0; ///< its number in the list of them
    std::string path;
    FileIdentity identity;
    std::size_t sameFolders = 0; ///< at the end of its path and of the wanted file's former one
};

/// Gives each file to one of the wanted at most: first to those whose former folders have the most
/// names in common with its own, counted from the last; then to the first of the wanted, and of
/// several files the one that stands first in a list for people.
std::vector<std::optional<std::string>> shareOut(std::vector<FileCandidate> candidates,
                                                 const std::vector<WantedFile> &wanted);

/// Whether a whole path stands before another where each folder is listed by namesInOrder(), with
/// what is in a folder following it.
bool pathsInOrder(std::string_view a, std::string_view b);

} // namespace pinmora
