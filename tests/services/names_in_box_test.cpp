#include "rows.h"
#include "services/names_in_box.h"
#include "services/places.h"

#include <cmath>
#include <limits>
#include <set>

using namespace pinmora;

namespace {

/// A place at every whole degree, "lat lon", and at both sides of the date line.
std::string lattice() {
    std::string text = "C\tSea\nR\tAll\n";
    for (int lat = -90; lat <= 90; ++lat) {
        for (int lon = -180; lon <= 180; ++lon) {
            text += std::to_string(lat) + " " + std::to_string(lon) + "\t" + std::to_string(lat) +
                    "\t" + std::to_string(lon) + "\n";
        }
    }
    return text;
}

/// The same angle, 0 to below 360.
double turned(double angle) {
    return angle - 360 * std::floor(angle / 360);
}

} // namespace

class NamesInBoxTest : public QObject {
    Q_OBJECT

    const Gazetteer gazetteer_{lattice()};
    const Prominence prominence_{gazetteer_, FoldedNames(gazetteer_)};

    std::vector<Position> named(const MapBox &box, std::size_t limit) const {
        std::vector<Position> positions;
        for (const std::size_t place : placesInBox(gazetteer_, prominence_, box, limit)) {
            positions.push_back(gazetteer_.position(place));
        }
        return positions;
    }

private Q_SLOTS:
    void boxes_data() {
        const auto row = test::rows<double, double, double, double>();
        row("small", 46.5, 7.5, 48.5, 9.5);
        row("the world", -90, -180, 90, 180);
        row("more than the world", -90, -400, 90, 400);
        row("a map's world", -85.05, -180, 85.05, 180);
        row("across the date line", -20, 170, 20, -170);
        row("the same, counted on", -20, 170, 20, 190);
        row("the same, from the other side", -20, -190, 20, -170);
        row("up to the date line", 0, 150, 20, 180);
        row("from the date line", 0, -180, 20, -150);
        row("a turn away", 46, 367, 48, 371);
        row("north pole", 80, -180, 90, 180);
        row("a point", 10, 10, 10, 10);
    }
    void boxes() {
        const auto [south, west, north, east] = test::fetch<double, double, double, double>();
        for (const std::size_t limit : {1U, 2U, 7U, 50U, 200U}) {
            const auto found = named({south, west, north, east}, limit);
            QVERIFY(found.size() <= limit);
            QVERIFY(!found.empty() || limit < 50);
            for (const auto &[lat, lon] : found) {
                QVERIFY(lat >= south && lat <= north);
                const double all = east - west >= 360 ? 360 : turned(east - west);
                QVERIFY2(turned(lon - west) <= all, QByteArray::number(lon));
            }
        }
    }

    void spreadEvenly() {
        const auto found = named({-60, -120, 60, 120}, 64);
        std::size_t north = 0;
        std::size_t east = 0;
        for (const auto &[lat, lon] : found) {
            north += lat > 0 ? 1 : 0;
            east += lon > 0 ? 1 : 0;
        }
        const std::size_t half = found.size() / 2;
        QVERIFY(found.size() >= 16);
        QVERIFY(north + 4 >= half && north <= half + 4);
        QVERIFY(east + 4 >= half && east <= half + 4);
    }

    // Moved by less than a cell, the map shows the same names, but for those at its edges.
    void sameNamesWhileTheMapIsMoved() {
        const MapBox box{-40, -60, 40, 100};
        const MapBox moved{-37, -56, 43, 104};
        const auto before = placesInBox(gazetteer_, prominence_, box, 100);
        const auto after = placesInBox(gazetteer_, prominence_, moved, 100);
        const std::set<std::size_t> kept(after.begin(), after.end());
        for (const std::size_t place : before) {
            const auto [lat, lon] = gazetteer_.position(place);
            const bool staysInView = lat >= moved.south && lon >= moved.west;
            QCOMPARE(kept.contains(place), staysInView);
        }
    }

    void prominentFirst_data() {
        const auto row = test::rows<QByteArray, QByteArray>();
        row("in the middle", "Edge\t1.9\t1.9\nMiddle\t1\t1\n", "Middle");
        row("named as the region", "Middle\t1\t1\nRegiön\t0.1\t0.1\n", "Regiön");
        row("with quarters",
            "Middle\t1\t1\nTown\t0.1\t0.1\nTown 1\t0.1\t0.1\nTown 2\t0.1\t0.2\nTown 3\t0.2\t0.1\n",
            "Town");
        row("with namesakes far away",
            "Middle\t1\t1\nTown\t0.1\t0.1\nTown 1\t9\t9\nTown 2\t8\t8\nTown 3\t9\t9\n", "Middle");
        row("with places around", "Middle\t1\t1\nBusy\t0.11\t0.11\nSuburb\t0.1\t0.1\n", "Busy");
        row("no quarters", "Middle\t1\t1\nA (B)\t1.1\t1\nC / D\t0.1\t0.1\nE / F\t0.1\t0.1\n",
            "Middle");
    }
    void prominentFirst() {
        const auto [places, chosen] = test::fetch<QByteArray, QByteArray>();
        const Gazetteer few("C\tA\nR\tRegion\n" + places.toStdString());
        const Prominence prominence(few, FoldedNames(few));
        const auto found = placesInBox(few, prominence, {0, 0, 2, 2}, 1);
        QCOMPARE(found.size(), 1U);
        QCOMPARE(QByteArray::fromStdString(std::string(few.name(found.front()))), chosen);
    }

    void noBox() {
        const double none = std::numeric_limits<double>::quiet_NaN();
        QVERIFY(named({10, 0, -10, 20}, 10).empty());
        QVERIFY(named({none, 0, 10, 20}, 10).empty());
        QVERIFY(named({0, none, 10, 20}, 10).empty());
        QVERIFY(named({0, 0, 10, std::numeric_limits<double>::infinity()}, 10).empty());
        QVERIFY(named({0, 0, 10, 20}, 0).empty());
    }
};

QTEST_APPLESS_MAIN(NamesInBoxTest)
#include "names_in_box_test.moc"
