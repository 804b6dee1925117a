#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

/// The file name that a copy tries at the given attempt: "NAME.EXTENSION" at 0, "NAME_i.EXTENSION"
/// at i. A slash, which no file name can hold, becomes "-", so that a copy never leaves its folder.
/// Everything else stays as typed; whether the file system takes it shows when the copy is placed.
std::string copyFileName(std::string_view name, std::string_view extension, int attempt);

/// Whether anything stands at a path: a file, a folder, a link even if it leads nowhere.
bool isTaken(const std::filesystem::path &path);

/// Names for photos that are to be called after a base: "BASE_1", "BASE_2", ..., where every number
/// whose name some photo has at that moment is skipped.
///
/// `names` are the names of all photos, `chosen` those to be renamed, as positions in `names`, in
/// order. Returns the new names in the order of `chosen`. A photo's own name counts until the photo
/// has got the new one.
std::vector<std::string> numberedNames(std::vector<std::string> names,
                                       const std::vector<std::size_t> &chosen,
                                       std::string_view base);

} // namespace pinmora
