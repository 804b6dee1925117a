#include "recovery/unsaved_work_keeper.h"

#include "store/library.h"

#include <utility>

namespace pinmora {

UnsavedWorkKeeper::UnsavedWorkKeeper(Library &library, LogImporter &importer, FileSystem &files)
    : library_(library), folder_(library.applicationSupportFolder() / "recovery", files),
      recorder_(library.managedObjectContext(), folder_),
      recovered_(library.managedObjectContext(), importer, recorder_, folder_) {
    const StoreCoordinator &coordinator = library.persistentStoreCoordinator();
    if (!coordinator.isOurs()) {
        return;
    }
    library.setUnsavedWork(this);
    recovered_.setAside(coordinator.path(), coordinator.storeState());
    recorder_.begin(coordinator.storeState());
    if (!coordinator.hasStore()) {
        recorder_.storeEmptied(); // the file is not what the library goes on from
    }
}

UnsavedWorkKeeper::~UnsavedWorkKeeper() {
    library_.setUnsavedWork(nullptr);
}

void UnsavedWorkKeeper::willSave(std::string_view state) {
    recorder_.saved(state);
}

void UnsavedWorkKeeper::didSave(std::string_view state) {
    recorder_.begin(state);
}

/// The mark that the journal gets makes it count for nothing as soon as the store file is empty,
/// and not before.
bool UnsavedWorkKeeper::willEmptyStore() {
    if (exported_ == recorder_.moment()) {
        recorder_.saved(emptyStoreState);
        return true;
    }
    exported_.reset();
    return !recorder_.writeBase();
}

/// What is done from now on is kept on the base of the working set.
void UnsavedWorkKeeper::didEmptyStore() {
    if (std::exchange(exported_, std::nullopt)) {
        recorder_.begin(emptyStoreState);
        recorder_.storeEmptied();
    }
}

} // namespace pinmora
