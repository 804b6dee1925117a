#include "store/library.h"

#include "persistence/undo_group.h"
#include "platform/application_support.h"
#include "platform/translation.h"

#include <QLoggingCategory>

namespace pinmora {

namespace {

/// Silent unless somebody asks for it: windows look at the library all the time.
Q_LOGGING_CATEGORY(storeLog, "pinmora.store", QtInfoMsg)

} // namespace

Library::Library(NotificationCentre &notifications, ErrorSheet &errors, FileSystem &files)
    : notifications_(notifications), errors_(errors), files_(files) {}

Library::~Library() = default;

std::filesystem::path Library::applicationSupportFolder() const {
    return applicationSupportBase() / "Pinmora";
}

LibraryModel &Library::managedObjectModel() {
    if (!model_) {
        model_ = std::make_unique<LibraryModel>(notifications_);
    }
    return *model_;
}

StoreCoordinator &Library::persistentStoreCoordinator() {
    if (!coordinator_) {
        std::error_code showsWhenTheStoreIsAdded;
        std::filesystem::create_directories(applicationSupportFolder(), showsWhenTheStoreIsAdded);
        context_ = std::make_unique<Context>(managedObjectModel());
        coordinator_ = std::make_unique<StoreCoordinator>(files_);
        if (const auto error = coordinator_->addPersistentStore(storeFile(), *context_)) {
            presentError(translated("store", "Your library could not be opened."), *error);
        }
    }
    return *coordinator_;
}

Context &Library::managedObjectContext() {
    persistentStoreCoordinator();
    if (!undo_) { // looking at what was just presented may have made it
        undo_ = std::make_unique<UndoManager>(*context_);
        arrays_ = std::make_unique<LibraryArrays>(*context_);
    }
    return *context_;
}

UndoManager &Library::windowWillReturnUndoManager(const Window &) {
    managedObjectContext();
    return *undo_;
}

LibraryArrays &Library::arrays() {
    managedObjectContext();
    return *arrays_;
}

void Library::removeAllGPSData() {
    const UndoGroup group(managedObjectContext(), translated("store", "Remove All GPS Data"));
    auto &tracks = arrays_->gpsTrackArrayController;
    tracks.removeObjects(std::vector<track *>(tracks.arrangedObjects()));
    GPSFileButton.enabled.set(true);
}

bool Library::hasTrackData() {
    const bool has = arrays().gpsArray.count() > 0;
    qCDebug(storeLog, "ret %i", static_cast<int>(has));
    return has;
}

bool Library::saveAction() {
    Context &context = managedObjectContext();
    context.commitEditing();
    undo_->closeStep();
    const std::string state = makeStoreState();
    if (unsaved_) {
        unsaved_->willSave(state);
    }
    if (const auto error = coordinator_->save(context, state)) {
        presentError(translated("store", "Your library could not be saved."), *error);
        return false;
    }
    context.commitChanges();
    if (unsaved_) {
        unsaved_->didSave(state);
    }
    return true;
}

void Library::deleteTempStore() {
    managedObjectContext();
    undo_->closeStep();
    if (unsaved_ && !unsaved_->willEmptyStore()) {
        return;
    }
    static_cast<void>(coordinator_->empty());
    if (unsaved_) {
        unsaved_->didEmptyStore();
    }
}

void Library::emptyTempStore() {
    Context &context = managedObjectContext();
    {
        const UndoGroup group(context, translated("store", "Remove All Photos"));
        for (image *photo : context.fetch<image>()) {
            context.deleteObject(*photo);
        }
    }
    saveAction();
}

void Library::presentError(const std::string &header, const StoreError &error) {
    errors_.present(header, error.message());
}

} // namespace pinmora
