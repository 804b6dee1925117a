#pragma once

#include "persistence/change_observer.h"
#include "persistence/undo_observer.h"
#include "platform/background_job.h"
#include "platform/end_of_turn.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace pinmora {

class Context;
class Defaults;
class QuietBar;

/// Says on the quiet bar, when a person has taken the position from photos whose files have one,
/// that their saved copies would still carry it, and offers to have it removed there as well.
///
/// Nothing is said while the setting "removeOldPosition" is on. Files are looked into in the
/// background.
class OldPositionNotice : private UndoObserver, private ChangeObserver {
public:
    /// The context must have an undo manager already; all must outlive it.
    OldPositionNotice(Context &context, Defaults &defaults, QuietBar &quietBar);
    ~OldPositionNotice() override;
    OldPositionNotice(const OldPositionNotice &) = delete;
    OldPositionNotice &operator=(const OldPositionNotice &) = delete;

private:
    using Serials = std::set<std::uint32_t>;
    struct File {
        std::uint32_t photo; ///< its serial
        std::string path;
    };
    static Serials photosWithPosition(const std::vector<File> &files);

    void didRecord(const UndoStep &part, bool registered) override;
    void didChange(Record &record, std::string_view key) override;
    void didDelete(Record &) override { positionsChanged_.ask(); }
    bool isRemovedAnyway() const;
    void lookIntoFiles();
    void tell();

    Context &context_;
    Defaults &defaults_;
    QuietBar &quietBar_;
    std::vector<File> waiting_; ///< to be looked into
    Serials concerned_;         ///< photos that the message is about; none when there is none
    std::string text_;          ///< of the message
    EndOfTurn positionsChanged_;
    BackgroundJob job_;
};

} // namespace pinmora
