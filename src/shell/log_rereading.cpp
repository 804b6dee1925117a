#include "shell/log_rereading.h"

#include "gps/gps.h"
#include "outlets/error_sheet.h"
#include "outlets/progress_sheet.h"
#include "persistence/undo_group.h"
#include "store/track.h"
#include "store/track_part.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <utility>

namespace pinmora {

namespace {

struct LogTracks {
    std::string path;
    std::vector<track *> tracks;
};

/// The logs in the order of their first tracks. A log that was loaded twice is one.
std::vector<LogTracks> logsOf(const Context &context) {
    std::vector<LogTracks> logs;
    for (track *one : context.records<track>()) {
        const std::string_view path = one->log_path().view();
        if (path.empty()) {
            continue;
        }
        auto found = std::find_if(logs.begin(), logs.end(),
                                  [path](const LogTracks &log) { return log.path == path; });
        if (found == logs.end()) {
            found = logs.insert(found, {std::string(path), {}});
        }
        found->tracks.push_back(one);
    }
    return logs;
}

template <class R>
std::vector<R *> recordsSince(const Context &context, std::uint32_t serial) {
    std::vector<R *> records;
    for (R *record : context.records<R>()) {
        if (record->serial() >= serial) {
            records.push_back(record);
        }
    }
    return records;
}

void deleteAll(Context &context, const auto &records) {
    for (auto *record : records) {
        context.deleteObject(*record);
    }
}

/// Points outside of tracks cannot be told from those that the log gave when it was first read.
void deleteLonePoints(Context &context, std::uint32_t since) {
    std::vector<track_part *> points = recordsSince<track_part>(context, since);
    std::erase_if(points, [](const track_part *point) { return point->track() != nullptr; });
    deleteAll(context, points);
}

/// Reads logs with sheets that nobody sees: what fails is told in other words.
class QuietReader {
public:
    QuietReader(Context &context, LogReading reading, ImportJournal *journal)
        : context_(context), gps_(context, progress_, errors_) {
        gps_.setReading(reading);
        gps_.setImportJournal(journal);
    }

    /// False: the log has not been read, and everything is as it was.
    bool replace(const LogTracks &log) {
        std::error_code notReached;
        if (!std::filesystem::is_regular_file(log.path, notReached)) {
            return false;
        }
        const std::uint32_t firstSerial = context_.nextSerial();
        gps_.beginLoad();
        const LogReport report = gps_.loadLog(log.path);
        const auto made = recordsSince<track>(context_, firstSerial);
        deleteLonePoints(context_, firstSerial);
        if (report.failed() || made.empty()) {
            deleteAll(context_, made);
            return false;
        }
        for (std::size_t i = 0; i < std::min(made.size(), log.tracks.size()); ++i) {
            made[i]->setTrack_id(log.tracks[i]->track_id());
        }
        deleteAll(context_, log.tracks);
        return true;
    }

private:
    Context &context_;
    Window window_;
    ProgressSheet progress_{[this]() -> Window & { return window_; }};
    ErrorSheet errors_{[this]() -> Window & { return window_; }};
    Gps gps_;
};

} // namespace

std::vector<std::string> readLogsAgain(Context &context, LogReading reading, ImportJournal *journal,
                                       ProgressSheet &progress) {
    const UndoGroup group(context, "Read Logs Again");
    const std::vector<LogTracks> logs = logsOf(context);
    const std::string count = std::to_string(logs.size());
    std::vector<std::string> kept;
    QuietReader reader(context, reading, journal);
    progress.showProgressWindow("Reading logs again", "", static_cast<double>(logs.size()));
    for (std::size_t i = 0; i < logs.size(); ++i) {
        progress.setSubText("Reading " + std::to_string(i + 1) + " of " + count);
        if (!reader.replace(logs[i])) {
            kept.push_back(logs[i].path);
        }
        progress.progressWindowIncrement();
    }
    progress.closeProgress();
    return kept;
}

} // namespace pinmora
