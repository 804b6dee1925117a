#pragma once

#include "outlets/map_view.h"
#include "platform/date.h"

#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QTimer;

namespace pinmora {

/// Lets the map that is looked at show where the photos come to lie while the camera's clock is
/// being turned. A page is told the photos' times once, and then only how far the clock is turned,
/// some fifteen times a second at most. A page that is not seen is told nothing.
///
/// Times are those of feed_messages::tracks, of the clock on the wall. Where that clock is set
/// forward or back within the turn, photos are shown an hour off until the hand lets go.
class TurnFeed {
public:
    struct Outlets {
        MapView &webView1;
        MapView &webView2; ///< the wizard's
        const bool &inWizard;
    };
    /// When the photos concerned were taken by the clock as it is stored, ascending. Asked once at
    /// the beginning of a turn.
    using Times = std::function<std::vector<Date>()>;

    /// The outlets must outlive it.
    TurnFeed(Outlets outlets, Times times);
    ~TurnFeed();
    TurnFeed(const TurnFeed &) = delete;
    TurnFeed &operator=(const TurnFeed &) = delete;

    /// How far the clock is turned; nothing when no hand is at it any more.
    void turned(std::optional<std::chrono::seconds> by);

private:
    struct Page {
        MapView &view;
        bool isWizards = false;
        bool isTold = false; ///< the times of this turn
    };

    void send();
    void end();

    Outlets outlets_;
    Times times_;
    std::array<Page, 2> pages_;
    std::optional<std::chrono::seconds> by_;
    std::string timesJson_; ///< of this turn
    bool isDue_ = false;    ///< something is to be sent when the pause ends
    std::unique_ptr<QTimer> pause_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
