#pragma once

#include "platform/file_placement.h"
#include "saving/photo_snapshot.h"

#include <filesystem>
#include <string>
#include <sys/types.h>
#include <utility>

namespace pinmora {

/// Tells a file from another that may get its name later: device and inode.
using FileIdentity = std::pair<dev_t, ino_t>;

/// A photo's copy under its real name, as the tool needs it.
struct PhotoCopy {
    std::filesystem::path path;
    FileTimes times;
    FileIdentity identity;
    std::string failure; ///< why there is none; "" when there is one
};

/// Copies a photo into a folder, under the first of its names that is free. Never replaces
/// anything.
PhotoCopy copyPhoto(const PhotoSnapshot &photo, const std::filesystem::path &folder);

/// Makes a copy that may be damaged whole again, or says why that did not go. Where it cannot be,
/// as long as the original cannot be read, what there is stays; else no damaged copy does. Nothing
/// happens to a file of somebody else that has its name now; then the copy gets another.
PhotoCopy madeWhole(const PhotoCopy &copy, const PhotoSnapshot &photo);

} // namespace pinmora
