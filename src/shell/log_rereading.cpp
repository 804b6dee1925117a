#include "shell/log_rereading.h"

#include "gps/gps.h"
#include "outlets/error_sheet.h"
#include "outlets/progress_sheet.h"
#include "persistence/change_observer.h"
#include "persistence/undo_group.h"
#include "platform/translation.h"
#include "store/track.h"
#include "store/track_part.h"

#include <algorithm>
#include <filesystem>
#include <unordered_map>
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
    std::unordered_map<std::string, std::size_t> places;
    for (track *one : context.records<track>()) {
        std::string path = one->log_path().string();
        if (path.empty()) {
            continue;
        }
        const auto [place, isNew] = places.try_emplace(path, logs.size());
        if (isNew) {
            logs.push_back({std::move(path), {}});
        }
        logs[place->second].tracks.push_back(one);
    }
    return logs;
}

/// The records of an entity that come in while it lives. To look for them afterwards would be to
/// walk the whole library, once for each log.
template <class R>
class Newcomers : private ChangeObserver {
public:
    explicit Newcomers(Context &context) : context_(context) {
        context_.addObserver(*this, {.entity = &R::description(), .values = false});
    }
    ~Newcomers() override { context_.removeObserver(*this); }
    Newcomers(const Newcomers &) = delete;
    Newcomers &operator=(const Newcomers &) = delete;

    /// Those that are still there, in the order of their coming.
    std::vector<R *> records() const {
        std::vector<R *> present = came_;
        std::erase_if(present, [](const R *record) { return record->isDeleted(); });
        return present;
    }

private:
    void didInsert(Record &record) override { came_.push_back(static_cast<R *>(&record)); }

    Context &context_;
    std::vector<R *> came_;
};

void deleteAll(Context &context, const auto &records) {
    for (auto *record : records) {
        context.deleteObject(*record);
    }
}

/// Points outside of tracks cannot be told from those that the log gave when it was first read.
void deleteLonePoints(Context &context, std::vector<track_part *> points) {
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
        const Newcomers<track> tracks(context_);
        const Newcomers<track_part> points(context_);
        gps_.beginLoad();
        const LogReport report = gps_.loadLog(log.path);
        const auto made = tracks.records();
        deleteLonePoints(context_, points.records());
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
    const UndoGroup group(context, translated("shell", "Read Logs Again"));
    const std::vector<LogTracks> logs = logsOf(context);
    const std::string count = std::to_string(logs.size());
    std::vector<std::string> kept;
    QuietReader reader(context, reading, journal);
    progress.showProgressWindow(translated("shell", "Reading logs again"), "",
                                static_cast<double>(logs.size()));
    for (std::size_t i = 0; i < logs.size(); ++i) {
        progress.setSubText(
            filled(translated("shell", "Reading %1 of %2"), {std::to_string(i + 1), count}));
        if (!reader.replace(logs[i])) {
            kept.push_back(logs[i].path);
        }
        progress.progressWindowIncrement();
    }
    progress.closeProgress();
    return kept;
}

} // namespace pinmora
