#pragma once

#include "outlets/signal.h"

#include <cstdint>
#include <string>
#include <vector>

namespace pinmora {

class Context;
class Defaults;
class PhotoIntake;
class PhotoTypes;
class QuietBar;
class image;
struct BarMessage;
struct IntakeReport;

/// Tells on the quiet bar, after each load of photos, what it did not bring in and what it brought
/// in twice, and offers what can be done about it. What is said is of the last load only.
class IntakeNotes {
public:
    /// All must outlive it.
    IntakeNotes(Context &context, PhotoIntake &photoIntake, PhotoTypes &types, Defaults &defaults,
                QuietBar &quietBar);

private:
    /// What a load passed over.
    struct PassedOver {
        std::vector<std::string> files;
        std::vector<std::string> folders;
    };

    void tell(const IntakeReport &report, const std::vector<image *> &photos);
    void tellOfUnread(const IntakeReport &report);
    void tellOfPassedOver(PassedOver passedOver);
    void tellOfDoubles(const std::vector<image *> &photos);
    void postOrWithdraw(BarMessage message);
    void loadMoreTypes(const PassedOver &passedOver);
    void openFolders(const PassedOver &passedOver);
    void removeDoubles(const std::vector<std::uint32_t> &serials);

    Context &context_;
    PhotoIntake &photoIntake_;
    PhotoTypes &types_;
    Defaults &defaults_;
    QuietBar &quietBar_;
    PassedOver left_; ///< what a choice leaves of the message it was made from
    Connection loaded_;
};

} // namespace pinmora
