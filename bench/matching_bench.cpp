// Finding each photo's nearest track point, against the import of those points.

#include "log_import.h"
#include "ratio.h"

#include "matching/nearest_points.h"
#include "matching/placing.h"
#include "store/image.h"
#include "store/offset.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <vector>

using namespace pinmora;

namespace {

constexpr double never = std::numeric_limits<double>::infinity();

/// Photos spread evenly over the log, a minute before its start to a minute after its end.
std::vector<image *> addPhotos(Context &context, std::size_t count) {
    const auto points = context.fetch<track_part>();
    const Date first = *points.front()->time() - std::chrono::minutes(1);
    const Date last = *points.back()->time() + std::chrono::minutes(1);
    LocalZone zone;
    std::vector<image *> photos;
    for (std::size_t i = 0; i < count; ++i) {
        const Date taken = first + (last - first) * i / count;
        photos.push_back(&context.insert<image>());
        photos.back()->setDate(textFromDate(taken, "%Y:%m:%d %H:%M:%S", zone));
    }
    return photos;
}

/// Has the processor forget the points: only those of the smaller log would fit into its cache.
void emptyProcessorCache() {
    static std::vector<char> filling(std::size_t{128} << 20U);
    for (std::size_t i = 0; i < filling.size(); i += 64) {
        ++filling[i];
    }
}

/// Index and searches, from nothing; the fastest of five, because it is short work that is easily
/// disturbed. Ends the program when a photo gets no point.
double secondsOfMatching(Context &context, const std::vector<image *> &photos) {
    const auto &noOffset = context.insert<offset>();
    double best = never;
    for (int run = 0; run < 5; ++run) {
        emptyProcessorCache();
        best = std::min(best, bench::seconds([&] {
                            NearestPoints points(context);
                            for (const image *photo : photos) {
                                if (!points.inTime(*correctedTime(*photo, noOffset))) {
                                    std::fprintf(stderr, "a photo found no point\n");
                                    std::exit(2);
                                }
                            }
                        }));
    }
    return best;
}

/// Deals the times of the points out anew, in an order that no log has.
void shuffleTimes(Context &context) {
    const auto points = context.fetch<track_part>();
    std::vector<std::optional<Date>> times;
    for (const track_part *point : points) {
        times.push_back(point->time());
    }
    std::shuffle(times.begin(), times.end(), std::mt19937{});
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i]->setTimeWithDate(times[i]);
    }
}

/// The fastest of several runs, in seconds.
struct Best {
    double loading = never;
    double inOrder = never;
    double inNoOrder = never;

    void run(const std::filesystem::path &log, std::size_t points) {
        bench::Library library;
        loading = std::min(loading, bench::seconds([&] { bench::load(library, log, points); }));
        const auto photos = addPhotos(library.context, points / 100);
        inOrder = std::min(inOrder, secondsOfMatching(library.context, photos));
        shuffleTimes(library.context);
        inNoOrder = std::min(inNoOrder, secondsOfMatching(library.context, photos));
    }
};

} // namespace

int main() {
    constexpr std::size_t many = 1'000'000;
    const bench::LogFiles files;
    const auto large = files.gpx(many);
    const auto small = files.gpx(many / 10);

    Best largeBest;
    Best smallBest;
    for (int run = 0; run < 5; ++run) {
        largeBest.run(large, many);
        smallBest.run(small, many / 10);
    }
    bench::Report report;
    report.atMost("matching / import of the points", largeBest.inOrder / largeBest.loading, 0.1);
    report.atMost("matching, 10x the points", largeBest.inOrder / smallBest.inOrder, 12);
    report.atMost("matching in no order / import", largeBest.inNoOrder / largeBest.loading, 0.25);
    return report.exitStatus();
}
