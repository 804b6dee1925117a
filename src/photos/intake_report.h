#pragma once

#include <string>
#include <system_error>
#include <vector>

namespace pinmora {

/// Why a file that was to be loaded has no record.
enum class WhyLeftOut {
    NotAnImage,   ///< no reader at hand opens it
    Missing,      ///< there is no such file (any more)
    NoPermission, ///< it may not be read
    NotAFile,     ///< a pipe or a device
    NoKnownType,  ///< named by the person, but neither as a photo nor as a log
};

/// The reason as words that follow the file's name and a colon.
std::string reasonText(WhyLeftOut why);

struct LeftOutFile {
    std::string path;
    WhyLeftOut why;
};

struct UnreadFolder {
    std::string path;
    std::error_code error;
};

/// What became of the files and folders that were given to the photo intake, in order of loading.
/// All paths are absolute.
struct IntakeReport {
    std::vector<std::string> loaded;
    std::vector<LeftOutFile> leftOut;
    /// Found in a folder with a log's extension, but no logs.
    std::vector<std::string> logsPassedOver;
    /// Found in a folder and neither photos nor logs by their names. Hidden files are not listed.
    std::vector<std::string> passedOver;
    /// Found in a folder that was chosen for its photos: logs by their names, which were not read.
    std::vector<std::string> logsNotAsked;
    /// Found in a folder and not entered. Hidden ones are not listed.
    std::vector<std::string> foldersInside;
    /// Given, or chosen, and with nothing in them that is not hidden.
    std::vector<std::string> emptyFolders;
    /// Could not be read, or not to their end.
    std::vector<UnreadFolder> unreadFolders;
};

/// Why a file cannot be read as an image, as far as can be told by looking at it from outside.
WhyLeftOut whyNoImage(const std::string &path);

} // namespace pinmora
