#pragma once

#include "gps/log_report.h"
#include "photos/intake_report.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// What is said of a load, as sentences and parts of them (UTF-8 where file names are).
namespace pinmora {

/// "12 .heic, 2 .png, 3 other files, 1 folder inside": files by their kinds, whatever case their
/// extensions have; but an extension that only loads in another case is told as it is spelled.
/// `loads` holds for the extensions that load. Those files for which `first` holds come first, then
/// the more frequent.
std::string kindsText(const std::vector<std::string> &files, std::size_t folders,
                      const std::function<bool(const std::string &)> &first,
                      const std::function<bool(std::string_view)> &loads);

/// What was to be loaded and could not be.
struct NotLoaded {
    std::vector<LogReport> logs; ///< failed, each of them
    std::vector<UnreadFolder> folders;
    std::vector<LeftOutFile> files;
};

/// "a.gpx, b.log; IMG_1.jpg: not readable as an image; and 4 more". A reason is given for a log
/// that is the only one. "" when nothing is to be told.
std::string notLoadedText(const NotLoaded &notLoaded);

/// "There are no photos and no logs in “100CANON”." "" when there are no such folders.
std::string emptyFoldersText(const std::vector<std::string> &folders);

/// The failed ones of the logs of one load; none when it is one whose message on the error sheet
/// gives the file's name, as nothing is left to be told then.
std::vector<LogReport> failedLogsToTell(const std::vector<LogReport> &logs);

/// "3 of 12 photos were there already."
std::string doublesText(std::size_t doubles, std::size_t loaded);

} // namespace pinmora
