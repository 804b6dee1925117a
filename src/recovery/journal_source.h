#pragma once

#include "recovery/journal_file.h"
#include "recovery/journal_records.h"
#include "store/import_journal.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

/// The frames of an import in a journal, from behind its beginning up to its end.
class JournalSource : public ImportSource {
public:
    /// The file must outlive it.
    explicit JournalSource(JournalFile &file) : file_(file) {}

    std::string_view next() override;
    std::optional<std::string> entity(std::string_view name) override;

    /// Passes over what is left, and tells what came of the import at the time; nothing where the
    /// journal does not say.
    std::optional<ImportResult> result();

private:
    JournalFile &file_;
    std::vector<ImportedEntity> entities_; ///< told and not asked for yet
    std::optional<ImportResult> result_;
    bool isOver_ = false;
};

} // namespace pinmora
