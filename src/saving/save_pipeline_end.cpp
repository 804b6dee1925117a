#include "platform/translation.h"
#include "saving/save_pipeline_run.h"

#include "outlets/quiet_bar.h"
#include "outlets/workspace.h"
#include "persistence/context.h"
#include "persistence/undo_manager.h"
#include "platform/log_file.h"
#include "saving/save_words.h"
#include "store/image.h"
#include "store/library.h"

#include <QTimer>

#include <unordered_map>
#include <utility>

namespace pinmora {

/// Not in the middle of a load or another long step, which hands out turns of the event loop: the
/// library is not to be written half changed.
void SavePipeline::finish() {
    if (!run_) {
        return;
    }
    const UndoManager *const undo = parts_.library.managedObjectContext().undoManager();
    if (undo && undo->isInGroup()) {
        finishLater_->start();
        return;
    }
    const std::unique_ptr<Run> run = std::move(run_);
    const bool hasBegun = run->worker != nullptr;
    run->worker.reset();
    progress_.end();
    outlets_.savePhotosButton.enabled.set(true);
    if (!hasBegun) {
        sumUp(run->quits, translated("saving", "Cancelled: nothing was saved."), {});
    } else if (!run->outcome.refusal.empty()) {
        parts_.flags.firstQuit = true;
        parts_.log.append(run->outcome.refusal);
        sumUp(run->quits, run->outcome.refusal, {});
    } else {
        settle(*run);
    }
}

/// The copies are on the disk. What comes next can be broken off anywhere: until the store file is
/// empty the library is in it and in the journal, and afterwards, where it is still wanted, in the
/// base that was written before.
void SavePipeline::settle(const Run &run) {
    const SaveSum sum = sumOf(run.outcome);
    const std::string text = sumText(sum, run.folder);
    if (sum.isWhole()) {
        parts_.exported(run.moment);
    } else {
        parts_.log.append(filled(translated("saving", "%1: %2"), {run.folder.native(), text}));
    }
    parts_.library.deleteTempStore();
    markFailures(run);
    std::vector<BarMessage::Choice> choices;
    if (sum.failed > 0 || !sum.notOnDisk.empty()) {
        //: a button: shows the log of what went wrong
        choices.push_back({translated("saving", "Show"), parts_.showLog});
    }
    if (sum.saved > 0) {
        choices.push_back({translated("saving", "Open Folder"),
                           [&workspace = parts_.workspace, folder = run.folder.native()] {
                               workspace.openFile(folder);
                           }});
    }
    sumUp(run.quits && !sum.isWhole(), text, std::move(choices));
    if (run.quits && sum.isWhole()) {
        parts_.terminate();
    }
}

void SavePipeline::markFailures(const Run &run) {
    std::unordered_map<std::uint32_t, const SavedPhoto *> failed;
    for (const SavedPhoto &photo : run.outcome.photos) {
        if (photo.status == SavedPhoto::Status::Failed) {
            failed.emplace(run.photos[photo.index], &photo);
        }
    }
    std::vector<SaveMarks::Mark> marks;
    for (const image *photo : parts_.library.managedObjectContext().records<image>()) {
        if (const auto found = failed.find(photo->serial()); found != failed.end()) {
            marks.push_back({photo, found->second->message});
        }
    }
    parts_.marks.mark(std::move(marks));
}

void SavePipeline::sumUp(bool hasNotQuit, const std::string &text,
                         std::vector<BarMessage::Choice> choices) {
    parts_.quietBar.post(
        {.subject = saveSubject,
         .head = {},
         .text = hasNotQuit ? text + " " + translated("saving", "Pinmora has not quit.") : text,
         .choices = std::move(choices),
         .weight = BarWeight::Answer});
}

} // namespace pinmora
