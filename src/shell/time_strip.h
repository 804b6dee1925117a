#pragma once

#include "outlets/signal.h"
#include "persistence/change_observer.h"
#include "platform/date.h"
#include "platform/end_of_turn.h"
#include "store/track_summary.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace pinmora {

class ClockOffset;
class Context;
class Matcher;
class PhotoGaps;
class image;
struct LibraryArrays;

/// Tracks and photos on one axis of time: what stands where, and what a hand does there. Photos
/// stand at their corrected time, also while their camera's clock is being turned.
class TimeStrip : private ChangeObserver {
public:
    /// A track, from its first point to its last.
    struct Bar {
        std::string number{}; ///< as it is listed; "" for a track without one
        Date from{};
        Date to{};
    };
    /// A photo that tells when it was taken. Holds until a turn of the event loop is over.
    struct Tick {
        image *photo = nullptr;
        Date at{};
        bool selected = false;
        bool far = false; ///< no log was running then; without points no photo is far
    };
    struct Extent {
        Date from{};
        Date to{};
    };
    enum class Choice { Only, Also, Toggled };

    /// All must outlive it. `selectionChanged` tells of a selection that was made here.
    TimeStrip(Context &context, LibraryArrays &arrays, PhotoGaps &gaps, ClockOffset &clockOffset,
              Matcher &matcher, std::function<void()> selectionChanged);
    ~TimeStrip() override;
    TimeStrip(const TimeStrip &) = delete;
    TimeStrip &operator=(const TimeStrip &) = delete;

    /// Something may stand elsewhere or look different; sent once a turn of the event loop.
    Signal<> changed;

    /// Tracks without times are left out.
    const std::vector<Bar> &bars();
    /// By the time that their cameras' clocks give as they are set.
    const std::vector<Tick> &ticks();
    /// From the earliest to the latest; nothing where there is none.
    std::optional<Extent> tracksExtent();
    std::optional<Extent> photosExtent();
    /// How far in time the photo is from the nearest point, while nothing is being turned.
    std::optional<std::chrono::seconds> gapOf(const image &photo);

    void choose(const std::vector<image *> &photos, Choice how);

    /// Takes hold of the clock that the photo goes by.
    void grasp(const image &photo);
    /// From where it was when it was taken hold of.
    void turnTo(std::chrono::seconds by);
    /// The turn is stored, as one step of undo.
    void letGo();
    void cancel();
    bool isTurning() const;
    /// "+1 h 02 min 10 s → +2 h 00 min 10 s": the turn, and the offset that comes of it where it is
    /// another; "" when nothing is being turned.
    std::string turnWords() const;
    /// The clock that the controls show, while nothing is being turned, and the same in words.
    std::chrono::seconds clock() const;
    std::string clockWords() const;
    /// Turns it, as one step of undo.
    void step(std::chrono::seconds by);

    /// Whether one photo is selected, which tells when it was taken, and there are points.
    bool canSetFromMoment();
    /// Sets the clock by the selected photo and the point nearest to the moment.
    void setFromMoment(Date moment);

private:
    struct Measured {
        TrackSummary summary{};
        std::string number{};
    };

    void didChange(Record &record, std::string_view key) override;
    void didInsert(Record &record) override { follow(record); }
    void didDelete(Record &record) override;
    void follow(const Record &record);
    void gatherTicks();
    void placeTicks();
    void markSelected();
    void gatherBars();

    Context &context_;
    LibraryArrays &arrays_;
    PhotoGaps &gaps_;
    ClockOffset &clockOffset_;
    Matcher &matcher_;
    const std::function<void()> selectionChanged_;
    std::vector<Tick> ticks_;
    std::vector<Date> still_;           ///< where they stand when nothing is being turned
    std::optional<std::string> turned_; ///< the camera that `turning_` is of
    std::vector<bool> turning_;         ///< the ticks that go with its clock
    std::unordered_map<const Record *, Measured> measured_; ///< by track
    std::vector<Bar> bars_;
    bool ticksStale_ = true;
    bool placesStale_ = true;
    bool selectionStale_ = true;
    bool barsStale_ = true;
    EndOfTurn endOfTurn_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
