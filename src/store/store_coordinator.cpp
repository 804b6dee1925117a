#include "store/store_coordinator.h"

#include "platform/atomic_file.h"
#include "platform/translation.h"

namespace pinmora {

std::optional<StoreError> StoreCoordinator::addPersistentStore(const std::filesystem::path &file,
                                                               Context &context) {
    file_ = file;
    // Two links to one file are one library.
    std::error_code none;
    std::filesystem::path lockFile = std::filesystem::weakly_canonical(file, none);
    if (none) {
        lockFile = file;
    }
    const std::error_code error = lock_.acquire(lockFile.replace_extension(".lock"));
    isOurs_ = error != std::errc::operation_would_block;
    if (!isOurs_) {
        return StoreError{.path = file,
                          .reason = translated("store", "another Pinmora has this library open"),
                          .code = error};
    }
    // Any other error: some file systems know no locks, others may only be read. Better an
    // unguarded library than none.
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
                          .reason = translated(
                              "store", "it could not be opened when Pinmora started, so nothing is "
                                       "written to it"),
                          .code = {}};
    }
    return store_->write(context, state);
}

std::optional<StoreError> StoreCoordinator::empty() {
    if (!store_) {
        return std::nullopt;
    }
    const std::error_code error = writeAtomically(file_, {}, files_);
    std::error_code none;
    if (std::filesystem::file_size(file_, none) == 0) {
        store_.emplace(file_, files_);
    }
    return error
               ? std::optional(StoreError{.path = file_, .reason = error.message(), .code = error})
               : std::nullopt;
}

} // namespace pinmora
