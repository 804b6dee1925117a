// The places of the gazetteer by position and by name, against a look at every one of them.

#include "ratio.h"

#include "services/names_in_box.h"
#include "services/place_index.h"
#include "services/places.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <ctime>
#include <limits>
#include <numbers>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

using namespace pinmora;

namespace {

/// Processor time of one call, in milliseconds, of all threads.
template <typename Work>
double processorMilliseconds(Work &&work) {
    const std::clock_t before = std::clock();
    work();
    return 1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
}

/// The least of five calls.
template <typename Work>
double leastMilliseconds(Work &&work) {
    double least = processorMilliseconds(work);
    for (int again = 0; again < 4; ++again) {
        least = std::min(least, processorMilliseconds(work));
    }
    return least;
}

/// The nearest place by looking at each; of several equally near ones the first.
std::size_t scan(const std::vector<UnitVector> &places, const UnitVector &point) {
    std::size_t nearest = 0;
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < places.size(); ++i) {
        const double distance = squaredChord(places[i], point);
        if (distance < least) {
            least = distance;
            nearest = i;
        }
    }
    return nearest;
}

/// Evenly over the sphere, which is mostly ocean; every tenth at the date line or at a pole.
std::vector<UnitVector> anywhere(std::size_t count) {
    std::mt19937 random; // NOLINT: the same points in every run
    std::uniform_real_distribution<double> even(-1, 1);
    std::vector<UnitVector> points;
    while (points.size() < count) {
        Position position{std::asin(even(random)) * 180 / std::numbers::pi, 180 * even(random)};
        if (points.size() % 20 == 0) {
            position.lon = std::copysign(180, even(random));
        } else if (points.size() % 20 == 10) {
            position.lat = std::copysign(90 - std::abs(even(random)), even(random));
        }
        points.push_back(unitVector(position));
    }
    return points;
}

void compareWithScan(bench::Report &report) {
    const Gazetteer &gazetteer = Places::bundled().gazetteer();
    std::vector<UnitVector> places;
    for (std::size_t i = 0; i < gazetteer.size(); ++i) {
        places.push_back(unitVector(gazetteer.position(i)));
    }
    const PlaceIndex index(places);
    const auto points = anywhere(10'000);
    std::vector<std::size_t> found(points.size());
    std::vector<std::size_t> expected(points.size());
    const auto best = bench::bestPair(
        [&] {
            std::transform(points.begin(), points.end(), found.begin(),
                           [&](const UnitVector &point) { return index.nearest(point).place; });
        },
        [&] {
            std::transform(points.begin(), points.end(), expected.begin(),
                           [&](const UnitVector &point) { return scan(places, point); });
        });
    std::size_t differing = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        differing += found[i] == expected[i] ? 0 : 1;
    }
    report.atMost("nearest place, other than a scan's", static_cast<double>(differing), 0);
    report.atLeast("scan / nearest place", 1 / best.ratio(), 100);
}

void searchNames(bench::Report &report) {
    const PlaceSearch &search = BundledNames::get().search();
    double slowest = 0;
    for (const char *text : {"a", "s", "san", "zürich", "paris, texas", "paris texas", "e e e e e",
                             "no such place anywhere", "saint-", "new york"}) {
        slowest = std::max(slowest, leastMilliseconds([&] {
                               search.find(text, Position{47, 8}, 20);
                           }));
    }
    report.atMost("search by name, slowest (ms)", slowest, 30);
    const auto nameTheWorld = [] {
        placesInBox(Places::bundled().gazetteer(), BundledNames::get().prominence(),
                    {-90, -180, 90, 180}, 200);
    };
    report.atMost("names for the whole map (ms)", leastMilliseconds(nameTheWorld), 30);
}

void measure(bench::Report &report) {
    // The first need of each in this process.
    report.atMost("gazetteer and index ready (ms)",
                  processorMilliseconds([] { Places::bundled(); }), 300);
    report.atMost("names ready for searches (ms)",
                  processorMilliseconds([] { BundledNames::get(); }), 300);
    compareWithScan(report);
    searchNames(report);
}

} // namespace

int main() {
    return bench::run(measure);
}
