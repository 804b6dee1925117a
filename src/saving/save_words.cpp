#include "saving/save_words.h"

#include <utility>

namespace pinmora {

namespace {

using Status = SavedPhoto::Status;

std::string photosText(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " photo" : " photos");
}

std::string nameOf(const std::filesystem::path &folder) {
    const std::filesystem::path name = folder.filename();
    return name.empty() ? folder.native() : name.native();
}

std::string savedText(const SaveSum &sum, const std::filesystem::path &folder) {
    if (sum.photos == 0) {
        return "No photos were saved: there are none.";
    }
    if (sum.isWhole() && sum.saved == sum.photos) {
        return photosText(sum.photos) + " saved in " + nameOf(folder) + ".";
    }
    return (sum.stopped > 0 ? "Cancelled: " : "") + ofText(sum.saved, sum.photos) + " saved.";
}

std::string skippedText(std::size_t count) {
    return count == 1 ? " 1 was left out: its file is missing."
                      : " " + std::to_string(count) + " were left out: their files are missing.";
}

} // namespace

SaveSum sumOf(const SaveOutcome &outcome) {
    SaveSum sum{.photos = outcome.photos.size(), .notOnDisk = outcome.notOnDisk};
    for (const SavedPhoto &photo : outcome.photos) {
        switch (photo.status) {
        case Status::Saved:
            ++sum.saved;
            break;
        case Status::Failed:
            ++sum.failed;
            break;
        case Status::Skipped:
            ++sum.skipped;
            break;
        case Status::Stopped:
            ++sum.stopped;
            break;
        }
    }
    return sum;
}

std::string sumText(const SaveSum &sum, const std::filesystem::path &folder) {
    std::string text = savedText(sum, folder);
    if (sum.failed > 0) {
        text += " " + std::to_string(sum.failed) + " could not be written.";
    }
    if (sum.skipped > 0) {
        text += skippedText(sum.skipped);
    }
    if (!sum.notOnDisk.empty()) {
        text += " The copies may not all be on the disk: " + sum.notOnDisk + ".";
    }
    return text;
}

std::string ofText(std::size_t part, std::size_t whole) {
    return std::to_string(part) + " of " + std::to_string(whole);
}

std::string waitingText(std::size_t names) {
    return "Waiting for place names: " + std::to_string(names) + " to go";
}

std::string writingText(std::size_t done, std::size_t photos) {
    return "Writing positions: " + ofText(done, photos);
}

std::string quittingText(std::size_t done, std::size_t photos) {
    return "Pinmora quits when the copies are written: " + ofText(done, photos);
}

std::string logLine(const PhotoSnapshot &photo, const SavedPhoto &saved) {
    const bool isTold =
        saved.status == Status::Failed || (saved.status == Status::Saved && !saved.message.empty());
    if (!isTold) {
        return {};
    }
    std::string line = photo.source.native();
    if (saved.savedAs) {
        line += ", saved as " + saved.savedAs->native();
    }
    return line + ": " + saved.message;
}

} // namespace pinmora
