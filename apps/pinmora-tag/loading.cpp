#include "loading.h"

#include "matching/reading_comparison.h"
#include "photos/photos.h"
#include "platform/translation.h"
#include "store/image.h"
#include "store/track.h"

#include <filesystem>
#include <system_error>

namespace pinmora::tag {

namespace {

/// Loads the photos and notes the logs; says which files could not be used. True: all could.
bool loadPhotos(MemoryLibrary &library, LogList &logs, const Options &options,
                const Surroundings &surroundings) {
    PhotoTypes types;
    types.setMorePhotoTypes(surroundings.morePhotoTypes);
    Photos photos(library.context, logs, types);
    const Connection counting = photos.photoLoaded.connect([&](std::size_t count) {
        surroundings.progress(
            filled(translated("tag", "Reading photo %1"), {std::to_string(count)}));
    });
    bool allUsed = true;
    for (const std::filesystem::path &path : options.paths) {
        std::error_code error;
        if (std::filesystem::exists(path, error)) {
            photos.processThisPath(path.native());
        } else {
            surroundings.tell(
                error ? filled(translated("tag", "%1: %2"), {path.native(), error.message()})
                      : filled(translated("tag", "%1: there is no such file or folder"),
                               {path.native()}));
            allUsed = false;
        }
    }

    const IntakeReport &report = photos.report();
    for (const LeftOutFile &file : report.leftOut) {
        surroundings.tell(
            filled(translated("tag", "%1: left out: %2"), {file.path, reasonText(file.why)}));
    }
    for (const UnreadFolder &folder : report.unreadFolders) {
        surroundings.tell(filled(translated("tag", "%1: this folder cannot be read: %2"),
                                 {folder.path, folder.error.message()}));
    }
    for (const std::string &path : report.logsPassedOver) {
        surroundings.tell(filled(translated("tag", "%1: passed over, it is no GPS log"), {path}));
    }
    return allUsed && report.leftOut.empty() && report.unreadFolders.empty();
}

std::vector<Date> captureTimes(const std::vector<image *> &photos, const offset &clockOffset) {
    std::vector<Date> times;
    for (const image *photo : photos) {
        if (const std::optional<Date> taken = photo->captureTime()) {
            times.push_back(*taken + clockOffset.signedOffset());
        }
    }
    return times;
}

/// Compares the exact reading, which the library holds, with the tolerant one. The logs are read a
/// second time only where that could place more photos.
ReadingComparison compareWithTolerant(const MemoryLibrary &library, const LogList &logs,
                                      const std::vector<Date> &photoTimes,
                                      const Surroundings &surroundings) {
    const std::vector<Date> exact = pointTimes(library.context);
    const ReadingComparison alone = compareReadings(photoTimes, exact, {});
    if (alone.exact == photoTimes.size()) {
        return alone;
    }
    MemoryLibrary trial;
    logs.load(trial.gps, LogReading::Tolerant, surroundings);
    return compareReadings(photoTimes, exact, pointTimes(trial.context));
}

void removeTracks(Context &context) {
    for (track *one : context.fetch<track>()) {
        context.deleteObject(*one);
    }
}

LogList::Outcome loadLogs(MemoryLibrary &library, const LogList &logs,
                          const std::vector<Date> &photoTimes, const Options &options,
                          const Surroundings &surroundings) {
    const bool tolerant =
        options.reading == LogsChoice::Tolerant ||
        (options.reading == LogsChoice::Auto && surroundings.logReading == LogReading::Tolerant);
    const LogReading inForce = tolerant ? LogReading::Tolerant : LogReading::Exact;
    LogList::Outcome outcome = logs.load(library.gps, inForce, surroundings);
    if (options.reading != LogsChoice::Auto || tolerant) {
        return outcome;
    }
    const ReadingComparison fit = compareWithTolerant(library, logs, photoTimes, surroundings);
    if (fit.onlyTolerantPlacesPhotos()) {
        removeTracks(library.context);
        outcome = logs.load(library.gps, LogReading::Tolerant, surroundings);
        surroundings.tell(translated("tag", "the logs are read as tolerant: as exact, they place "
                                            "no photo within 5 minutes of a point"));
    } else if (fit.tolerantPlacesMore()) {
        //: "exact", "tolerant" and "--logs tolerant" stay as they are
        surroundings.tell(filled(
            translated("tag", "the logs are read as exact, which places %1 of %2 photos within 5 "
                              "minutes of a point; --logs tolerant would place %3"),
            {std::to_string(fit.exact), std::to_string(photoTimes.size()),
             std::to_string(fit.tolerant)}));
    }
    return outcome;
}

/// Says what the logs' reading could not use. True: every log could be read.
bool tellOfLogs(const LogList::Outcome &outcome, const Surroundings &surroundings) {
    bool allRead = true;
    for (const LogReport &report : outcome.reports) {
        const std::string unusable = report.unusableText();
        if (report.failed()) {
            surroundings.tell(
                filled(translated("tag", "%1: Error! %2"), {report.path.native(), report.message}));
            allRead = false;
        }
        if (!unusable.empty()) {
            surroundings.tell(
                filled(translated("tag", "%1: %2"), {report.path.native(), unusable}));
        }
    }
    for (const std::string &path : outcome.passedOver) {
        surroundings.tell(filled(translated("tag", "%1: passed over, it is no GPS log"), {path}));
    }
    return allRead;
}

} // namespace

Loaded loadEverything(MemoryLibrary &library, const offset &clockOffset, const Options &options,
                      const Surroundings &surroundings) {
    LogList logs;
    for (const std::filesystem::path &log : options.logs) {
        logs.readLog(log.native());
    }
    Loaded loaded;
    loaded.trouble = !loadPhotos(library, logs, options, surroundings);
    loaded.photos = library.context.fetch<image>();
    loaded.hadLogs = !logs.empty();
    if (loaded.hadLogs) {
        const LogList::Outcome outcome = loadLogs(
            library, logs, captureTimes(loaded.photos, clockOffset), options, surroundings);
        loaded.trouble |= !tellOfLogs(outcome, surroundings);
    }
    return loaded;
}

} // namespace pinmora::tag
