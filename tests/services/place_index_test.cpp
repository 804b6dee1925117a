#include "rows.h"
#include "services/place_index.h"
#include "services/places.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <random>

using namespace pinmora;

namespace {

/// By looking at every place, in their order.
PlaceIndex::Nearest scanned(const std::vector<UnitVector> &places, const UnitVector &point) {
    PlaceIndex::Nearest best{0, std::numeric_limits<double>::infinity()};
    for (std::size_t i = 0; i < places.size(); ++i) {
        const double distance = squaredChord(places[i], point);
        if (distance < best.squaredChord) {
            best = {i, distance};
        }
    }
    return best;
}

std::vector<UnitVector> unitVectors(const std::vector<Position> &positions) {
    std::vector<UnitVector> vectors;
    for (const Position &position : positions) {
        vectors.push_back(unitVector(position));
    }
    return vectors;
}

/// Evenly over the sphere, and as many again where maps have their edges.
std::vector<Position> anywhere(std::size_t count, unsigned seed) {
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> even(-1, 1);
    std::vector<Position> positions{{90, 0}, {-90, 0}, {90, 77}, {0, 180}, {0, -180}, {0, 0}};
    while (positions.size() < count) {
        const double lat = std::asin(even(random)) * 180 / std::numbers::pi;
        positions.push_back({lat, even(random) * 180});
        positions.push_back({lat, std::copysign(180 - 1e-3 * even(random), even(random))});
        positions.push_back(
            {std::copysign(90 - std::abs(even(random)), even(random)), even(random) * 180});
    }
    return positions;
}

/// Nothing where all are as the scan has them, else the first that is not.
QString firstDifference(const std::vector<UnitVector> &places, const std::vector<Position> &asked) {
    const PlaceIndex index(places);
    for (const Position &position : asked) {
        const UnitVector point = unitVector(position);
        const auto found = index.nearest(point);
        const auto expected = scanned(places, point);
        if (found.place != expected.place || found.squaredChord != expected.squaredChord) {
            return QStringLiteral("%1 %2: %3 for %4")
                .arg(position.lat)
                .arg(position.lon)
                .arg(found.place)
                .arg(expected.place);
        }
    }
    return {};
}

} // namespace

class PlaceIndexTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void equalsAScan_data() {
        const auto row = test::rowsByValue<int>();
        for (const int count : {1, 2, 15, 16, 17, 31, 32, 33, 65, 1000, 4097, 70'000}) {
            row(count);
        }
    }
    void equalsAScan() {
        const auto [count] = test::fetch<int>();
        auto places = anywhere(static_cast<std::size_t>(count), 1);
        places.resize(static_cast<std::size_t>(count));
        QCOMPARE(firstDifference(unitVectors(places), anywhere(500, 2)), QString());
    }

    // A millimetre apart, and less: closer than single precision tells.
    void closeTogether() {
        std::mt19937 random(5);
        std::uniform_real_distribution<double> near(-1e-7, 1e-7);
        const auto anyNear = [&](std::size_t count) {
            std::vector<Position> positions;
            while (positions.size() < count) {
                positions.push_back({47 + near(random), 8.5 + near(random)});
            }
            return positions;
        };
        QCOMPARE(firstDifference(unitVectors(anyNear(1000)), anyNear(1000)), QString());
    }

    // Points of a lattice are equally far from several of its corners, to the last bit.
    void firstOfThoseEquallyNear() {
        std::vector<UnitVector> places;
        for (int repeat = 0; repeat < 3; ++repeat) {
            for (int x = -4; x <= 4; ++x) {
                for (int y = -4; y <= 4; ++y) {
                    places.push_back({x / 8.0, y / 8.0, 0.5});
                }
            }
        }
        std::shuffle(places.begin(), places.end(), std::mt19937(4));
        const PlaceIndex index(places);
        for (int x = -9; x <= 9; ++x) {
            for (int y = -9; y <= 9; ++y) {
                const UnitVector point{x / 16.0, y / 16.0, 0.25};
                QCOMPARE(index.nearest(point).place, scanned(places, point).place);
            }
        }
    }

    void knownPlaces_data() {
        // kilometres: on the sphere, to a hundredth
        const auto row = test::rows<double, double, std::string, double>();
        row("in it", 47.36667, 8.55, "Zürich, Zurich, Switzerland", 0);
        row("in a part of it", 47.3769, 8.5417, "Zürich (Kreis 1) / Lindenhof, Zurich, Switzerland",
            0.57);
        row("west of the date line", -17, 179.99, "Savusavu, Northern, Fiji", 73.82);
        row("east of it", -17, -179.99, "Savusavu, Northern, Fiji", 75.83);
        row("on it, from the west", -17.5, 180, "Levuka, Eastern, Fiji", 95.94);
        row("on it, from the east", -17.5, -180, "Levuka, Eastern, Fiji", 95.94);
        row("North Pole", 90, 0, "Longyearbyen, Svalbard, Svalbard and Jan Mayen", 1309.51);
        row("South Pole", -90, 0, "Puerto Williams, Region of Magallanes, Chile", 3899.22);
        row("off Africa", 0, 0, "Takoradi, Western, Ghana", 578.67);
        row("farthest from all land", -48.87, -123.39, "Hanga Roa, Valparaiso, Chile", 2697.14);
    }
    void knownPlaces() {
        const auto [lat, lon, name, kilometres] =
            test::fetch<double, double, std::string, double>();
        const auto [place, metres] = Places::bundled().nearest({lat, lon});
        const Gazetteer &all = Places::bundled().gazetteer();
        QCOMPARE(std::string(all.name(place)) + ", " + std::string(all.region(place)) + ", " +
                     std::string(all.country(place)),
                 name);
        QCOMPARE(std::round(metres / 10) / 100, kilometres);
    }

    void metres_data() {
        // metres: from 0, 0
        const auto row = test::rows<double, double, double>();
        constexpr double oneDegree = 6371008.8 * degree;
        row("here", 0.0, 0.0, 0.0);
        row("next door", 0.00001, 0.0, oneDegree * 0.00001);
        row("a degree", 0.0, -1.0, oneDegree);
        row("the pole", 90.0, 123.0, 90 * oneDegree);
        row("the other side", 0.0, 180.0, 180 * oneDegree);
    }
    void metres() {
        const auto [lat, lon, metres] = test::fetch<double, double, double>();
        const double squared = squaredChord(unitVector({0, 0}), unitVector({lat, lon}));
        QVERIFY(std::abs(metresFromSquaredChord(squared) - metres) < 0.001);
    }
};

QTEST_APPLESS_MAIN(PlaceIndexTest)
#include "place_index_test.moc"
