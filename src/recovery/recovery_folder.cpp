#include "recovery/recovery_folder.h"

#include "platform/date.h"

#include <algorithm>

namespace pinmora {

namespace fs = std::filesystem;

namespace {

std::string timeName() {
    const auto now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    return textFromWallClock(WallClock(now.time_since_epoch()), "%Y%m%dT%H%M%SZ");
}

bool isTimeName(std::string_view name) {
    return wallClockFromText(name.substr(0, 16), "%Y%m%dT%H%M%SZ").has_value();
}

} // namespace

bool WorkFolder::exists() const {
    std::error_code none;
    return fs::exists(journal(), none);
}

std::error_code WorkFolder::remove(FileSystem &files) const {
    if (exists()) {
        if (const std::error_code error = files.remove(journal())) {
            return error;
        }
        files.syncFolder(path);
    }
    std::error_code error;
    fs::remove_all(path, error);
    return error;
}

void WorkFolder::removeOtherBases(std::string_view state, FileSystem &files) const {
    std::error_code none;
    for (const fs::directory_entry &entry : fs::directory_iterator(path, none)) {
        if (entry.path() != base(state) && entry.path().filename().native().starts_with("base-")) {
            files.remove(entry.path());
        }
    }
}

std::error_code RecoveryFolder::makeCurrent() const {
    std::error_code error;
    if (current().exists()) {
        error = setCurrentAside();
    }
    if (!error) {
        fs::create_directories(current().path, error);
    }
    return error;
}

std::error_code RecoveryFolder::setCurrentAside() const {
    const std::string name = timeName();
    fs::path target = path_ / name;
    // Not a name that is taken, even by a folder that could be replaced: several starts in a
    // second.
    for (int again = 2; fs::exists(fs::symlink_status(target)); ++again) {
        target = path_ / (name + "-" + std::to_string(again));
    }
    if (const std::error_code error = files_.rename(current().path, target)) {
        return error;
    }
    return files_.syncFolder(path_);
}

std::vector<WorkFolder> RecoveryFolder::asides() const {
    std::vector<WorkFolder> asides;
    std::error_code none;
    for (const fs::directory_entry &entry : fs::directory_iterator(path_, none)) {
        const WorkFolder folder{entry.path()};
        if (isTimeName(entry.path().filename().native()) && folder.exists()) {
            asides.push_back(folder);
        }
    }
    std::sort(asides.begin(), asides.end(),
              [](const WorkFolder &a, const WorkFolder &b) { return a.path < b.path; });
    return asides;
}

} // namespace pinmora
