#pragma once

#include "outlets/signal.h"
#include "platform/end_of_turn.h"
#include "recovery/recovered_work.h"

#include <string>
#include <vector>

namespace pinmora {

class ErrorSheet;
class QuietBar;
class UnsavedWorkKeeper;
struct StatusLine;

/// Offers on the quiet bar what earlier runs of the program have left unsaved, the oldest first,
/// and tells when unsaved work is not being kept.
class RecoveryOffers {
public:
    /// All must outlive it.
    RecoveryOffers(UnsavedWorkKeeper &keeper, QuietBar &bar, ErrorSheet &errors,
                   StatusLine &statusLine);

    RecoveryOffers(const RecoveryOffers &) = delete;
    RecoveryOffers &operator=(const RecoveryOffers &) = delete;
    /// Removes what the person has discarded and not taken back.
    ~RecoveryOffers();

    /// Posts an offer for each; one that is closed without an answer comes again at the next start.
    void post();

private:
    void post(const RecoveryOffer &offer);
    void bringBack(const RecoveryOffer &offer);
    void discard(const RecoveryOffer &offer);

    UnsavedWorkKeeper &keeper_;
    QuietBar &bar_;
    ErrorSheet &errors_;
    StatusLine &statusLine_;
    std::vector<RecoveryOffer> unwanted_; ///< there until the program ends
    std::string failure_;
    EndOfTurn tellFailure_;
    Connection failed_;
};

} // namespace pinmora
