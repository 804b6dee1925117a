#include "map/map_desk.h"
#include "rows.h"

using namespace pinmora;

class MarkersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void adding_data() {
        // last: "LAT,LON,ZOOM" of the photo shown last; "": none
        const auto add = test::rows<bool, int, std::string, std::string, std::string>();
        const auto row = [&](const std::string &what, int selected, const char *last,
                             const char *script, const char *state) {
            add(what, false, selected, last, script, state);
            add(what + ", wizard", true, selected, last, script, state);
        };
        row("nothing shown yet", 1, "", "addNewMarkerToMap(0,0,1)", "  - - -");
        row("none selected", 0, "47.10,-8.2,14", "addNewMarkerToMap(47.10,-8.2,14)", "  - - -");
        row("one", 1, "47.10,-8.2,14", "addNewMarkerToMap(47.10,-8.2,14)", "  14 1 -");
        row("three, no zoom", 3, "47,8,", "addNewMarkerToMap(47,8,2)", "  2 1 -");
        row("position lost", 1, ",,1", "addNewMarkerToMap(0,0,1)", "  1 1 -");
        row("latitude lost", 1, ",8,5", "addNewMarkerToMap(0,8,5)", "  5 1 -");
        row("hostile", 1, "0);alert(1//,8,5", "addNewMarkerToMap(0,0,1)", "  5 1 -");
        row("zeros", 1, "007.50,+8.,5", "addNewMarkerToMap(7.50,+8.,5)", "  5 1 -");
    }

    void adding() {
        const auto [wizard, selected, last, script, state] =
            test::fetch<bool, int, std::string, std::string, std::string>();
        MapDesk desk;
        std::vector<image *> photos{&desk.addPhoto(), &desk.addPhoto(), &desk.addPhoto()};
        image &first = *photos.front();
        if (!last.empty()) {
            const QStringList parts = QString::fromStdString(last).split(u',');
            desk.last = &desk.addPhoto(qPrintable(parts[0]), qPrintable(parts[1]));
            if (!parts[2].isEmpty()) {
                desk.last->setZoom(parts[2].toInt());
            }
        }
        photos.resize(static_cast<std::size_t>(selected));
        desk.pictureArray.setSelectedObjects(photos);
        desk.settle();
        desk.offsetButton2.enabled.set(false);
        Button &button = wizard ? desk.addRemoveMarker2 : desk.addRemoveMarker;
        button.press();
        QCOMPARE(desk.scripts, (wizard ? "2:" : "1:") + script + " ");
        QCOMPARE(MapDesk::stateOf(first), state);
        QCOMPARE(button.title.get(),
                 std::string(selected > 1 ? "Remove Markers" : "Remove Marker"));
        QCOMPARE(button.tag, 1);
        QCOMPARE(desk.offsetButton2.enabled.get(), wizard);
        QCoreApplication::processEvents();
        QVERIFY(!desk.undo.canUndo()); // the map's zoom levels are no work of a person
        QVERIFY(!first.getHasChanges());
    }

    void removing_data() {
        const auto row = test::rowsByValue<bool, int>();
        for (const int selected : {0, 1, 3}) {
            row(false, selected);
            row(true, selected);
        }
    }

    void removing() {
        const auto [wizard, selected] = test::fetch<bool, int>();
        MapDesk desk;
        std::vector<image *> photos;
        for (int i = 0; i < 3; ++i) {
            image &photo = desk.addPhoto("-47", "-8");
            photo.setZoom(9);
            photo.setCity("Lima");
            photo.setProv("Lima");
            photo.setCountry("Peru");
            photo.setPosition_source(PositionSource::map);
            photos.push_back(&photo);
        }
        image &kept = desk.addPhoto("5", "6");
        const std::vector<image *> all = photos;
        photos.resize(static_cast<std::size_t>(selected));
        desk.pictureArray.setSelectedObjects(photos);
        desk.settle();
        Button &button = wizard ? desk.addRemoveMarker2 : desk.addRemoveMarker;
        button.tag = 1;
        button.press();
        QCOMPARE(desk.scripts, std::string(wizard ? "2:removePointer() " : "1:removePointer() "));
        QCOMPARE(button.title.get(), "Add Marker");
        QCOMPARE(button.tag, 0);
        QCOMPARE(desk.offsetButton2.enabled.get(), !wizard);
        for (const image *photo : photos) {
            QCOMPARE(MapDesk::stateOf(*photo), "  - - -");
            for (const char *key : {"city", "prov", "country", "lat_ref", "lon_ref"}) {
                QCOMPARE(photo->valueForKey(key).toText(), Text(""));
            }
            QVERIFY(photo->getHasChanges());
        }
        QCOMPARE(MapDesk::stateOf(kept), "5 6 - - -");
        QCoreApplication::processEvents();
        QCOMPARE(desk.undo.undoActionName(), std::string(selected == 0   ? ""
                                                         : selected == 1 ? "Remove Marker"
                                                                         : "Remove Markers"));
        desk.undo.undo();
        for (const image *photo : all) {
            QCOMPARE(MapDesk::stateOf(*photo), "-47 -8 9 - map");
            QCOMPARE(photo->country().string(), "Peru");
            QCOMPARE(photo->lat_ref().string(), "S");
        }
    }

    void aWaitingMarkerIsGivenUp() {
        MapDesk desk;
        image &photo = desk.addPhoto();
        image &other = desk.addPhoto();
        const auto waitsAfter = [&](const std::function<void()> &what) {
            desk.pictureArray.setSelectedObjects({&photo, &other});
            desk.addRemoveMarker2.tag = 0;
            desk.addRemoveMarker2.press();
            desk.scripts.clear();
            what();
            return desk.markers.adding.get();
        };
        QVERIFY(waitsAfter([] {}));
        QVERIFY(!waitsAfter([&] { desk.pictureArray.setSelectedObjects({&other}); }));
        QVERIFY(!waitsAfter([&] { desk.markers.updateMap({"47", "8"}); }));
        QVERIFY(!waitsAfter([&] { desk.addRemoveMarker2.press(); }));
        QVERIFY(waitsAfter([&] { desk.webView1.loaded.emit(); }));
        QVERIFY(!waitsAfter([&] { desk.webView2.loaded.emit(); }));
        QVERIFY(!waitsAfter([&] { desk.markers.giveUpAdding(); }));
        QCOMPARE(desk.scripts, "2:removePointer() ");
        QCOMPARE(desk.addRemoveMarker2.title.get(), "Add Markers");
        QCOMPARE(desk.addRemoveMarker2.tag, 0);
        QVERIFY(!desk.offsetButton2.enabled.get());
        desk.markers.giveUpAdding(); // a second time takes nothing from the map
        QCOMPARE(desk.scripts, "2:removePointer() ");
    }

    void buttonsSayWhatAClickDoes() {
        MapDesk desk;
        image &placed = desk.addPhoto("47", "8");
        image &unplaced = desk.addPhoto();
        const auto saidFor = [&](const std::vector<image *> &photos) {
            desk.pictureArray.setSelectedObjects(photos);
            const bool one = desk.markers.add_remove_marker();
            return std::to_string(one) + desk.addRemoveMarker.title.get() +
                   std::to_string(desk.addRemoveMarker2.tag);
        };
        QCOMPARE(saidFor({&placed}), "1Remove Marker1");
        QCOMPARE(saidFor({&placed, &unplaced}), "0Remove Marker1");
        QCOMPARE(saidFor({&unplaced}), "1Add Marker0");
        QCOMPARE(saidFor({}), "0Add Marker0");
    }

    void pointerFollowsInTheActiveMap() {
        MapDesk desk;
        desk.markers.updateMap({"47.10", "-8"});
        desk.inWizard = true;
        desk.markers.updateMap({"47.10", "8);alert(1"});
        desk.applying = true;
        desk.markers.updateMap({"1", "2"});
        QCOMPARE(desk.scripts, "1:movePointer(47.10,-8,'') 2:removePointer() ");
    }
};

QTEST_GUILESS_MAIN(MarkersTest)
#include "markers_test.moc"
