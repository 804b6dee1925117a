#include "store/store_coordinator.h"

#include "platform/atomic_file.h"

namespace pinmora {

std::optional<StoreError> StoreCoordinator::addPersistentStore(const std::filesystem::path &file,
                                                               Context &context) {
    file_ = file;
    std::filesystem::path lockFile = file;
    lockFile.replace_extension(".lock");
    const std::error_code error = lock_.acquire(lockFile);
    // Some network file systems know no locks: better an unguarded library than none.
    isOurs_ = !error || error == std::errc::not_supported ||
              error == std::errc::operation_not_supported || error == std::errc::no_lock_available;
    if (!isOurs_) {
        const bool isHeld = error == std::errc::operation_would_block;
        return StoreError{.path = isHeld ? file : lockFile,
                          .reason =
                              isHeld ? "another Pinmora has this library open" : error.message(),
                          .code = error};
    }
    store_.emplace(file, files_);
    auto unreadable = store_->read(context);
    if (unreadable) {
        store_.reset();
    }
    return unreadable;
}

std::string StoreCoordinator::storeState() const {
    return store_ ? store_->state() : std::string(emptyStoreState);
}

std::optional<StoreError> StoreCoordinator::save(const Context &context, std::string_view state) {
    if (!store_) {
        return StoreError{.path = file_,
                          .reason = "it could not be opened when Pinmora started, so nothing is "
                                    "written to it",
                          .code = {}};
    }
    return store_->write(context, state);
}

std::optional<StoreError> StoreCoordinator::empty() {
    if (!store_) {
        return std::nullopt;
    }
    if (const std::error_code error = writeAtomically(file_, {}, files_)) {
        return StoreError{.path = file_, .reason = error.message(), .code = error};
    }
    store_.emplace(file_, files_);
    return std::nullopt;
}

} // namespace pinmora
