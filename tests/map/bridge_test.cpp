#include "map/map_desk.h"
#include "rows.h"

#include <limits>

using namespace pinmora;

class BridgeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void firstLoadIsWaitedFor() {
        MapDesk desk;
        int wanted = 0;
        const Connection counting = desk.bridge.pointerWanted.connect([&] {
            ++wanted;
            desk.scripts += "pointer ";
        });
        desk.webView2.loaded.emit();
        QCOMPARE(desk.scripts, "pointer ");
        desk.scripts.clear();
        desk.webView1.loaded.emit();
        QCOMPARE(desk.scripts, "1:show_map() 2:show_map() pointer ");
        desk.webView1.loaded.emit();
        QCOMPARE(wanted, 3);
    }

    void positions_data() {
        // state: of the one selected photo
        const auto row = test::rowsByValue<std::string, std::string>();
        row("51.50123:-0.12463:14", "51.50123 -0.12463 14 - map");
        row("+51.50:-.5:-1", "+51.50 -.5 -1 - map");
        row("90:-180:0", "90 -180 0 - map");
        row("47:8:3:and more", "47 8 3 - map");
        row("47:8:3.7", "47 8 3 - map");
        const std::string longest = "47." + std::string(61, '0');
        row(longest + ":8:3", longest + " 8 3 - map");
        row(longest + "0:8:3", "1 2 5 - -");
        for (const char *untouched :
             {"", "::", "47:8", "47:8:", ":8:3", "90.0001:8:3", "47:180.5:3", "47:8:x", "47:8: 3",
              "47:8:99999999999", "47: 8:3", "47\n:8:3", "4e1:8:3", "nan:8:3", "0x10:8:3",
              "47,5:8:3", "47);alert(1:8:3"}) {
            row(untouched, "1 2 5 - -");
        }
    }

    void positions() {
        const auto [said, state] = test::fetch<std::string, std::string>();
        MapDesk desk;
        image &photo = desk.addPhoto("1", "2");
        photo.setZoom(5);
        desk.pictureArray.select(&photo);
        desk.settle();
        desk.webView1.called.emit({"latLonJavascript", said});
        QCOMPARE(MapDesk::stateOf(photo), state);
        QCOMPARE(photo.getHasChanges(), desk.undo.canUndo());
    }

    void allSelectedPhotosAreOneStep() {
        MapDesk desk;
        image &a = desk.addPhoto();
        image &b = desk.addPhoto("1", "2");
        image &other = desk.addPhoto("5", "6");
        desk.pictureArray.setSelectedObjects({&a, &b});
        desk.settle();
        desk.bridge.latLonJavascript("-47.5:8.25:9");
        QCOMPARE(MapDesk::stateOf(a), "-47.5 8.25 9 - map");
        QCOMPARE(MapDesk::stateOf(b), MapDesk::stateOf(a));
        QCOMPARE(a.lat_ref().string(), "S");
        QCOMPARE(desk.shown.degree_lat(), degrees::Number(-47.5));
        QCOMPARE(desk.shown.degree_lon(), degrees::Number(8.25));
        QCoreApplication::processEvents();
        QCOMPARE(desk.undo.undoActionName(), "Place on Map");
        desk.undo.undo();
        QCOMPARE(MapDesk::stateOf(a), "  - - -");
        QCOMPARE(MapDesk::stateOf(b), "1 2 - - -");
        QVERIFY(!desk.undo.canUndo());
        desk.undo.redo();
        QCOMPARE(MapDesk::stateOf(a), "-47.5 8.25 9 - map");
        QCOMPARE(MapDesk::stateOf(other), "5 6 - - -");
    }

    void nothingSelectedNothingPlaced() {
        MapDesk desk;
        desk.addPhoto();
        desk.settle();
        desk.bridge.latLonJavascript("47:8:3");
        QVERIFY(!desk.context.hasChanges());
        QVERIFY(!desk.shown.degree_lat());
    }

    /// What was typed is in a step of its own, under the placement; what is unfit stops nothing.
    void typingIsTakenOverFirst_data() {
        const auto row = test::rows<bool>();
        row("fit", true);
        row("unfit", false);
    }

    void typingIsTakenOverFirst() {
        const auto [fit] = test::fetch<bool>();
        MapDesk desk;
        image &photo = desk.addPhoto();
        desk.pictureArray.select(&photo);
        desk.settle();
        const Connection editor = desk.editing.addEditor([&, fit = fit] {
            photo.setLat("1");
            return fit;
        });
        bool told = false;
        const Connection telling = desk.editing.ended.connect([&](bool) { told = true; });
        desk.bridge.latLonJavascript("47:8:3");
        QCOMPARE(MapDesk::stateOf(photo), "47 8 3 - map");
        QVERIFY(!told);
    }

    void zoomLevels_data() {
        const auto row = test::rows<int, std::string, double, std::string>();
        row("one", 1, "47", 13.0, "47 8 13 1 -");
        row("between", 1, "47", 12.7, "47 8 12 1 -");
        row("none", 0, "47", 13.0, "47 8 - - -");
        row("two", 2, "47", 13.0, "47 8 - - -");
        row("not placed", 1, "", 13.0, " 8 - - -");
        using Real = std::numeric_limits<double>;
        for (const double level : {1e12, Real::infinity(), Real::quiet_NaN()}) {
            row(std::to_string(level), 1, "47", level, "47 8 - - -");
        }
    }

    void zoomLevels() {
        const auto [selected, lat, level, state] =
            test::fetch<int, std::string, double, std::string>();
        MapDesk desk;
        image &photo = desk.addPhoto(lat.c_str(), "8");
        std::vector<image *> photos{&photo, &desk.addPhoto("1", "2")};
        photos.resize(static_cast<std::size_t>(selected));
        desk.pictureArray.setSelectedObjects(photos);
        desk.settle();
        desk.webView2.called.emit({"zoomChangeJavascript", level});
        QCOMPARE(MapDesk::stateOf(photo), state);
        QCoreApplication::processEvents();
        QVERIFY(!desk.undo.canUndo());
        QVERIFY(!photo.getHasChanges());
    }

    void otherCallsAreIgnored_data() {
        const auto row = test::rows<std::string, bool>();
        row("newMarker", "newMarker", false);
        row("mapLoadComplete", "mapLoadComplete", false);
        row("colon", "latLonJavascript:", false);
        row("position as a number", "latLonJavascript", true);
        row("zoom as a text", "zoomChangeJavascript", false);
        row("removePict", "removePict", false);
        row("none", {}, true);
    }

    void otherCallsAreIgnored() {
        const auto [function, isNumber] = test::fetch<std::string, bool>();
        MapDesk desk;
        desk.pictureArray.select(&desk.addPhoto("1", "2"));
        desk.settle();
        PageCall call{function, std::string("47:8:3")};
        if (isNumber) {
            call.argument = 7.0;
        }
        desk.webView1.called.emit(call);
        QVERIFY(!desk.context.hasChanges());
        QCOMPARE(desk.scripts, std::string());
    }
};

QTEST_GUILESS_MAIN(BridgeTest)
#include "bridge_test.moc"
