#include "shell/desk.h"
#include "store/degrees.h"
#include "store/image_data.h"

#include <QTest>

using namespace pinmora;

class InspectorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void onePhotoWithoutPosition() {
        Desk desk;
        desk.start();
        image &photo = desk.addPhoto("a", "2026:05:08 10:00:00");
        desk.select({&photo});
        QCOMPARE(desk.scripts.back(), std::string("removePointer()"));
        QCOMPARE(photo.zoom().value_or(-1), 1);
        QCOMPARE(desk.interface().addRemoveMarker.title.get(), std::string("Add Marker"));
        QCOMPARE(desk.interface().addRemoveMarker.tag, 0);
        QVERIFY(!desk.interface().degreeObj.content()->degree_lat());
        QCOMPARE(desk.interface().window.title.get(),
                 std::string("Pinmora - a - Fri 8 May 2026 10:00:00"));
        QCOMPARE(desk.parts().inspectorOutlets.theCurrImage.content()->name().string(),
                 std::string("a"));
        QVERIFY(desk.parts().inspectorOutlets.removePictButton.enabled.get());
        QVERIFY(!photo.getHasChanges());
        QVERIFY(!desk.parts().undoCommands.undoItem.enabled.get() ||
                desk.parts().undoCommands.undoItem.title.get() == "Undo");
    }

    void zoomGoesFromPhotoToPhoto() {
        Desk desk;
        desk.start();
        image &first = desk.addPhoto("a", "2026:05:08 10:00:00", "47.1", "8.5");
        first.setZoom(14);
        first.setZoom_reset(1);
        image &second = desk.addPhoto("it's <b>", "2026:05:08 11:00:00", "-47.2", "8.6");
        desk.select({&first});
        QCOMPARE(desk.scripts.back(), std::string("movePointerWithZoom(47.1,8.5,14,'a')"));
        QCOMPARE(desk.parts().inspector.lastPictObjectWithLatLon(), &first);
        desk.select({&second});
        QCOMPARE(desk.scripts.back(),
                 std::string("movePointerWithZoom(-47.2,8.6,14,'it\\x27s \\x3cb>')"));
        QCOMPARE(second.zoom().value_or(0), 14);
        QCOMPARE(second.zoom_reset().value_or(0), 1);
        desk.context().deleteObject(second);
        QCOMPARE(desk.parts().inspector.lastPictObjectWithLatLon(), nullptr);
    }

    void correctedTime_data() {
        QTest::addColumn<int>("plus");
        QTest::addColumn<bool>("hasPoints");
        QTest::addColumn<QString>("text");
        QTest::newRow("later") << 1 << true << "8 May 2026 11:02:03";
        QTest::newRow("earlier") << 0 << true << "8 May 2026 08:57:57";
        QTest::newRow("no log") << 1 << false << "";
    }

    void correctedTime() {
        QFETCH(int, plus);
        QFETCH(bool, hasPoints);
        Desk desk;
        desk.start();
        if (hasPoints) {
            desk.addPoint("2026-05-08T10:00:00Z", "47", "8");
        }
        offset &clock = *desk.parts().matching.offsetObj.content();
        clock.setPlus(plus);
        clock.setHours(1);
        clock.setMinutes(2);
        clock.setSeconds(3);
        desk.select({&desk.addPhoto("a", "2026:05:08 10:00:00", "47.1", "8.5")});
        const QString shown = QString::fromStdString(desk.parts().matching.offsetText2.text.get());
        QTEST(shown, "text");
        QCOMPARE(desk.parts().matching.offsetButton.enabled.get(), hasPoints);
    }

    void severalPhotosAndNone() {
        Desk desk;
        desk.start();
        image &a = desk.addPhoto("a", "2026:05:08 10:00:00");
        image &b = desk.addPhoto("b", "2026:05:08 10:00:00", "47.1", "8.5");
        image &c = desk.addPhoto("c", "2026:05:08 10:00:00");
        Button &remove = desk.parts().inspectorOutlets.removePictButton2;
        desk.select({&a, &b, &c});
        QCOMPARE(desk.interface().addRemoveMarker2.title.get(), std::string("Remove Markers"));
        QCOMPARE(desk.interface().addRemoveMarker2.tag, 1);
        QCOMPARE(desk.interface().window.title.get(), std::string("Pinmora"));
        QCOMPARE(remove.title.get(), std::string("Remove Pictures"));
        QVERIFY(!desk.interface().preview.theImageView.image.get());
        desk.select({&a, &c});
        QCOMPARE(desk.interface().addRemoveMarker.title.get(), std::string("Add Markers"));
        desk.select({});
        QCOMPARE(desk.interface().addRemoveMarker.title.get(), std::string("Add Marker"));
        QCOMPARE(remove.title.get(), std::string("Remove Picture"));
        QVERIFY(!remove.enabled.get());
        QVERIFY(!desk.parts().photos.newFileName.enabled.get());
    }

    /// Undo, typed coordinates and places looked up write to the photo that is shown.
    void followsWhatIsWrittenToTheSelectedPhoto() {
        Desk desk;
        desk.start();
        image &photo = desk.addPhoto("a", "2026:05:08 10:00:00");
        desk.endTurn();
        desk.select({&photo});
        desk.parts().coordinates.lat.d.type("47.5");
        desk.parts().coordinates.lon.d.type("8.25");
        desk.endTurn();
        QCOMPARE(desk.interface().addRemoveMarker.title.get(), std::string("Remove Marker"));
        QCOMPARE(desk.scripts.back(), std::string("movePointer(47.5,8.25,'')"));
        while (photo.lat_and_lon()) {
            desk.parts().undoCommands.undoItem.press();
        }
        desk.endTurn();
        QCOMPARE(desk.interface().addRemoveMarker.tag, 0);
        QCOMPARE(desk.scripts.back(), std::string("removePointer()"));
    }

    void removesTheSelectedPhotos() {
        Desk desk;
        desk.start();
        image &a = desk.addPhoto("a", "2026:05:08 10:00:00");
        image &b = desk.addPhoto("b", "2026:05:08 10:00:00");
        desk.endTurn();
        desk.select({&b});
        desk.parts().inspectorOutlets.removePictButton.press();
        QCOMPARE(desk.interface().window.title.get(), std::string("Pinmora"));
        QCOMPARE(desk.parts().arrays.pictureArray.arrangedObjects(), std::vector{&a});
        desk.endTurn();
        QCOMPARE(desk.parts().undoCommands.undoItem.title.get(),
                 std::string("Undo Remove Picture"));
        desk.parts().undoCommands.undoItem.press();
        QCOMPARE(desk.context().count<image>(), 2U);
    }

    void fullViewOfAMissingFileSaysSo() {
        Desk desk;
        desk.start();
        desk.parts().inspector.imageFullView();
        const Sheet &sheet = desk.parts().missingOutlets.pictErrorWindow;
        QVERIFY(!sheet.isUp());
        desk.select({&desk.addPhoto("a", "2026:05:08 10:00:00")});
        desk.parts().inspector.imageFullView();
        QVERIFY(sheet.isUp());
        QVERIFY(!desk.interface().fullView.visible.get());
    }

    void renamingFollowsTheFieldAndTheOrder() {
        Desk desk;
        desk.start();
        image &late = desk.addPhoto("late", "2026:05:08 12:00:00");
        image &taken = desk.addPhoto("trip_2", "2026:05:08 11:00:00");
        image &early = desk.addPhoto("early", "2026:05:08 10:00:00");
        desk.endTurn();
        desk.interface().mainTabs.selectedIdentifier.set("2");
        TextField &field = desk.parts().photos.newFileName2;
        RenamingOutlets &outlets = desk.parts().renamingOutlets;
        desk.delegate.notifications.post(controlTextDidChange,
                                         static_cast<const TextField *>(&field));
        QVERIFY(!outlets.changeName.enabled.get());
        field.text.set("trip");
        desk.delegate.notifications.post(controlTextDidChange,
                                         static_cast<const TextField *>(&field));
        desk.select({&late, &early});
        outlets.changeName.press();
        QCOMPARE(late.image_name().string(), std::string("trip_1"));
        QCOMPARE(early.image_name().string(), std::string("trip_3"));
        desk.endTurn();
        outlets.changeName3.press();
        QCOMPARE(desk.parts().arrays.pictureArray.arrangedObjects(),
                 (std::vector{&early, &taken, &late}));
        QCOMPARE(early.image_name().string(), std::string("trip_4"));
        desk.parts().renaming.revertPhotoNames();
        QCOMPARE(taken.image_name().string(), std::string("trip_2"));
        QCOMPARE(late.image_name().string(), std::string("late"));
    }

    void photosWithoutWhatIsSortedByComeLast() {
        Desk desk;
        desk.start();
        image &none = desk.addPhoto("a", "");
        none.setNo_capture_time(true);
        image &far = desk.addPhoto("b", "2026:05:08 13:00:00", "46", "8");
        image &near = desk.addPhoto("c", "2026:05:08 09:59:00", "47", "8");
        desk.addPoint("2026-05-08T10:00:00Z", "47", "8");
        const auto arranged = [&](const char *key, bool ascending) {
            desk.parts().photoOrder.order.set({key, ascending});
            return desk.parts().arrays.pictureArray.arrangedObjects();
        };
        QCOMPARE(arranged("gap", true), (std::vector{&near, &far, &none}));
        QCOMPARE(arranged("gap", false), (std::vector{&far, &near, &none}));
        QCOMPARE(arranged("lat", false), (std::vector{&near, &far, &none}));
        QCOMPARE(arranged("", true), (std::vector{&none, &far, &near}));
        desk.endTurn();
        QCOMPARE(desk.parts().counts.counts.get(),
                 (Counts{.photos = 3, .withPosition = 2, .tracks = 1, .points = 1}));
    }
};

QTEST_MAIN(InspectorTest)
#include "inspector_test.moc"
