#pragma once

#include "matching/nearest_points.h"
#include "outlets/object_controller.h"
#include "outlets/signal.h"
#include "persistence/change_observer.h"
#include "platform/end_of_turn.h"

#include <chrono>
#include <optional>

namespace pinmora {

class image;
class offset;

/// How far in time each photo is from the track point nearest to it, as the clock offset stands
/// now. Reckoned for those photos that somebody asks for.
class PhotoGaps : private ChangeObserver {
public:
    /// Both must outlive it.
    PhotoGaps(Context &context, ObjectController<offset> &offsetObj);
    ~PhotoGaps() override;
    PhotoGaps(const PhotoGaps &) = delete;
    PhotoGaps &operator=(const PhotoGaps &) = delete;

    /// Nothing for a photo without a capture time, and without points. Negative: the photo is
    /// earlier than the point.
    std::optional<std::chrono::seconds> gapOf(const image &photo);

    /// When logs were running. It holds until a point changes.
    const TrackCoverage &coverage() { return points_.coverage(); }

    /// The points, for whoever has more to ask of them.
    NearestPoints &points() { return points_; }

    /// All gaps may be others; sent once a turn of the event loop.
    Signal<> changed;

private:
    void didChange(Record &record, std::string_view key) override;
    void didInsert(Record &) override { endOfTurn_.ask(); }
    void didDelete(Record &) override { endOfTurn_.ask(); }

    Context &context_;
    ObjectController<offset> &offsetObj_;
    NearestPoints points_;
    EndOfTurn endOfTurn_;
    Connection offsetChosen_;
};

} // namespace pinmora
