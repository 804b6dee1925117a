#pragma once

#include "outlets/quiet_bar.h"
#include "outlets/signal.h"
#include "shell/intake_words.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

class Context;
class Defaults;
class GpsIntake;
class LogIntakeAdapter;
class PhotoIntake;
class PhotoTypes;
class image;

/// Tells on the quiet bar, after each load of photos or logs, what it did not bring in and which
/// photos it brought in twice, and offers what can be done about it.
///
/// What is said is of the last load only; but a load that was chosen on the bar adds to what has
/// not been answered there.
class IntakeNotes {
public:
    /// All must outlive it.
    IntakeNotes(Context &context, GpsIntake &gpsIntake, PhotoIntake &photoIntake,
                const LogIntakeAdapter &logs, PhotoTypes &types, Defaults &defaults,
                QuietBar &quietBar);

private:
    struct PassedOver {
        std::vector<std::string> files;
        std::vector<std::string> logs; ///< they look like logs inside, too
        std::vector<std::string> folders;
    };

    void tell(const IntakeReport &report, const std::vector<image *> &photos);
    void gather(const IntakeReport &report);
    void tellOfPassedOver();
    std::vector<BarMessage::Choice> choicesForPassedOver();
    void tellOfNotLoaded();
    void tellOfEmptyFolders();
    void tellOfDoubles();
    void postOrWithdraw(BarMessage message);
    bool isLoadedExtension(std::string_view extension) const;
    void loadMoreTypes();
    void loadToo(const std::vector<std::string> &paths);
    void removeDoubles();

    Context &context_;
    PhotoIntake &photoIntake_;
    const LogIntakeAdapter &logs_;
    PhotoTypes &types_;
    Defaults &defaults_;
    QuietBar &quietBar_;
    // What the messages on the bar are about; empty once a message has been answered or closed.
    PassedOver passedOver_;
    NotLoaded notLoaded_;
    std::vector<std::string> emptyFolders_;
    std::vector<std::uint32_t> serials_; ///< of photos with doubles among them, rising
    bool isChosen_ = false;              ///< the load under way was chosen on the bar
    std::vector<Connection> connections_;
};

} // namespace pinmora
