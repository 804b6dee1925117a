// Proposing a clock offset, against building the index that matching takes.

#include "ratio.h"

#include "matching/clock_evidence.h"
#include "matching/nearest_points.h"
#include "persistence/context.h"
#include "platform/notification_centre.h"
#include "store/image.h"
#include "store/library_model.h"
#include "store/track_part.h"

#include <chrono>
#include <cstddef>
#include <string>
#include <utility>

using namespace pinmora;
using namespace std::chrono_literals;

namespace {

constexpr std::size_t manyPoints = 1'000'000;
constexpr std::size_t manyPhotos = 10'000;
const Date begin = std::chrono::sys_days(std::chrono::year(2024) / 5 / 1);

/// A point a second, with a pause of an hour after every `run` of them, and photos spread evenly
/// over it all by a clock that is off.
struct Outing {
    NotificationCentre notifications;
    LibraryModel model{notifications};
    Context context{model};

    Outing(std::size_t run, std::chrono::seconds off) {
        const auto timeOf = [run](std::size_t point) {
            return begin + std::chrono::seconds(point) + std::chrono::hours(point / run);
        };
        for (std::size_t i = 0; i < manyPoints; ++i) {
            auto &point = context.insert<track_part>();
            point.setTimeWithDate(timeOf(i));
            point.setLat("47.3825");
            point.setLon("8.5417");
        }
        for (std::size_t i = 0; i < manyPhotos; ++i) {
            auto &photo = context.insert<image>();
            photo.setValue(Value(timeOf(i * (manyPoints / manyPhotos)) - off), "date");
        }
    }
};

void measureOn(bench::Report &report, const std::string &name, std::size_t run,
               std::chrono::seconds off) {
    Outing outing(run, off);
    Context &context = outing.context;
    NearestPoints points(context);
    points.times(); // matching has built the index already
    const bench::Pair pair = bench::bestPair(
        [&] {
            OffsetEvidence evidence =
                gatherEvidence(context, points, 0s, [](const image &) { return true; });
            evidence.coverage = TrackCoverage(points.times());
            proposeOffset(std::move(evidence));
        },
        [&] { const PointIndex index(context.records<track_part>()); });
    report.atMost("proposal / index, " + name, pair.ratio(), 2);
}

void measure(bench::Report &report) {
    measureOn(report, "zone", 20'000, 2h);
    measureOn(report, "none fits", 20'000, 5000h);
    measureOn(report, "1000 pauses", 1'000, 37min);
    measureOn(report, "20000 pauses", 50, 2h);
}

} // namespace

int main() {
    return bench::run(measure);
}
