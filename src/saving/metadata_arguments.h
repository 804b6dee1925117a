#pragma once

#include "platform/image_source.h"
#include "saving/photo_snapshot.h"

#include <filesystem>
#include <string>
#include <vector>

namespace pinmora {

/// Whether metadataArguments() depends on how the photo's IPTC texts are encoded.
bool needsIptcEncoding(const PhotoSnapshot &photo);

/// ExifTool's arguments that write a photo's data into its copy, the copy's path last. Texts are
/// UTF-8, positions unsigned with the hemisphere beside them, altitudes in metres.
///
/// ExifTool writes IPTC texts as Latin-1 unless the photo declares UTF-8, and a character outside
/// of it becomes "?". A place name with such a character therefore makes the IPTC block UTF-8, and
/// the texts that are already in it are written anew with it.
std::vector<std::string> metadataArguments(const PhotoSnapshot &photo, IptcEncoding iptc,
                                           const std::filesystem::path &copy);

} // namespace pinmora
