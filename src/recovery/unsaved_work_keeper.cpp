#include "recovery/unsaved_work_keeper.h"

#include "store/library.h"

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

void UnsavedWorkKeeper::forgetExported() {
    recorder_.begin(emptyStoreState);
    recorder_.storeEmptied();
}

void UnsavedWorkKeeper::willSave(std::string_view state) {
    recorder_.saved(state);
}

void UnsavedWorkKeeper::didSave(std::string_view state) {
    recorder_.begin(state);
}

bool UnsavedWorkKeeper::willEmptyStore() {
    return !recorder_.writeBase();
}

} // namespace pinmora
