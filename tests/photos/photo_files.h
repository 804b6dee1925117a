#pragma once

#include "photos/log_intake.h"

#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace pinmora {

/// Exiv2's keys with values as text.
using Tags = std::vector<std::pair<std::string, std::string>>;

/// A small JPEG picture with these tags.
void writePhoto(const std::filesystem::path &file, const Tags &tags = {});

/// Gives a picture these tags.
void addTags(const std::filesystem::path &file, const Tags &tags);

/// Takes logs by their extension "txt" or "gpx" and notes what it is asked to read. A log whose
/// name begins with "no" is none.
struct NotingLogs : LogIntake {
    bool isGPS(std::string_view path) const override {
        return path.ends_with(".txt") || path.ends_with(".gpx");
    }
    void readLog(const std::string &path) override { read.push_back("named " + path); }
    bool readLogFoundByScan(const std::string &path) override {
        read.push_back("found " + path);
        whenFound();
        return !std::filesystem::path(path).filename().native().starts_with("no");
    }

    std::vector<std::string> read;
    std::function<void()> whenFound = [] {};
};

} // namespace pinmora
