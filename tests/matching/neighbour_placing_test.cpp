#include "matching/desk.h"
#include "matching/neighbour_placing.h"
#include "rows.h"
#include "store/track.h"

using namespace pinmora;
using namespace std::chrono_literals;

namespace {

/// Minutes from noon, latitude, longitude, altitude.
struct Spot {
    int minutes;
    const char *lat;
    const char *lon;
    const char *alt = "";
    std::string_view source{};
};
using Spots = std::vector<Spot>;

struct NeighbourDesk : Desk {
    NearestPoints points{context};
    NeighbourPlacing placing{context, outlets, points};
    std::size_t placed = 0;
    std::vector<std::uint32_t> unplaced;
    Connection counting = placing.placed.connect([this](const NeighbourOutcome &outcome) {
        placed = outcome.placed;
        unplaced = outcome.unplaced;
    });

    void addTrack(const Spots &spots) {
        auto &way = context.insert<track>();
        for (const Spot &spot : spots) {
            way.addTrack_partObject(
                addPoint(noon + std::chrono::minutes(spot.minutes), spot.lat, spot.lon, spot.alt));
        }
    }
    image &addPhotoAt(const Spot &spot) {
        image &added = addPhoto("12:00:00");
        const std::string minutes =
            (spot.minutes % 60 < 10 ? "0" : "") + std::to_string(spot.minutes % 60);
        added.setDate("2008:05:12 " + std::to_string(12 + spot.minutes / 60) + ":" + minutes +
                      ":00");
        added.setLat(spot.lat);
        added.setLon(spot.lon);
        added.setAlt(spot.alt);
        added.setPosition_source(std::string(spot.source));
        return added;
    }
};

} // namespace

class NeighbourPlacingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void between_data() {
        // minutes: of the photo's clock, which is ten minutes slow; place: as Desk::placeOf()
        const auto row = test::rows<std::vector<Spots>, Spots, int, std::string>();
        const Spots log{{10, "47", "8", "400"}, {20, "47.1", "8", "500"}, {260, "47.3", "8", ""}};
        const Spots photos{{0, "10", "20", "100"}, {300 - 10, "10", "21", "300"}};
        row("between two points", {log}, {}, 5, "47.05 8 450 10");
        row("at a point", {log}, {}, 10, "47.1 8 500 10");
        row("the log begins", {log}, {}, 0, "47 8 400 10");
        row("the log ends", {log}, {}, 250, "47.3 8 - 10");
        row("a gap of hours, no altitude behind it", {log}, {}, 70, "47.15 8 - 10");
        row("before the first", {{{11, "47", "8"}, {12, "47", "9"}}}, {}, 0, "- - - -");
        row("after the last", {{{0, "47", "8"}, {9, "47", "9"}}}, {}, 0, "- - - -");
        row("between two tracks nobody was under way", {{{0, "47", "8"}}, {{60, "47", "9"}}}, {}, 5,
            "- - - -");
        row("of two tracks the closer points", {log, {{14, "1", "2"}, {16, "1", "2"}}}, {}, 5,
            "1 2 - 10");
        row("points out of order", {{{20, "1", "3"}, {10, "1", "2"}, {0, "1", "1"}}}, {}, 5,
            "1.000038 2.5 - 10");
        row("equal times", {{{10, "1", "2"}, {10, "3", "4"}}}, {}, 0, "1 2 - 10");
        row("eastwards over the date line", {{{0, "0", "179"}, {30, "0", "-179.5"}}}, {}, 10,
            "0 -180 - 10");
        row("westwards over it", {{{10, "0", "-179"}, {20, "0", "179"}}}, {}, 7, "0 179.6 - 10");
        row("over the pole", {{{10, "89", "0"}, {20, "89", "180"}}}, {}, 2, "89.4 0 - 10");
        row("a point without a place", {{{10, "1", "2"}, {12, "", ""}, {14, "1", "4"}}}, {}, 2,
            "1.000152 3 - 10");
        row("between photos", {}, photos, 145, "10.000373 20.5 200 10");
        row("the track before photos", {log}, photos, 5, "47.05 8 450 10");
        row("photos outside of the track", {{{100, "1", "1"}, {101, "1", "1"}}}, photos, 145,
            "10.000373 20.5 200 10");
        row("one photo only", {}, {photos[0]}, 5, "- - - -");
        row("estimates breed none", {},
            {photos[0], {6, "50", "50", "", PositionSource::estimated}, photos[1]}, 145,
            "10.000373 20.5 200 10");
    }

    void between() {
        const auto [tracks, photos, minutes, place] =
            test::fetch<std::vector<Spots>, Spots, int, std::string>();
        NeighbourDesk desk;
        desk.setOffset(1, 0, 10, 0);
        for (const Spots &spots : tracks) {
            desk.addTrack(spots);
        }
        for (const Spot &spot : photos) {
            desk.addPhotoAt(spot);
        }
        desk.photo.setDate("2008:05:12 " + std::to_string(12 + minutes / 60) + ":" +
                           (minutes % 60 < 10 ? "0" : "") + std::to_string(minutes % 60) + ":00");
        desk.pictureArray.select(&desk.photo);
        desk.undoManager.removeAllActions();
        const std::string clock = desk.storedOffset();
        desk.placing.placeBetweenNeighbours();
        QCOMPARE(Desk::placeOf(desk.photo), place);
        const bool isPlaced = place != "- - - -";
        QCOMPARE(desk.placed, std::size_t(isPlaced ? 1 : 0));
        QCOMPARE(desk.unplaced.size(), std::size_t(isPlaced ? 0 : 1));
        QCOMPARE(desk.photo.position_source().string(),
                 std::string(isPlaced ? PositionSource::estimated : ""));
        QCOMPARE(desk.undoManager.canUndo(), isPlaced);
        QCOMPARE(desk.storedOffset(), clock);
    }

    /// Selected ones are no neighbours of each other, and all of it is one step.
    void theSelectedOnesTogether() {
        NeighbourDesk desk;
        const Spots spots{{0, "1", "1"}, {1, "50", "50"}, {2, "", ""}, {4, "1", "5"}};
        std::vector<image *> photos;
        for (const Spot &spot : spots) {
            photos.push_back(&desk.addPhotoAt(spot));
        }
        image &untimed = desk.addPhotoAt({2, "", ""});
        untimed.setNo_capture_time(true);
        desk.pictureArray.setSelectedObjects({photos[1], photos[2], &untimed});
        desk.context.commitChanges();
        desk.undoManager.removeAllActions();
        desk.placing.placeBetweenNeighbours();
        QCOMPARE(photos[1]->lon().string(), "2");
        QCOMPARE(photos[2]->lon().string(), "3");
        QCOMPARE(desk.placed, std::size_t(2));
        QCOMPARE(desk.unplaced, std::vector{untimed.serial()});
        QCOMPARE(desk.undoManager.undoActionName(), "Place Between Neighbours");
        desk.undoManager.undo();
        QCOMPARE(photos[1]->lat().string(), "50");
        QVERIFY(!photos[2]->lat_and_lon());
        QVERIFY(!desk.undoManager.canUndo());
    }

    void theNearestPointLeavesTheClock() {
        NeighbourDesk desk;
        desk.setOffset(1, 1, 0, 0);
        desk.addTrack({{0, "1", "1", "100"}, {50, "2.50", "+3", "410.5"}, {300, "9", "9", "900"}});
        desk.placing.placeAtNearestPoint();
        QCOMPARE(Desk::placeOf(desk.photo), "2.50 +3 410.5 10");
        QCOMPARE(desk.photo.position_source().string(), std::string(PositionSource::log));
        QCOMPARE(desk.photo.position_gap(), std::optional(-600.0));
        QCOMPARE(desk.storedOffset(), "+1:0:0");
        QCOMPARE(desk.placed, std::size_t(1));
        desk.photo.setNo_capture_time(true);
        desk.placing.placeAtNearestPoint();
        QCOMPARE(desk.unplaced, std::vector{desk.photo.serial()});
    }
};

QTEST_GUILESS_MAIN(NeighbourPlacingTest)
#include "neighbour_placing_test.moc"
