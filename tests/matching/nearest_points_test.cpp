#include "matching/nearest_points.h"

#include "matching/library.h"
#include "rows.h"

#include <random>

using namespace pinmora;
using namespace std::chrono_literals;

using Degrees = QList<std::pair<const char *, const char *>>;

namespace {

constexpr Date start{std::chrono::seconds(1'210'593'600)};

/// What a search must find, found the plain way.
track_part *walk(const PointLibrary &library, Position known) {
    track_part *best = nullptr;
    double least = 0;
    for (track_part *point : library.context.records<track_part>()) {
        if (!point->time() || point->lat().view().empty() || point->lon().view().empty()) {
            continue;
        }
        const double north = std::stod(point->lat().string()) - known.lat;
        const double east = std::stod(point->lon().string()) - known.lon;
        const double distance = north * north + east * east;
        if (!best || distance < least) {
            best = point;
            least = distance;
        }
    }
    return best;
}

} // namespace

class NearestPointsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void inPlace_data() {
        const auto row = test::rows<Degrees, double, double, int>();
        row("equal, first wins", Degrees{{"47.0", "8.5"}, {"47.5", "8.0"}}, 47., 8., 0);
        row("nearer later", Degrees{{"47.0", "8.5"}, {"47.25", "8.25"}}, 47., 8., 1);
        row("a degree is a degree", Degrees{{"79", "10"}, {"80", "11.1"}}, 80., 10., 0);
        row("not around the world", Degrees{{"0", "179.9"}, {"0", "-1"}}, 0., -179.9, 1);
        row("far away", Degrees{{"-90", "-180"}}, 90., 180., 0);
    }

    void inPlace() {
        const auto [points, lat, lon, place] = test::fetch<Degrees, double, double, int>();
        PointLibrary library;
        std::vector<track_part *> added;
        for (const auto &[pointLat, pointLon] : points) {
            added.push_back(&library.addPoint(start, pointLat, pointLon));
        }
        QCOMPARE(NearestPoints(library.context).inPlace({lat, lon}),
                 added[static_cast<std::size_t>(place)]);
    }

    void inPlaceFindsWhatAWalkFinds() {
        std::mt19937 random{20080512};
        const auto below = [&](unsigned bound) { return static_cast<int>(random() % bound); };
        for (int round = 0; round < 300; ++round) {
            PointLibrary library;
            const bool crowded = below(2) == 0; // few places, so that many distances tie
            const auto degree = [&] { return std::to_string(below(crowded ? 3 : 9) - 4) + ".5"; };
            for (int i = below(40); i > 0; --i) {
                const int fault = below(10);
                library.addPoint(fault == 1 ? std::nullopt : std::optional(start),
                                 fault == 2 ? "" : degree(), fault == 3 ? Text() : Text(degree()));
            }
            NearestPoints points(library.context);
            for (int search = 0; search < 5; ++search) {
                const Position known{std::stod(degree()), std::stod(degree()) + 0.5 * below(2)};
                QCOMPARE(points.inPlace(known), walk(library, known));
            }
        }
    }

    void answersFollowThePoints() {
        PointLibrary library;
        NearestPoints points(library.context);
        const auto found = [&] {
            track_part *const near = points.inTime(start);
            return near == points.inPlace({47, 8}) ? near : nullptr;
        };
        track_part &far = library.addPoint(start + 1h, "47", "9");
        QCOMPARE(found(), &far);
        track_part &near = library.addPoint(start + 1min, "47", "8.1");
        QCOMPARE(found(), &near);
        near.setTimeWithDate(start + 2h);
        QCOMPARE(points.inTime(start), &far);
        near.setTimeWithDate(start);
        near.setLat("49");
        QCOMPARE(points.inPlace({47, 8}), &far);
        near.setLat("47");
        QCOMPARE(found(), &near);
        near.setLon("");
        QCOMPARE(found(), &far);
        library.context.deleteObject(far);
        library.context.commitChanges();
        QCOMPARE(points.inTime(start), nullptr);
        QCOMPARE(points.inPlace({47, 8}), nullptr);
    }

    void observesOnlyWhatItHasGathered() {
        PointLibrary library;
        track_part &point = library.addPoint(start);
        {
            NearestPoints points(library.context);
            QVERIFY(!library.context.isObserved());
            points.inPlace({47, 8});
            points.inTime(start);
            point.setAlt("500");
            QVERIFY(library.context.isObserved());
            library.addPoint(start);
            QVERIFY(!library.context.isObserved());
            QCOMPARE(points.inTime(start), &point);
        }
        QVERIFY(!library.context.isObserved());
    }
};

QTEST_APPLESS_MAIN(NearestPointsTest)
#include "nearest_points_test.moc"
