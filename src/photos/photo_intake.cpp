#include "photos/photo_intake.h"

#include "outlets/progress_sheet.h"
#include "outlets/status_line.h"
#include "persistence/undo_group.h"
#include "photos/file_names.h"
#include "photos/folder_listing.h"
#include "photos/photos.h"
#include "platform/defaults.h"
#include "platform/scoped_flag.h"
#include "platform/translation.h"
#include "store/image.h"
#include "store/track.h"

#include <algorithm>
#include <filesystem>

namespace pinmora {

namespace {

constexpr std::string_view folderKey = "pictDir"; ///< what was chosen first in the last panel

std::vector<image *> photosSince(const Context &context, std::uint32_t serial) {
    std::vector<image *> photos;
    for (image *photo : context.records<image>()) {
        if (photo->serial() >= serial) {
            photos.push_back(photo);
        }
    }
    return photos;
}

} // namespace

PhotoIntake::PhotoIntake(Context &context, Photos &photos, ProgressSheet &progress,
                         StatusLine &statusLine, Defaults &defaults, WorkingWindow workingWindow,
                         bool &loadRunning)
    : context_(context), photos_(photos), progress_(progress), statusLine_(statusLine),
      defaults_(defaults), workingWindow_(std::move(workingWindow)), loadRunning_(loadRunning),
      photoLoaded_(photos.photoLoaded.connect([this](std::size_t count) { showProgress(count); })) {
}

void PhotoIntake::getFiles() {
    if (loadRunning_) {
        return;
    }
    panel.title = translated("photos", "Add Photos");
    panel.typesName = translated("photos", "Photos");
    panel.canChooseDirectories = true;
    panel.allowsMultipleSelection = true;
    panel.directory = defaults_.text(folderKey).value_or("");
    panel.allowedTypes = photos_.types().panelTypes();
    panel.beginSheet(workingWindow_(), [this](OpenPanel &answered, int returnCode) {
        setPictureFolder(answered, returnCode);
    });
}

void PhotoIntake::setPictureFolder(OpenPanel &chosen, int returnCode) {
    chosen.close();
    const std::vector<std::string> paths = chosen.filenames();
    if (returnCode != OpenPanel::okCode || paths.empty() || loadRunning_) {
        return;
    }
    defaults_.setText(folderKey, paths.front());
    load(paths, [this](const std::string &path) { photos_.loadPict(path); });
}

bool PhotoIntake::applicationOpenFile(const std::string &name) {
    openFiles({name});
    return true;
}

void PhotoIntake::openFiles(const std::vector<std::string> &names) {
    load(names, [this](const std::string &path) { photos_.processThisPath(path); });
}

void PhotoIntake::loadToo(const std::vector<std::string> &paths) {
    openFiles(paths);
}

unsigned PhotoIntake::draggingEntered(const DragInfo &drag) {
    theBorder1.setHasShadow(true);
    theBorder2.setHasShadow(true);
    return draggingEnteredOrUpdated(drag);
}

unsigned PhotoIntake::draggingUpdated(const DragInfo &drag) {
    return draggingEnteredOrUpdated(drag);
}

void PhotoIntake::draggingExited() {
    theBorder1.setHasShadow(false);
    theBorder2.setHasShadow(false);
}

unsigned PhotoIntake::draggingEnteredOrUpdated(const DragInfo &drag) const {
    return drag.offersFiles && !drag.fromMainWindow ? drag.sourceOperations : 0;
}

bool PhotoIntake::performDragOperation(const std::vector<std::string> &paths) {
    draggingExited();
    if (paths.empty() || loadRunning_) {
        return false;
    }
    progress_.showProgressWindow(translated("photos", "Loading files"), "", 1);
    load({paths.rbegin(), paths.rend()}, [this](const std::string &path) {
        progress_.progressWindowIncrement();
        photos_.processThisPath(path);
    });
    return false;
}

void PhotoIntake::load(const std::vector<std::string> &paths, const Take &take) {
    if (loadRunning_) {
        return;
    }
    const std::uint32_t firstSerial = context_.nextSerial();
    takeAll(paths, take);
    const IntakeReport report = photos_.report(); // a handler may begin the next load
    loaded.emit(report, photosSince(context_, firstSerial));
}

void PhotoIntake::takeAll(const std::vector<std::string> &paths, const Take &take) {
    const ScopedFlag running(loadRunning_);
    context_.commitEditing(); // what is half typed is no part of this step
    const UndoGroup group(context_, translated("photos", "Add Photos"));
    const std::size_t tracksBefore = context_.count<track>();
    photos_.clearReport();
    beginning.emit();
    total_ = photosIn(paths);
    for (const std::string &path : paths) {
        take(path);
    }
    total_ = 0;
    progress_.closeProgress();
    statusLine_.show("");
    UndoManager *const undo = context_.undoManager();
    if (undo && photos_.report().loaded.empty() && context_.count<track>() > tracksBefore) {
        undo->setActionName(translated("photos", "Load GPS Data"));
    }
}

std::size_t PhotoIntake::photosIn(const std::vector<std::string> &paths) const {
    const auto isPict = [this](const std::string &path) { return photos_.isPict(path); };
    std::size_t count = 0;
    for (const std::string &path : paths) {
        std::error_code notReached;
        if (std::filesystem::is_directory(path, notReached)) {
            const std::vector<std::string> names = listFolder(path).names;
            count += static_cast<std::size_t>(std::count_if(names.begin(), names.end(), isPict));
        } else {
            count += isPict(splitPath(path).name) ? 1U : 0U;
        }
    }
    return count;
}

void PhotoIntake::showProgress(std::size_t count) {
    if (total_ > 0) {
        statusLine_.show(filled(translated("photos", "Loading photo %1 of %2"),
                                {std::to_string(count), std::to_string(total_)}));
    }
}

} // namespace pinmora
