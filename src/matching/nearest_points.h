#pragma once

#include "matching/point_index.h"
#include "matching/point_positions.h"
#include "matching/track_coverage.h"
#include "persistence/change_observer.h"
#include "platform/date.h"

#include <optional>
#include <span>
#include <vector>

namespace pinmora {

class Context;

/// Answers which of a context's track points is nearest, in time or in place, and keeps what makes
/// the next answer quick.
///
/// The arranged order of the points is the order in which they came into the context. The first
/// search of either kind gathers the points. From then on the context is observed, and what was
/// gathered goes as soon as a point comes, goes, or changes its time or place; so does the
/// observer, which would otherwise make an import of a million points hear of each value.
class NearestPoints : private ChangeObserver {
public:
    /// The context must outlive it.
    explicit NearestPoints(Context &context) : context_(context) {}
    ~NearestPoints() override { forget(); }
    NearestPoints(const NearestPoints &) = delete;
    NearestPoints &operator=(const NearestPoints &) = delete;

    /// By PointIndex, however far away; null when no point can be found.
    track_part *inTime(Date target) { return gathered(byTime_).nearest(target); }
    /// PointIndex::times(); they hold until a point changes.
    std::span<const Date> times() { return gathered(byTime_).times(); }
    /// When logs were running.
    const TrackCoverage &coverage();
    /// By PointPositions, however far away; null when no point can be found.
    track_part *inPlace(Position known) { return gathered(byPlace_).nearest(known); }
    /// By PointPositions::passes().
    std::vector<Date> passes(Position place, double metres) {
        return gathered(byPlace_).passes(place, metres);
    }

private:
    void didChange(Record &, std::string_view key) override;
    void didInsert(Record &) override { forget(); }
    void didDelete(Record &) override { forget(); }
    template <class Index>
    const Index &gathered(std::optional<Index> &index);
    void observe();
    void forget();

    Context &context_;
    std::optional<PointIndex> byTime_;
    std::optional<PointPositions> byPlace_;
    std::optional<TrackCoverage> coverage_;
    bool observing_ = false;
};

} // namespace pinmora
