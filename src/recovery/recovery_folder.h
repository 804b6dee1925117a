#pragma once

#include "platform/file_system.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace pinmora {

/// One piece of unsaved work on the disk: a folder with a journal and, where the journal does not
/// go on from the store file, the store documents that it can go on from.
///
///     journal
///     base-3f...c2.xml    the store document of that state
///
/// A journal names the state it starts from, so that a base only counts once a journal does.
struct WorkFolder {
    std::filesystem::path path;

    std::filesystem::path journal() const { return path / "journal"; }
    std::filesystem::path base(std::string_view state) const {
        return path / ("base-" + std::string(state) + ".xml");
    }
    bool exists() const;
    /// Removes it, first the journal: without one, what is left is nothing.
    std::error_code remove(FileSystem &files) const;
    /// Removes all bases but that of a state.
    void removeOtherBases(std::string_view state, FileSystem &files) const;
};

/// The folder of all of a library's unsaved work:
///
///     current/             what the running program writes
///     20240131T120000Z/    set aside at that time, by a later start; kept until it is answered
///
/// For one program at a time.
class RecoveryFolder {
public:
    explicit RecoveryFolder(std::filesystem::path path, FileSystem &files = realFileSystem())
        : path_(std::move(path)), files_(files) {}

    WorkFolder current() const { return {path_ / "current"}; }
    /// Makes the current folder, which must not hold work.
    std::error_code makeCurrent() const;
    /// Gives the current folder a name of its own, from the time. On an error it is where it was.
    std::error_code setCurrentAside() const;
    /// What has been set aside, the oldest first.
    std::vector<WorkFolder> asides() const;

    FileSystem &files() const { return files_; }

private:
    std::filesystem::path path_;
    FileSystem &files_;
};

} // namespace pinmora
