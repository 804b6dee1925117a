#include "map/map_desk.h"

#include <QTest>

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
        QCOMPARE(desk.scripts, std::string("pointer "));
        desk.scripts.clear();
        desk.webView1.loaded.emit();
        QCOMPARE(desk.scripts, std::string("1:show_map() 2:show_map() pointer "));
        desk.webView1.loaded.emit();
        QCOMPARE(wanted, 3);
    }

    void positions_data() {
        QTest::addColumn<std::string>("said");
        QTest::addColumn<std::string>("state"); // of the one selected photo
        const auto row = [](const char *said, const char *state) {
            QTest::newRow(said) << std::string(said) << std::string(state);
        };
        const char *const untouched = "1 2 5 - -";
        row("51.50123:-0.12463:14", "51.50123 -0.12463 14 - map");
        row("+51.50:-.5:-1", "+51.50 -.5 -1 - map");
        row("90:-180:0", "90 -180 0 - map");
        row("47:8:3:and more", "47 8 3 - map");
        row("", untouched);
        row("::", untouched);
        row("47:8", untouched);
        row("47:8:", untouched);
        row(":8:3", untouched);
        row("90.0001:8:3", untouched);
        row("47:180.5:3", untouched);
        row("47:8:3.7", "47 8 3 - map");
        row("47:8:x", untouched);
        row("47:8: 3", untouched);
        row("47:8:99999999999", untouched);
        row("47: 8:3", untouched);
        row("47\n:8:3", untouched);
        row("4e1:8:3", untouched);
        row("nan:8:3", untouched);
        row("0x10:8:3", untouched);
        row("47,5:8:3", untouched);
        row("47);alert(1:8:3", untouched);
        row(("47." + std::string(61, '0') + ":8:3").c_str(),
            ("47." + std::string(61, '0') + " 8 3 - map").c_str());
        row(("47." + std::string(62, '0') + ":8:3").c_str(), untouched);
    }

    void positions() {
        QFETCH(std::string, said);
        MapDesk desk;
        image &photo = desk.addPhoto("1", "2");
        photo.setZoom(5);
        desk.pictureArray.select(&photo);
        desk.settle();
        desk.webView1.called.emit({"latLonJavascript", said});
        QTEST(MapDesk::stateOf(photo), "state");
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
        QCOMPARE(MapDesk::stateOf(a), std::string("-47.5 8.25 9 - map"));
        QCOMPARE(MapDesk::stateOf(b), MapDesk::stateOf(a));
        QCOMPARE(a.lat_ref().string(), std::string("S"));
        QCOMPARE(desk.shown.degree_lat(), degrees::Number(-47.5));
        QCOMPARE(desk.shown.degree_lon(), degrees::Number(8.25));
        QCoreApplication::processEvents();
        QCOMPARE(desk.undo.undoActionName(), std::string("Place on Map"));
        desk.undo.undo();
        QCOMPARE(MapDesk::stateOf(a), std::string("  - - -"));
        QCOMPARE(MapDesk::stateOf(b), std::string("1 2 - - -"));
        QVERIFY(!desk.undo.canUndo());
        desk.undo.redo();
        QCOMPARE(MapDesk::stateOf(a), std::string("-47.5 8.25 9 - map"));
        QCOMPARE(MapDesk::stateOf(other), std::string("5 6 - - -"));
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
        QTest::addColumn<bool>("fit");
        QTest::newRow("fit") << true;
        QTest::newRow("unfit") << false;
    }

    void typingIsTakenOverFirst() {
        QFETCH(bool, fit);
        MapDesk desk;
        image &photo = desk.addPhoto();
        desk.pictureArray.select(&photo);
        desk.settle();
        const Connection editor = desk.editing.addEditor([&] {
            photo.setLat("1");
            return fit;
        });
        bool told = false;
        const Connection telling = desk.editing.ended.connect([&](bool) { told = true; });
        desk.bridge.latLonJavascript("47:8:3");
        QCOMPARE(MapDesk::stateOf(photo), std::string("47 8 3 - map"));
        QVERIFY(!told);
    }

    void zoomLevels_data() {
        QTest::addColumn<int>("selected");
        QTest::addColumn<std::string>("lat");
        QTest::addColumn<double>("level");
        QTest::addColumn<std::string>("state");
        QTest::newRow("one") << 1 << std::string("47") << 13.0 << std::string("47 8 13 1 -");
        QTest::newRow("between") << 1 << std::string("47") << 12.7 << std::string("47 8 12 1 -");
        QTest::newRow("none") << 0 << std::string("47") << 13.0 << std::string("47 8 - - -");
        QTest::newRow("two") << 2 << std::string("47") << 13.0 << std::string("47 8 - - -");
        QTest::newRow("not placed") << 1 << std::string() << 13.0 << std::string(" 8 - - -");
        for (const double level : {1e12, std::numeric_limits<double>::infinity(),
                                   std::numeric_limits<double>::quiet_NaN()}) {
            QTest::addRow("%f", level)
                << 1 << std::string("47") << level << std::string("47 8 - - -");
        }
    }

    void zoomLevels() {
        QFETCH(int, selected);
        QFETCH(std::string, lat);
        QFETCH(double, level);
        MapDesk desk;
        image &photo = desk.addPhoto(lat.c_str(), "8");
        std::vector<image *> photos{&photo, &desk.addPhoto("1", "2")};
        photos.resize(static_cast<std::size_t>(selected));
        desk.pictureArray.setSelectedObjects(photos);
        desk.settle();
        desk.webView2.called.emit({"zoomChangeJavascript", level});
        QTEST(MapDesk::stateOf(photo), "state");
        QCoreApplication::processEvents();
        QVERIFY(!desk.undo.canUndo());
        QVERIFY(!photo.getHasChanges());
    }

    void otherCallsAreIgnored_data() {
        QTest::addColumn<std::string>("function");
        QTest::addColumn<bool>("isNumber");
        QTest::newRow("newMarker") << std::string("newMarker") << false;
        QTest::newRow("mapLoadComplete") << std::string("mapLoadComplete") << false;
        QTest::newRow("colon") << std::string("latLonJavascript:") << false;
        QTest::newRow("position as a number") << std::string("latLonJavascript") << true;
        QTest::newRow("zoom as a text") << std::string("zoomChangeJavascript") << false;
        QTest::newRow("removePict") << std::string("removePict") << false;
        QTest::newRow("none") << std::string() << true;
    }

    void otherCallsAreIgnored() {
        QFETCH(std::string, function);
        QFETCH(bool, isNumber);
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
