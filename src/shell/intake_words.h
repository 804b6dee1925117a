#pragma once

#include "photos/intake_report.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// What is said of a load, as sentences and parts of them (UTF-8 where file names are).
namespace pinmora {

/// "1 photo", "12 photos".
std::string counted(std::size_t count, std::string_view one, std::string_view many);

/// "12 .heic, 2 .png, 3 other files, 1 folder inside": files by their kinds, whatever case their
/// extensions have. Those for which `first` holds come first, then the more frequent.
std::string kindsText(const std::vector<std::string> &files, std::size_t folders,
                      const std::function<bool(const std::string &)> &first);

/// "IMG_1.jpg: not readable as an image; IMG_2.jpg: no permission to read it; and 4 more". Files of
/// the report for which `isTold` does not hold are left out; "" when nothing is to be told.
std::string unreadText(const IntakeReport &report,
                       const std::function<bool(const LeftOutFile &)> &isTold);

/// "3 of 12 photos were there already."
std::string doublesText(std::size_t doubles, std::size_t loaded);

} // namespace pinmora
