#pragma once

#include "outlets/observable.h"
#include "outlets/quiet_bar.h"
#include "outlets/signal.h"
#include "outlets/window.h"
#include "platform/end_of_turn.h"
#include "saving/save_flags.h"
#include "saving/save_marks.h"
#include "saving/save_outlets.h"
#include "saving/save_progress.h"
#include "saving/save_worker.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class QTimer;

namespace pinmora {

class Defaults;
class ErrorSheet;
class Library;
class LogFile;
class MissingPhotos;
class Saving;
struct StatusLine;
struct Workspace;

/// Whom a save needs. All must outlive it.
struct SaveSurroundings {
    Library &library;
    const Saving &saving;
    MissingPhotos &missing;
    SaveMarks &marks;
    SaveFlags &flags;
    LogFile &log;
    Defaults &defaults;
    QuietBar &quietBar;
    StatusLine &statusLine;
    ErrorSheet &errors;
    Workspace &workspace;
    WorkingWindow workingWindow;
    /// How many place names are still to come, to be waited for at most `namePatience`.
    Observable<std::size_t> &awaitedNames;
    std::chrono::milliseconds namePatience{5'000};
    /// Marks this moment; to be given to `exported` when all that was there then has been saved.
    std::function<std::size_t()> momentOfSnapshot;
    /// The photos as they were at that moment are elsewhere for good: unsaved work of before is not
    /// kept any more.
    std::function<void(std::size_t moment)> exported;
    /// A folder has been chosen; called before the photos are read. May be empty.
    std::function<void()> begins{};
    std::function<void()> showLog;
    std::function<void()> terminate; ///< asks once more to quit
};

/// The command that saves tagged copies of all photos: check, folder, run, and what is told of it.
class SavePipeline {
public:
    SavePipeline(SaveOutlets &outlets, SaveSurroundings surroundings);
    /// Stops a run that is under way, and waits for what has been begun.
    ~SavePipeline();
    SavePipeline(const SavePipeline &) = delete;
    SavePipeline &operator=(const SavePipeline &) = delete;

    /// The save command.
    void updatePicts();
    /// The folder chooser's answer.
    void savePhotoFiles(OpenPanel &chosen, int returnCode);
    /// Begins no further photo; what is copied is still tagged.
    void cancelSave();

    /// From the confirmation of the folder until the last tool has ended.
    bool isRunning() const;
    /// How long names are waited for, from the next run on.
    void setNamePatience(std::chrono::milliseconds patience) { parts_.namePatience = patience; }

    /// Asks to quit once the run is over and everything has been written, and says so.
    void quitWhenDone();

private:
    struct Run;

    void chooseFolder();
    void beginRun(const OpenPanel &chosen);
    void beginCopying();
    void take(SaveEvent::Any &event);
    void finish();
    void settle(const Run &run);
    void markFailures(const Run &run);
    void sumUp(bool hasNotQuit, const std::string &text, std::vector<BarMessage::Choice> choices);

    SaveOutlets &outlets_;
    SaveSurroundings parts_;
    SaveProgress progress_;
    std::unique_ptr<Run> run_; ///< null: none is under way
    EndOfTurn finish_;         ///< a run must not go while it tells of its end
    std::unique_ptr<QTimer> finishLater_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
