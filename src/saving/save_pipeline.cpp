#include "saving/save_pipeline.h"

#include "outlets/error_sheet.h"
#include "outlets/quiet_bar.h"
#include "outlets/workspace.h"
#include "persistence/context.h"
#include "platform/defaults.h"
#include "platform/translation.h"
#include "saving/missing_photos.h"
#include "saving/save_pipeline_run.h"
#include "saving/save_words.h"
#include "saving/saving.h"
#include "saving/tool_settings.h"
#include "store/image.h"
#include "store/library.h"

#include <QTimer>

#include <utility>

namespace pinmora {

namespace {

constexpr std::string_view removesPositionKey = "removeOldPosition";

} // namespace

SavePipeline::SavePipeline(SaveOutlets &outlets, SaveSurroundings surroundings)
    : outlets_(outlets), parts_(std::move(surroundings)),
      progress_(outlets, parts_.statusLine, parts_.workingWindow), finish_([this] { finish(); }),
      finishLater_(std::make_unique<QTimer>()) {
    constexpr std::chrono::milliseconds workIsLookedAtAgain{50};
    finishLater_->setSingleShot(true);
    finishLater_->setInterval(workIsLookedAtAgain);
    QObject::connect(finishLater_.get(), &QTimer::timeout, finishLater_.get(),
                     [this] { finish(); });
    connections_.push_back(outlets.cancelSaveButton.pressed.connect([this] { cancelSave(); }));
    OpenPanel &chooser = outlets.folderChooser;
    chooser.title = translated("saving", "Choose a Folder for the Copies of Your Photos");
    //: the button that takes the chosen folder
    chooser.prompt = translated("saving", "Save Here");
    chooser.allowedTypes = {"jpg", "JPG"};
    chooser.canChooseFiles = false;
    chooser.canChooseDirectories = true;
    chooser.canCreateDirectories = true;
    chooser.accessory.visible.set(true);
    chooser.accessory.title.set(translated(
        "saving", "Remove the position that a photo's file has when the photo has none here"));
}

SavePipeline::~SavePipeline() = default;

void SavePipeline::updatePicts() {
    const bool passesOverCheck = std::exchange(parts_.flags.saveAnyWay, false);
    if (run_ || !parts_.library.managedObjectContext().commitEditing()) {
        return;
    }
    if (!parts_.saving.hasTool()) {
        parts_.errors.present(translated("saving", "Photos cannot be saved yet."),
                              toolMissingMessage());
        return;
    }
    if (!parts_.missing.validateSavedDataZem() && !passesOverCheck) {
        parts_.missing.openForSaving();
        return;
    }
    parts_.flags.firstQuit = true;
    chooseFolder();
}

void SavePipeline::chooseFolder() {
    OpenPanel &chooser = outlets_.folderChooser;
    chooser.accessory.on.set(parts_.defaults.text(removesPositionKey) == "1");
    chooser.beginSheet(parts_.workingWindow(), [this](OpenPanel &panel, int returnCode) {
        savePhotoFiles(panel, returnCode);
    });
}

void SavePipeline::savePhotoFiles(OpenPanel &chosen, int returnCode) {
    chosen.close();
    if (returnCode == OpenPanel::okCode && !chosen.filenames().empty() && !run_) {
        beginRun(chosen);
    }
}

void SavePipeline::beginRun(const OpenPanel &chosen) {
    if (parts_.begins) {
        parts_.begins();
    }
    run_ = std::make_unique<Run>();
    run_->folder = chosen.filenames().front();
    run_->removesOldPositions = chosen.accessory.on.get();
    parts_.defaults.setText(removesPositionKey, run_->removesOldPositions ? "1" : "0");
    outlets_.savePhotosButton.enabled.set(false);
    parts_.quietBar.withdraw(saveSubject);
    parts_.marks.clear();
    progress_.open();
    const std::size_t awaited = parts_.awaitedNames.get();
    if (awaited == 0) {
        beginCopying();
        return;
    }
    progress_.waitsForNames(awaited);
    run_->names = std::make_unique<NameWait>(
        parts_.awaitedNames, parts_.namePatience,
        [this](std::size_t names) { progress_.waitsForNames(names); }, [this] { beginCopying(); });
}

void SavePipeline::beginCopying() {
    parts_.flags.firstQuit = false;
    parts_.flags.saveAnyWay = false;
    SaveOrder order{
        .photos = {}, .folder = run_->folder, .settings = toolSettingsFrom(parts_.defaults)};
    for (const image *photo : parts_.library.managedObjectContext().records<image>()) {
        order.photos.push_back(snapshotOf(*photo));
        order.photos.back().removeOldPosition = run_->removesOldPositions;
        run_->photos.push_back(photo->serial());
    }
    run_->moment = parts_.momentOfSnapshot();
    const std::size_t count = order.photos.size();
    run_->worker = std::make_unique<SaveWorker>(parts_.saving, std::move(order), parts_.log,
                                                [this](SaveEvent::Any &event) { take(event); });
    progress_.begins(count); // draws, in which time a short run could end
    run_->worker->start();
}

void SavePipeline::cancelSave() {
    if (!run_ || !outlets_.saveWindow.isUp()) {
        return;
    }
    progress_.cancels();
    if (run_->worker) {
        run_->worker->stop();
    } else {
        run_->names.reset();
        finish_.ask();
    }
}

bool SavePipeline::isRunning() const {
    return run_ != nullptr;
}

void SavePipeline::quitWhenDone() {
    if (run_) {
        run_->quits = true;
        progress_.quits();
    }
}

void SavePipeline::take(SaveEvent::Any &event) {
    if (const auto *begun = std::get_if<SaveEvent::Begins>(&event)) {
        progress_.beginsPhoto(begun->index);
    } else if (const auto *placed = std::get_if<SaveEvent::Placed>(&event)) {
        parts_.workspace.noteFileSystemChanged(placed->copy.native());
    } else if (std::holds_alternative<SaveEvent::Copied>(event)) {
        progress_.copied();
    } else if (const auto *ended = std::get_if<SaveEvent::Ended>(&event)) {
        progress_.ended(ended->status);
    } else {
        run_->outcome = std::move(std::get<SaveEvent::Over>(event).outcome);
        finish_.ask();
    }
}

} // namespace pinmora
