#pragma once

#include "recovery/journal_records.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

/// What a journal has in it, without doing it.
struct JournalSurvey {
    /// A state of the store file that holds all up to a place in the journal.
    struct Mark {
        std::string state;
        std::uint64_t position;
    };

    JournalStart start;
    std::vector<Mark> marks;  ///< in their order: the start, then the saves
    std::uint64_t end = 0;    ///< behind the last step that is there as a whole
    std::optional<Mark> live; ///< the latest mark of the state asked for

    // Behind that mark, or in all of the journal and its base where there is none.
    bool hasWork = false;   ///< something that a person did
    std::size_t photos = 0; ///< that came in or were changed
    std::size_t points = 0; ///< that came in

    std::string fault; ///< why nothing can be brought back, a sentence without its full stop
};

/// Reads a journal through, up to its first damaged frame. `liveState` is the state of the store
/// document that the library was loaded from.
JournalSurvey surveyJournal(const std::filesystem::path &journal, std::string_view liveState);

} // namespace pinmora
