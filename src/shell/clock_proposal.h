#pragma once

#include "matching/offset_proposal.h"
#include "outlets/signal.h"
#include "persistence/change_observer.h"
#include "platform/background_job.h"
#include "platform/end_of_turn.h"

#include <chrono>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace pinmora {

class ClockOffset;
class Context;
class Matcher;
class PhotoGaps;
class QuietBar;
class ReadingOffer;

/// An offset, and the clock that it is for; `camera` "": that of all that have none of their own.
struct ProposedOffset {
    std::string camera;
    OffsetProposal proposal;
};

/// Looks, whenever photos, logs or clocks have changed, whether another clock offset would bring
/// clearly more of the photos onto the track, and proposes it on the quiet bar. It is taken by a
/// click and by nothing else.
///
/// Cameras may be off by different amounts: an offset for all is proposed only where no camera
/// loses by it, else one for the camera that gains.
class ClockProposal : private ChangeObserver {
public:
    struct Parts {
        Context &context;
        ClockOffset &clockOffset;
        PhotoGaps &gaps;
        Matcher &matcher;
        ReadingOffer &readingOffer; ///< while that is open, the points' times are in doubt
        QuietBar &quietBar;
        const bool &loadRunning;
    };

    /// All must outlive it.
    explicit ClockProposal(const Parts &parts);
    ~ClockProposal() override;
    ClockProposal(const ClockProposal &) = delete;
    ClockProposal &operator=(const ClockProposal &) = delete;

    /// For those who cannot wait for the event loop: looks at once and tells.
    void finish();

private:
    void didChange(Record &record, std::string_view key) override;
    void didInsert(Record &) override { endOfTurn_.ask(); }
    void didDelete(Record &) override { endOfTurn_.ask(); }
    void look();
    void answered(const std::vector<ProposedOffset> &proposed);
    void tell(const std::vector<ProposedOffset> &proposed);
    void take(const ProposedOffset &proposed);
    void forgetTaken();

    Parts parts_;
    /// The camera and clock of the proposal that was taken last, while the bar speaks of it.
    std::optional<std::pair<std::string, std::chrono::seconds>> taken_;
    bool isStale_ = false; ///< something has changed since the work under way began
    std::set<std::pair<std::string, std::chrono::seconds>> declined_;
    EndOfTurn endOfTurn_;
    BackgroundJob job_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
