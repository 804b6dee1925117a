#pragma once

#include <ctime>
#include <filesystem>
#include <system_error>

namespace pinmora {

/// The times that a copy keeps from its source.
struct FileTimes {
    timespec access{};
    timespec modification{};
};

/// Copies a regular file's bytes, permissions, extended attributes ("user.*") and times to
/// `target`, which must not exist. The source is opened for reading only. Permissions, attributes
/// and times that the target's file system cannot hold (FAT on a memory stick) are left out; any
/// other error leaves nothing at `target`.
std::error_code copyFile(const std::filesystem::path &source, const std::filesystem::path &target);

/// Gives a finished file its name without ever replacing anything: `file_exists` when something
/// is there already (a file, a folder, a dangling link). Where the file system has no such rename,
/// the name is reserved with an exclusive create and the file renamed over the reservation.
std::error_code placeWithoutReplacing(const std::filesystem::path &finished,
                                      const std::filesystem::path &target);

/// placeWithoutReplacing() by reservation, for file systems without a rename that never replaces.
std::error_code placeByReservation(const std::filesystem::path &finished,
                                   const std::filesystem::path &target);

std::error_code readFileTimes(const std::filesystem::path &file, FileTimes &times);
std::error_code writeFileTimes(const std::filesystem::path &file, const FileTimes &times);

} // namespace pinmora
