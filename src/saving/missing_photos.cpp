#include "saving/missing_photos.h"

#include "persistence/undo_group.h"
#include "platform/translation.h"
#include "saving/folder_search.h"
#include "saving/missing_words.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <unordered_map>

namespace pinmora {

namespace {

bool isMissing(const image &photo) {
    return photo.valid_file() == std::optional(false);
}

/// What cannot be reached is not there either.
bool isThere(const std::string &path) {
    std::error_code notReached;
    return std::filesystem::exists(path, notReached);
}

void relink(image &photo, const std::string &path) {
    std::error_code unknown;
    const std::uintmax_t bytes = std::filesystem::file_size(path, unknown);
    photo.setFull_file_path(path);
    photo.setValid_file(true);
    photo.setFile_size(unknown ? std::nullopt : std::optional(static_cast<double>(bytes)));
}

WantedFile wantedFile(const image &photo) {
    const std::string path = photo.full_file_path().string();
    WantedFile wanted{
        .name = std::filesystem::path(path).filename(), .size = {}, .formerPath = path};
    if (photo.file_size()) {
        wanted.size = static_cast<std::uintmax_t>(*photo.file_size());
    }
    return wanted;
}

} // namespace

MissingPhotos::MissingPhotos(Context &context, ArrayController<image> &pictureArray,
                             MissingPhotosOutlets &outlets, FileBrowser &browser, SaveFlags &flags,
                             WorkingWindow workingWindow, MissingPhotosActions actions)
    : missingImages(context), context_(context), pictureArray_(pictureArray), outlets_(outlets),
      browser_(browser), flags_(flags), workingWindow_(std::move(workingWindow)),
      actions_(std::move(actions)), listChanged_([this] { showWhatCanBeDone(); }) {
    missingImages.setFilter(isMissing);
    context_.addObserver(*this, {.entity = &image::description()});
    OpenPanel &panel = outlets.findInFolderPanel;
    panel.title = translated("saving", "Choose the Folder to Search");
    //: the button that takes the chosen folder
    panel.prompt = translated("saving", "Search");
    panel.canChooseFiles = false;
    panel.canChooseDirectories = true;
    connectButtons();
}

MissingPhotos::~MissingPhotos() {
    context_.removeObserver(*this);
}

void MissingPhotos::connectButtons() {
    const auto connect = [this](Button &button, void (MissingPhotos::*action)()) {
        connections_.push_back(button.pressed.connect([this, action] { (this->*action)(); }));
    };
    connect(outlets_.browser.updateFileLink, &MissingPhotos::updatePict);
    connect(outlets_.deleteMissingButton, &MissingPhotos::deleteMissingPict);
    connect(outlets_.deleteAllMissingButton, &MissingPhotos::deleteAllMissingPicts);
    connect(outlets_.findInFolderButton, &MissingPhotos::findInFolder);
    connect(outlets_.saveAnyWayButton, &MissingPhotos::saveThePictsAnyway);
    connect(outlets_.saveFromErrorWindow, &MissingPhotos::saveThePictsFromError);
    connect(outlets_.closeErrorButton, &MissingPhotos::closePictError);
    connect(outlets_.errorOK, &MissingPhotos::errorOKClick);
    // Both may be told in the middle of a change.
    connections_.push_back(
        missingImages.arrangementChanged.connect([this] { listChanged_.ask(); }));
    connections_.push_back(missingImages.selectionChanged.connect([this] { listChanged_.ask(); }));
}

/// Also by undo.
void MissingPhotos::didChange(Record & /*record*/, std::string_view key) {
    if (key == "valid_file") {
        missingImages.contentChanged();
    }
}

bool MissingPhotos::validateSavedDataZem() {
    outlets_.browser.updateFileLink.enabled.set(false);
    allThere_ = true;
    const UnregisteredChanges programsOwn(context_);
    for (image *photo : context_.fetch<image>()) {
        if (isThere(photo->full_file_path().string())) {
            continue;
        }
        allThere_ = false;
        if (!isMissing(*photo)) {
            photo->setValid_file(false);
        }
    }
    showWhatCanBeDone();
    return allThere_;
}

void MissingPhotos::showWhatCanBeDone() {
    const bool isFree = !isSearching();
    const bool hasSome = missingImages.count() > 0;
    outlets_.saveAnyWayButton.enabled.set(isFree && !allThere_);
    outlets_.saveFromErrorWindow.enabled.set(isFree && allThere_);
    outlets_.findInFolderButton.enabled.set(isFree && hasSome);
    outlets_.deleteMissingButton.enabled.set(isFree && missingImages.firstSelectedObject());
    outlets_.deleteAllMissingButton.enabled.set(isFree && hasSome);
    outlets_.browser.fsBrowser.enabled.set(isFree);
}

void MissingPhotos::openPictErrorWin() {
    outlets_.findOutcome.text.set("");
    if (!missingImages.firstSelectedObject()) {
        selectOneNear(0);
    }
    showWhatCanBeDone();
    outlets_.browser.fsBrowser.loadColumnZero();
    outlets_.pictErrorWindow.begin(workingWindow_());
}

void MissingPhotos::showSaveButtons(bool forSaving) {
    outlets_.saveAnyWayButton.visible.set(forSaving);
    outlets_.saveFromErrorWindow.visible.set(forSaving);
    outlets_.errorOK.visible.set(!forSaving);
}

void MissingPhotos::openForSaving() {
    outlets_.browser.updateFileLink.enabled.set(false);
    showSaveButtons(true);
    openPictErrorWin();
}

void MissingPhotos::openForLooking() {
    validateSavedDataZem();
    showSaveButtons(false);
    if (image *const lookedAt = pictureArray_.firstSelectedObject()) {
        missingImages.select(lookedAt);
    }
    openPictErrorWin();
}

/// In the list; of several, the first.
std::size_t MissingPhotos::selectedPosition() const {
    const auto &list = missingImages.arrangedObjects();
    const auto found = std::find(list.begin(), list.end(), missingImages.firstSelectedObject());
    return static_cast<std::size_t>(found - list.begin());
}

void MissingPhotos::selectOneNear(std::size_t position) {
    const auto &list = missingImages.arrangedObjects();
    if (!list.empty()) {
        missingImages.select(list[std::min(position, list.size() - 1)]);
    }
    showWhatCanBeDone();
}

void MissingPhotos::updatePict() {
    image *const photo = missingImages.firstSelectedObject();
    const std::string path = browser_.selectedPath();
    if (!photo || path.empty() || isSearching()) {
        return;
    }
    const std::size_t position = selectedPosition();
    {
        const UndoGroup group(context_, translated("saving", "Relink Photo"));
        relink(*photo, path);
    }
    outlets_.findOutcome.text.set("");
    validateSavedDataZem();
    selectOneNear(position);
}

void MissingPhotos::deleteMissingPict() {
    removePhotos(missingImages.selectedObjects());
}

void MissingPhotos::deleteAllMissingPicts() {
    removePhotos(missingImages.arrangedObjects());
}

void MissingPhotos::removePhotos(const std::vector<image *> &photos) {
    if (photos.empty() || isSearching()) {
        return;
    }
    const std::size_t position = selectedPosition();
    {
        const UndoGroup group(context_, photos.size() == 1
                                            ? translated("saving", "Remove Picture")
                                            : translated("saving", "Remove Pictures"));
        missingImages.removeObjects(std::vector<image *>(photos));
    }
    outlets_.findOutcome.text.set("");
    validateSavedDataZem();
    selectOneNear(position);
    actions_.selectionChanged();
}

void MissingPhotos::endSheet() {
    if (search_) {
        search_->stop();
    }
    outlets_.findInFolderPanel.answer({});
    outlets_.pictErrorWindow.end();
}

void MissingPhotos::saveThePictsFromError() {
    endSheet();
    actions_.updatePicts();
}

void MissingPhotos::saveThePictsAnyway() {
    endSheet();
    flags_.saveAnyWay = true;
    actions_.updatePicts();
}

void MissingPhotos::closePictError() {
    endSheet();
    outlets_.browser.updateFileLink.enabled.set(false);
}

void MissingPhotos::errorOKClick() {
    endSheet();
    outlets_.browser.updateFileLink.enabled.set(false);
    if (image *const photo = pictureArray_.firstSelectedObject()) {
        photo->setHasChangesTrue();
        actions_.dealWithPict(photo->full_file_path().string());
    }
}

void MissingPhotos::findInFolder() {
    if (isSearching() || missingImages.count() == 0) {
        return;
    }
    outlets_.findInFolderPanel.beginSheet(workingWindow_(), [this](OpenPanel &panel, int answer) {
        panel.close();
        if (answer == OpenPanel::okCode) {
            search(panel.filenames().front());
        }
    });
}

bool MissingPhotos::isSearching() const {
    return search_ && search_->isRunning();
}

void MissingPhotos::search(const std::string &folder) {
    std::vector<WantedFile> wanted;
    std::vector<std::uint32_t> serials; // a photo may be gone when the search is over
    for (const image *photo : missingImages.arrangedObjects()) {
        wanted.push_back(wantedFile(*photo));
        serials.push_back(photo->serial());
    }
    TextField &telling = outlets_.findOutcome;
    telling.text.set(searchingText(folder, folder));
    search_ = std::make_unique<FolderSearch>(
        [&telling, folder](const std::string &turn) {
            telling.text.set(searchingText(folder, turn));
        },
        [this, serials = std::move(serials)](const FolderSearch::Found &found) {
            relinkFound(serials, found);
        });
    search_->start(folder, std::move(wanted));
    outlets_.browser.updateFileLink.enabled.set(false);
    showWhatCanBeDone();
}

void MissingPhotos::relinkFound(const std::vector<std::uint32_t> &serials,
                                const std::vector<std::optional<std::string>> &found) {
    std::unordered_map<std::uint32_t, std::string> placeOf;
    for (std::size_t i = 0; i < serials.size(); ++i) {
        if (found[i]) {
            placeOf.emplace(serials[i], *found[i]);
        }
    }
    const std::size_t position = selectedPosition();
    if (!placeOf.empty()) {
        const UndoGroup group(context_, placeOf.size() == 1
                                            ? translated("saving", "Relink Photo")
                                            : translated("saving", "Relink Photos"));
        for (image *photo : std::vector<image *>(missingImages.arrangedObjects())) {
            if (const auto place = placeOf.find(photo->serial()); place != placeOf.end()) {
                relink(*photo, place->second);
            }
        }
    }
    outlets_.findOutcome.text.set(foundText(placeOf.size(), serials.size()));
    validateSavedDataZem();
    selectOneNear(position);
}

} // namespace pinmora
