#pragma once

#include "recovery/recovered_work.h"
#include "recovery/recovery_folder.h"
#include "recovery/recovery_recorder.h"
#include "store/unsaved_work.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace pinmora {

class Library;
class LogImporter;

/// Keeps a library's unsaved work in the folder "recovery" beside its file, and what an earlier run
/// left there until a person has answered. Nothing is kept while another process has the library.
///
/// To be made once the library has been opened and before anything is done to it.
class UnsavedWorkKeeper : public UnsavedWork {
public:
    /// The library, which tells the keeper from now on, and the importer must outlive it.
    UnsavedWorkKeeper(Library &library, LogImporter &importer,
                      FileSystem &files = realFileSystem());
    ~UnsavedWorkKeeper() override;
    UnsavedWorkKeeper(const UnsavedWorkKeeper &) = delete;
    UnsavedWorkKeeper &operator=(const UnsavedWorkKeeper &) = delete;

    /// Imports are to be told to it.
    RecoveryRecorder &recorder() { return recorder_; }
    RecoveredWork &recovered() { return recovered_; }

    /// The person does not want what is not saved.
    void forget() { recorder_.clear(); }
    /// Marks this moment of the working set.
    std::size_t moment() { return recorder_.moment(); }
    /// The working set of that moment is elsewhere for good. When the store file is emptied next,
    /// it is not kept, unless a person has done something since.
    void exported(std::size_t moment) { exported_ = moment; }

    void willSave(std::string_view state) override;
    void didSave(std::string_view state) override;
    bool willEmptyStore() override;
    void didEmptyStore() override;

private:
    Library &library_;
    RecoveryFolder folder_;
    RecoveryRecorder recorder_;
    RecoveredWork recovered_;
    std::optional<std::size_t> exported_; ///< the moment
};

} // namespace pinmora
