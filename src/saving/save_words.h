#pragma once

#include "saving/photo_snapshot.h"
#include "saving/save_run.h"

#include <cstddef>
#include <filesystem>
#include <string>

/// What is said of a save, as sentences and parts of them (UTF-8 where file names are).
namespace pinmora {

/// Of all messages about a save.
inline constexpr const char *saveSubject = "save";

/// What came of a run.
struct SaveSum {
    std::size_t photos = 0;
    std::size_t saved = 0;
    std::size_t unplaced = 0; ///< of those saved: the copies have no position
    std::size_t failed = 0;
    std::size_t skipped = 0;
    std::size_t stopped = 0;
    std::string notOnDisk; ///< see SaveOutcome

    /// Whether all is saved that a person wanted saved.
    bool isWhole() const { return failed == 0 && stopped == 0 && notOnDisk.empty(); }
};

SaveSum sumOf(const SaveOutcome &outcome);

/// "398 of 400 saved. 2 could not be written.", "400 photos saved in Zermatt."
std::string sumText(const SaveSum &sum, const std::filesystem::path &folder);

/// "3 of 400"
std::string ofText(std::size_t part, std::size_t whole);
/// "Waiting for place names: 12 to go"
std::string waitingText(std::size_t names);
/// "Writing positions: 212 of 400"
std::string writingText(std::size_t done, std::size_t photos);
/// "Pinmora quits when the copies are written: 212 of 400"
std::string quittingText(std::size_t done, std::size_t photos);

/// The line of the log file for a photo that failed or that the tool has remarked on; "" for all
/// others.
std::string logLine(const PhotoSnapshot &photo, const SavedPhoto &saved);

} // namespace pinmora
