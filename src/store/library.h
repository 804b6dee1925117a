#pragma once

#include "outlets/controls.h"
#include "outlets/error_sheet.h"
#include "persistence/undo_manager.h"
#include "store/library_arrays.h"
#include "store/library_model.h"
#include "store/store_coordinator.h"
#include "store/unsaved_work.h"

#include <filesystem>
#include <memory>
#include <optional>

namespace pinmora {

/// The library of photos, tracks and settings, and the file in which it outlives the program:
/// "Pinmora.xml" in the folder "Pinmora" among the person's data. Model, coordinator and context
/// are made when they are first asked for and kept to the end; the file is read with the first of
/// the latter two, and written by an explicit save only.
class Library {
public:
    /// All must outlive the library. Files are written through `files`.
    Library(NotificationCentre &notifications, ErrorSheet &errors,
            FileSystem &files = realFileSystem());
    Library(const Library &) = delete;
    Library &operator=(const Library &) = delete;
    ~Library();

    std::filesystem::path applicationSupportFolder() const;
    LibraryModel &managedObjectModel();
    /// Makes the folder where there is none. What keeps the file from being read is shown once; the
    /// program goes on without a store then, and the file stays as it is.
    StoreCoordinator &persistentStoreCoordinator();
    Context &managedObjectContext();
    /// Whether that has been asked for.
    bool hasManagedObjectContext() const { return undo_ != nullptr; }
    /// Every window's undo and redo act on the library.
    UndoManager &windowWillReturnUndoManager(const Window &);
    LibraryArrays &arrays();

    /// Deletes all tracks with their points. The file follows with the next save.
    void removeAllGPSData();
    /// Whether there is a point.
    bool hasTrackData();

    /// Saves the library to its file; a failure is shown, and the library stays in memory.
    bool saveAction();
    /// Leaves the file empty; the library goes on in memory. A failure is not told, and neither is
    /// it when the file is kept because nothing else would keep the library.
    void deleteTempStore();
    /// Deletes all photos and saves.
    void emptyTempStore();

    /// Null: nobody keeps unsaved work.
    void setUnsavedWork(UnsavedWork *unsaved) { unsaved_ = unsaved; }

    Button GPSFileButton; ///< loads GPS files

private:
    std::filesystem::path storeFile() const { return applicationSupportFolder() / "Pinmora.xml"; }
    void presentError(const std::string &header, const StoreError &error);

    NotificationCentre &notifications_;
    ErrorSheet &errors_;
    FileSystem &files_;
    UnsavedWork *unsaved_ = nullptr;
    // In the order in which they are made; each stands on those before it.
    std::unique_ptr<LibraryModel> model_;
    std::unique_ptr<Context> context_; ///< filled by the coordinator
    std::unique_ptr<StoreCoordinator> coordinator_;
    std::unique_ptr<UndoManager> undo_;
    std::unique_ptr<LibraryArrays> arrays_;
};

} // namespace pinmora
