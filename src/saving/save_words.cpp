#include "saving/save_words.h"

#include "platform/translation.h"

#include <utility>

namespace pinmora {

namespace {

using Status = SavedPhoto::Status;

std::string nameOf(const std::filesystem::path &folder) {
    const std::filesystem::path name = folder.filename();
    return name.empty() ? folder.native() : name.native();
}

std::string savedText(const SaveSum &sum, const std::filesystem::path &folder) {
    if (sum.photos == 0) {
        return translated("saving", "No photos were saved: there are none.");
    }
    if (sum.isWhole() && sum.saved == sum.photos) {
        return filled(
            translated("saving", "%n photos saved in %1.", "%n photo saved in %1.", sum.photos),
            {nameOf(folder)});
    }
    const std::string words =
        sum.stopped > 0 ? translated("saving", "Cancelled: %n of %1 saved.",
                                     "Cancelled: %n of %1 saved.", sum.saved)
                        : translated("saving", "%n of %1 saved.", "%n of %1 saved.", sum.saved);
    return filled(words, {std::to_string(sum.photos)});
}

} // namespace

SaveSum sumOf(const SaveOutcome &outcome) {
    SaveSum sum{.photos = outcome.photos.size(), .notOnDisk = outcome.notOnDisk};
    for (const SavedPhoto &photo : outcome.photos) {
        switch (photo.status) {
        case Status::Saved:
            ++sum.saved;
            sum.unplaced += photo.hasPosition ? 0 : 1;
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
    const auto add = [&text](const std::string &sentence) { text.append(" ").append(sentence); };
    if (sum.failed > 0) {
        add(translated("saving", "%n could not be written.", "%n could not be written.",
                       sum.failed));
    }
    if (sum.skipped > 0) {
        add(translated("saving", "%n were left out: their files are missing.",
                       "%n was left out: its file is missing.", sum.skipped));
    }
    if (sum.unplaced > 0) {
        add(sum.unplaced == sum.saved
                ? translated("saving", "The copies got no position.", "The copy got no position.",
                             sum.unplaced)
                : translated("saving", "%n of the copies got no position.",
                             "%n of the copies got no position.", sum.unplaced));
    }
    if (!sum.notOnDisk.empty()) {
        add(filled(translated("saving", "The copies may not all be on the disk: %1."),
                   {sum.notOnDisk}));
    }
    return text;
}

std::string ofText(std::size_t part, std::size_t whole) {
    return filled(translated("saving", "%1 of %2"), {std::to_string(part), std::to_string(whole)});
}

std::string waitingText(std::size_t names) {
    return translated("saving", "Waiting for place names: %n to go",
                      "Waiting for place names: %n to go", names);
}

std::string writingText(std::size_t done, std::size_t photos) {
    return filled(translated("saving", "Writing positions: %1 of %2"),
                  {std::to_string(done), std::to_string(photos)});
}

std::string quittingText(std::size_t done, std::size_t photos) {
    return filled(translated("saving", "Pinmora quits when the copies are written: %1 of %2"),
                  {std::to_string(done), std::to_string(photos)});
}

std::string logLine(const PhotoSnapshot &photo, const SavedPhoto &saved) {
    const bool isTold =
        saved.status == Status::Failed || (saved.status == Status::Saved && !saved.message.empty());
    if (!isTold) {
        return {};
    }
    if (saved.savedAs) {
        return filled(translated("saving", "%1, saved as %2: %3"),
                      {photo.source.native(), saved.savedAs->native(), saved.message});
    }
    return filled(translated("saving", "%1: %2"), {photo.source.native(), saved.message});
}

} // namespace pinmora
