#pragma once

#include "persistence/context.h"
#include "platform/date.h"
#include "recovery/journal_survey.h"
#include "recovery/recovery_folder.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace pinmora {

class LogImporter;
class RecoveryRecorder;

/// Unsaved work of an earlier run of the program, waiting for an answer.
struct RecoveryOffer {
    WorkFolder folder;
    Date time;              ///< when the last of it was written
    std::size_t photos = 0; ///< that came in or were changed
    std::size_t points = 0; ///< that came in
    std::string fault;      ///< why it cannot be brought back; "" if it can
};

/// Unsaved work that a crash, or a quit without saving, has left: sets it aside when the program
/// starts, offers it, and brings it back or removes it.
class RecoveredWork {
public:
    /// All must outlive it.
    RecoveredWork(Context &library, LogImporter &importer, RecoveryRecorder &recorder,
                  const RecoveryFolder &folder)
        : library_(library), importer_(importer), recorder_(recorder), folder_(folder) {}

    /// To be called once the library has been loaded from `storeFile`, which has this state, and
    /// before anything comes into it. Where there is work in the current folder it gets a name of
    /// its own, and all that it needs besides the store file of today.
    std::error_code setAside(const std::filesystem::path &storeFile, std::string_view storeState);

    /// What has been set aside and not been answered, the oldest first.
    std::vector<RecoveryOffer> offers() const;

    /// Brings work back as one step of undo. Its folder goes once the work is in the running
    /// program's own. After an error (a sentence) the folder is kept, and what could be brought
    /// back has been.
    [[nodiscard]] std::optional<std::string> bringBack(const RecoveryOffer &offer);
    /// Removes it for good.
    std::error_code discard(const RecoveryOffer &offer) const;

private:
    void addBase(const WorkFolder &work, const JournalSurvey &survey,
                 const std::filesystem::path &storeFile) const;

    Context &library_;
    LogImporter &importer_;
    RecoveryRecorder &recorder_;
    const RecoveryFolder &folder_;
    std::string loadedState_;     ///< of the store file at the start
    std::uint32_t loadedEnd_ = 0; ///< above the serials that it held
};

} // namespace pinmora
