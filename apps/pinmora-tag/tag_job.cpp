#include "tag_job.h"

#include "loading.h"
#include "memory_library.h"
#include "place_lookup.h"

#include "matching/nearest_points.h"
#include "matching/placing.h"
#include "matching/time_distance.h"
#include "platform/translation.h"
#include "saving/saving.h"
#include "store/image.h"
#include "store/offset.h"
#include "store/track.h"
#include "store/track_part.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace pinmora::tag {

namespace {

void setOffset(offset &clockOffset, std::chrono::seconds signedOffset) {
    const auto whole = std::chrono::abs(signedOffset).count();
    clockOffset.setPlus(signedOffset.count() < 0 ? 0 : 1);
    clockOffset.setHours(static_cast<std::int32_t>(whole / 3600));
    clockOffset.setMinutes(static_cast<std::int32_t>(whole / 60 % 60));
    clockOffset.setSeconds(static_cast<std::int32_t>(whole % 60));
}

/// Renames all photos in order of time, as renaming all of a library does; those without a date
/// come first.
void rename(const std::vector<image *> &photos, const std::string &base, const Saving &saving) {
    std::vector<image *> byTime = photos;
    std::stable_sort(byTime.begin(), byTime.end(),
                     [](const image *a, const image *b) { return a->date() < b->date(); });
    saving.updateThesePict(byTime, photos, base);
}

/// Adds one remark to those that a photo's line has already.
void remark(PhotoLine &line, std::string_view text) {
    if (!text.empty()) {
        line.message += line.message.empty() ? "" : "; ";
        line.message += text;
    }
}

/// The points are null when no log was given.
PhotoLine placePhoto(image &photo, const offset &clockOffset, NearestPoints *points,
                     LocalZone &zone) {
    PhotoLine line{.file = photo.full_file_path().string()};
    const std::optional<Date> corrected = correctedTime(photo, clockOffset);
    const bool hasTime = corrected && photo.captureTime();
    if (hasTime) {
        line.taken = zone.wallClockAt(*photo.date());
        line.corrected = zone.wallClockAt(*corrected);
    }
    const bool hadAltitude = !photo.alt().view().empty();
    const track_part *const point = points && corrected ? points->inTime(*corrected) : nullptr;
    if (point) {
        placeAtWithAltitude(photo, *point, corrected);
    }
    if (point && hasTime) {
        line.secondsApart =
            static_cast<std::int64_t>(wholeSecondsApart(*point->time(), *corrected));
    } else if (point) {
        remark(line, translated("tag", "no capture time: placed by the time of loading"));
    } else if (points) {
        line.status = Status::Unmatched;
        remark(line, corrected
                         ? translated("tag", "there is no track point with a time and a position")
                         : translated("tag", "its capture time cannot be read"));
    }
    if (point && hadAltitude && photo.alt().view().empty()) {
        remark(line,
               translated("tag", "the point has no altitude: the copy keeps the photo's own"));
    }
    line.lat = photo.lat().string();
    line.lon = photo.lon().string();
    line.alt = photo.alt().string();
    return line;
}

void reportPlaces(const std::vector<image *> &photos, Report &report) {
    for (std::size_t i = 0; i < photos.size(); ++i) {
        PhotoLine &line = report.photos[i];
        line.city = photos[i]->city().string();
        line.prov = photos[i]->prov().string();
        line.country = photos[i]->country().string();
    }
}

/// Makes the folder for the copies if it is missing; says why nothing can be saved there.
bool prepareSaving(const Saving &saving, const std::filesystem::path &folder,
                   const Surroundings &surroundings) {
    if (!saving.hasTool()) {
        surroundings.tell(toolMissingMessage());
        return false;
    }
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!error && !std::filesystem::is_directory(folder, error) && !error) {
        error = std::make_error_code(std::errc::not_a_directory);
    }
    if (error) {
        surroundings.tell(filled(translated("tag", "%1: the copies cannot go there: %2"),
                                 {folder.native(), error.message()}));
    }
    return !error;
}

void savePhotos(const std::vector<image *> &photos, Report &report, const Saving &saving,
                const Options &options, const Surroundings &surroundings) {
    std::vector<PhotoSnapshot> snapshots;
    snapshots.reserve(photos.size());
    for (const image *photo : photos) {
        snapshots.push_back(snapshotOf(*photo));
    }
    std::size_t done = 0;
    const auto ended = [&](const SavedPhoto &) {
        surroundings.progress(filled(translated("tag", "Saving %1 of %2"),
                                     {std::to_string(++done), std::to_string(snapshots.size())}));
    };
    ToolSettings tool = surroundings.tool;
    tool.lane = options.lane.value_or(tool.lane);
    const SaveOutcome outcome = saving.save(snapshots, std::filesystem::absolute(options.out), tool,
                                            {.ended = ended, .stopped = surroundings.stopped});
    if (!outcome.notOnDisk.empty()) {
        surroundings.tell(filled(translated("tag", "%1: the copies may not be on the disk: %2"),
                                 {options.out.native(), outcome.notOnDisk}));
        report.trouble = true;
    }
    for (const SavedPhoto &saved : outcome.photos) {
        PhotoLine &line = report.photos[saved.index];
        line.savedAs = saved.savedAs ? saved.savedAs->native() : std::string();
        if (saved.status != SavedPhoto::Status::Saved) {
            line.status = Status::Failed;
            surroundings.tell(filled(translated("tag", "%1: %2"), {line.file, saved.message}));
        }
        remark(line, saved.message);
    }
}

} // namespace

Report runTagJob(const Options &options, const Surroundings &surroundings) {
    MemoryLibrary library;
    offset &clockOffset = library.context.insert<offset>();
    setOffset(clockOffset, options.offset);
    const Loaded loaded = loadEverything(library, clockOffset, options, surroundings);

    const Saving saving(surroundings.resources);
    if (options.name) {
        rename(loaded.photos, *options.name, saving);
    }
    Report report{.tracks = library.context.count<track>(),
                  .points = library.context.count<track_part>(),
                  .trouble = loaded.trouble};
    NearestPoints points(library.context);
    LocalZone zone;
    PlaceLookup places(library, surroundings);
    for (image *photo : loaded.photos) {
        report.photos.push_back(
            placePhoto(*photo, clockOffset, loaded.hadLogs ? &points : nullptr, zone));
    }
    places.wait();
    reportPlaces(loaded.photos, report);
    if (!loaded.hadLogs && !report.photos.empty()) {
        surroundings.tell(
            translated("tag", "there is no GPS log: the photos keep the positions that they have"));
    }
    if (options.dryRun) {
        for (PhotoLine &line : report.photos) {
            line.status = line.status == Status::Saved ? Status::Matched : line.status;
        }
    } else if (report.photos.empty()) {
        surroundings.tell(translated("tag", "there is no photo to save"));
        report.trouble = true;
    } else if (!prepareSaving(saving, options.out, surroundings)) {
        for (PhotoLine &line : report.photos) {
            line.status = Status::Failed;
            remark(line, translated("tag", "not copied"));
        }
    } else {
        savePhotos(loaded.photos, report, saving, options, surroundings);
    }
    return report;
}

} // namespace pinmora::tag
