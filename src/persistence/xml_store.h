#pragma once

#include "persistence/context.h"
#include "platform/file_system.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace pinmora {

/// Why a store file could not be read or written.
struct StoreError {
    std::filesystem::path path;
    std::size_t line = 0; ///< where the reason is in the file, from 1; 0 when that is no place
    std::string reason;   ///< a sentence without its full stop
    std::error_code code; ///< what the system said, if it did

    /// "/home/a/Pinmora.xml, line 3: track has no key "colour"."
    std::string message() const;
};

/// The state of a store file that is empty or not there.
inline constexpr std::string_view emptyStoreState = "empty";

/// A new name for the state that a save brings a store file to: 32 hexadecimal digits, never the
/// same twice.
std::string makeStoreState();

/// A store file: all stored records of a context as one XML document.
///
///     <?xml version="1.0" encoding="UTF-8"?>
///     <pinmora-library version="1" state="..." next="1000004" records="1000003">
///     ...
///     </pinmora-library>
///
/// Within are the records in the order of their serials, as RecordWriter writes them; `next` is the
/// serial of the next new record, `records` how many there are.
class XmlStore {
public:
    explicit XmlStore(std::filesystem::path path, FileSystem &files = realFileSystem())
        : path_(std::move(path)), files_(files) {}

    const std::filesystem::path &path() const { return path_; }
    /// The state of the file as it was last read or written here.
    const std::string &state() const { return state_; }

    /// Replaces the file at once and as a whole. After an error it is as it was, with one
    /// exception, which state() tells: when the new file is in place but may not survive a power
    /// cut.
    [[nodiscard]] std::optional<StoreError> write(const Context &context,
                                                  std::string_view newState);

    /// Reads the file into a new context; a file that is empty or not there holds no records. After
    /// an error the context has no records.
    [[nodiscard]] std::optional<StoreError> read(Context &context);

private:
    std::filesystem::path path_;
    FileSystem &files_;
    std::string state_{emptyStoreState};
};

} // namespace pinmora
