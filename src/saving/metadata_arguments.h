#pragma once

#include "platform/image_source.h"
#include "saving/photo_snapshot.h"

#include <filesystem>
#include <string>
#include <vector>

namespace pinmora {

/// Whether metadataArguments() depends on the layout of what the photo holds already.
bool needsLayout(const PhotoSnapshot &photo);

/// ExifTool's arguments that write a photo's data into its copy, the copy's path last. Texts are
/// UTF-8, positions unsigned with the hemisphere beside them, altitudes in metres.
///
/// ExifTool writes IPTC texts as Latin-1 unless the photo declares UTF-8, and a character outside
/// of it becomes "?". A place name with such a character therefore makes the IPTC block UTF-8, and
/// the texts that are already in it are written anew with it.
///
/// ExifTool writes the unsigned position into XMP too, where it would be north and east. South or
/// west, a position in XMP is therefore written once more with its letter.
///
/// A photo that is to lose its old position has it taken out of EXIF and XMP, and those place names
/// that it does not have any more. What is written afterwards (an altitude) stays.
std::vector<std::string> metadataArguments(const PhotoSnapshot &photo, const MetadataLayout &layout,
                                           const std::filesystem::path &copy);

} // namespace pinmora
