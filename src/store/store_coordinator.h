#pragma once

#include "persistence/xml_store.h"
#include "platform/file_lock.h"

#include <filesystem>
#include <optional>
#include <string>

namespace pinmora {

/// Joins a context to its store file, or to none when the file cannot be read or another process
/// has the library. A file that it could not read it never writes to.
class StoreCoordinator {
public:
    explicit StoreCoordinator(FileSystem &files) : files_(files) {}

    /// Takes the library's lock and reads the store file into the context. On an error there is no
    /// store, and the context is empty.
    [[nodiscard]] std::optional<StoreError> addPersistentStore(const std::filesystem::path &file,
                                                               Context &context);
    bool hasStore() const { return store_.has_value(); }
    /// The store file, also when there is no store.
    const std::filesystem::path &path() const { return file_; }
    /// Whether the library's folder is this process's, also when there is no store in it.
    bool isOurs() const { return isOurs_; }
    /// The state that the store file has; `emptyStoreState` without one.
    std::string storeState() const;

    /// Writes the whole context as that state.
    [[nodiscard]] std::optional<StoreError> save(const Context &context, std::string_view state);
    /// Leaves the store file with zero bytes.
    [[nodiscard]] std::optional<StoreError> empty();

private:
    FileSystem &files_;
    std::filesystem::path file_;
    FileLock lock_;
    bool isOurs_ = false;
    std::optional<XmlStore> store_;
};

} // namespace pinmora
