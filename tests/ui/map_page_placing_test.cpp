// How photos are put somewhere on the map page: clicks, the pin, points of tracks, drops, pasting.

#include "page_desk.h"

#include <QClipboard>
#include <QGuiApplication>

class MapPagePlacingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { desks_.clear(); }
    void aClickPlacesOnlyWhenItIsMeantTo_data();
    void aClickPlacesOnlyWhenItIsMeantTo();
    void aPointOfTheTrackIsPicked();
    void aDraftIsPlacedOnce_data();
    void aDraftIsPlacedOnce();
    void escapeDropsADraft();
    void aDraftStaysInSightOfWhatIsDrawn();
    void thePointerIsDraggedAndToldOnce();
    void aDragIsTakenBack_data();
    void aDragIsTakenBack();
    void aTrackOffersItsPoint_data();
    void aTrackOffersItsPoint();
    void aTrackIsMetWithinItsReach_data();
    void aTrackIsMetWithinItsReach();
    void aDropPlacesWhereItFalls();
    void pastedPositions_data();
    void pastedPositions();

private:
    PageDesks desks_;
};

namespace {

constexpr QPoint middle{300, 200};

void select(PageDesk &desk, int count, bool clickPlaces) {
    desk.feed(QStringLiteral(R"({"kind":"selection","ids":[],"count":%1,"clickPlaces":%2})")
                  .arg(count)
                  .arg(clickPlaces ? QStringLiteral("true") : QStringLiteral("false"))
                  .toUtf8());
}

/// Along a parallel, through the middle of a view of 47, 8.
void feedTrack(PageDesk &desk) {
    desk.feed(R"({"kind":"tracks","tracks":[{"number":1,"lat":[47,47,47],"lon":[7.9,8.001,8.1],)"
              R"("time":[1212345678,1212345700,null]}]})");
}

/// Whether just this has been told, and once.
bool toldOnly(PageDesk &desk, const QString &position) {
    const QStringList told = desk.reports();
    return told.size() == 1 && told[0].startsWith(QLatin1String("position ")) &&
           isSame(told[0].section(QLatin1Char(' '), 1), position);
}

} // namespace

void MapPagePlacingTest::aClickPlacesOnlyWhenItIsMeantTo_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("clickPlaces");
    QTest::addColumn<bool>("places");

    const QString draft = QStringLiteral("addNewMarkerToMap(47,8,12)");
    const QString pointer = QStringLiteral("movePointerWithZoom(47,8,12,'')");
    QTest::newRow("nothing selected") << QString() << 0 << false << false;
    QTest::newRow("several selected") << QString() << 3 << false << false;
    QTest::newRow("one with its pointer") << pointer << 1 << false << false;
    QTest::newRow("told to place") << QString() << 1 << true << true;
    QTest::newRow("told to place, with a pointer") << pointer << 3 << true << true;
    QTest::newRow("a draft") << draft << 3 << false << true;
    QTest::newRow("a draft for nothing") << draft << 0 << false << false;
    QTest::newRow("a draft that is gone")
        << draft + QStringLiteral(";removePointer()") << 3 << false << false;
}

void MapPagePlacingTest::aClickPlacesOnlyWhenItIsMeantTo() {
    QFETCH(QString, before);
    QFETCH(int, count);
    QFETCH(bool, clickPlaces);
    QFETCH(bool, places);
    PageDesk &desk = desks_.fresh();
    select(desk, count, clickPlaces);
    desk.ask(before);
    const QString there = desk.seenAt({150, 260});
    desk.click({150, 260});
    QVERIFY(places ? toldOnly(desk, there) : desk.reports().isEmpty());
    desk.click({450, 90}); // away from what was shown there
    QCOMPARE(desk.reports().size(), clickPlaces ? 1 : 0);
}

/// Whatever a click would do else; beside the track it does nothing.
void MapPagePlacingTest::aPointOfTheTrackIsPicked() {
    PageDesk &desk = desks_.fresh();
    select(desk, 1, true);
    desk.ask(QStringLiteral("movePointerWithZoom(47,8,12,'')"));
    desk.feed(R"({"kind":"tracks","tracks":[{"number":1,"lat":[47,47],"lon":[7.9,8.1],)"
              R"("time":[1,2]}]})");
    desk.feed(R"({"kind":"pick","on":true})");
    QVERIFY(desk.ask(QStringLiteral("document.getElementById('note').textContent"))
                .toString()
                .startsWith(QLatin1String("Click the point")));
    desk.click({150, 300});
    QCOMPARE(desk.reports(), QStringList());
    const QString there = desk.seenAt({150, 215});
    desk.click({150, 215});
    QCOMPARE(desk.reports(), QStringList(QStringLiteral("position %1:pick").arg(there)));
    desk.key(Qt::Key_Escape);
    QCOMPARE(desk.reports(), QStringList(QStringLiteral("position ")));
    desk.feed(R"({"kind":"pick","on":false})");
    QVERIFY(desk.ask(QStringLiteral("document.getElementById('note').hidden")).toBool());
    const QString elsewhere = desk.seenAt({450, 100});
    desk.click({450, 100});
    QVERIFY(toldOnly(desk, elsewhere));
}

void MapPagePlacingTest::aDraftIsPlacedOnce_data() {
    QTest::addColumn<QString>("how");
    QTest::addColumn<QPoint>("there");

    QTest::newRow("a click on the map") << "click" << QPoint(120, 300);
    QTest::newRow("a click on the pin") << "pin" << middle;
    QTest::newRow("dragged") << "drag" << QPoint(400, 260);
    QTest::newRow("Enter on the pin") << "enter" << middle;
    QTest::newRow("moved by keys") << "keys" << QPoint(311, 190);
}

void MapPagePlacingTest::aDraftIsPlacedOnce() {
    QFETCH(QString, how);
    QFETCH(QPoint, there);
    PageDesk &desk = desks_.fresh();
    select(desk, 2, false);
    desk.ask(QStringLiteral("addNewMarkerToMap(47,8,12)"));
    QVERIFY(desk.ask(QStringLiteral("document.querySelector('.pin.draft') !== null &&"
                                    "!document.getElementById('note').hidden"))
                .toBool());
    const QPoint onPin(0, -20);
    if (how == QLatin1String("click")) {
        desk.click(there);
    } else if (how == QLatin1String("pin")) {
        desk.click(middle + onPin);
    } else if (how == QLatin1String("drag")) {
        desk.holdPin(middle + onPin, there - middle);
        desk.release();
    } else {
        desk.view().clearFocus(); // and whoever comes back
        desk.view().setFocus(Qt::TabFocusReason);
        QVERIFY(desk.becomes(
            QStringLiteral("document.activeElement === document.querySelector('.pin.draft')")));
        if (how == QLatin1String("keys")) {
            desk.key(Qt::Key_Down);
            desk.key(Qt::Key_Escape);
            desk.key(Qt::Key_Right);
            desk.key(Qt::Key_Right, Qt::ShiftModifier);
            desk.key(Qt::Key_Up);
        }
        desk.key(Qt::Key_Return);
    }
    QVERIFY(desk.becomes(QStringLiteral("reports.length > 0")));
    QVERIFY(toldOnly(desk, desk.seenAt(there)));
    QVERIFY(desk.ask(QStringLiteral("document.querySelector('.pin.draft') === null &&"
                                    "document.getElementById('note').hidden"))
                .toBool());
    QCOMPARE(desk.pin().value(), there);
    desk.click({500, 100});
    QCOMPARE(desk.reports(), QStringList());
}

void MapPagePlacingTest::escapeDropsADraft() {
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral("addNewMarkerToMap(47,8,12); document.getElementById('map').focus()"));
    desk.key(Qt::Key_Escape);
    QVERIFY(!desk.pin());
    QVERIFY(desk.ask(QStringLiteral("document.getElementById('note').hidden")).toBool());
    desk.click(middle);
    QCOMPARE(desk.reports(), QStringList());
}

void MapPagePlacingTest::aDraftStaysInSightOfWhatIsDrawn() {
    PageDesk &desk = desks_.fresh();
    feedTrack(desk);
    QVERIFY(isAt(desk.seenInMiddle(), 47, 8, 11));
    desk.ask(QStringLiteral("addNewMarkerToMap(0,0,1)"));
    QVERIFY(isAt(desk.seenInMiddle(), 47, 8, 11));
    QCOMPARE(desk.pin().value(), middle);
}

void MapPagePlacingTest::thePointerIsDraggedAndToldOnce() {
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral("movePointerWithZoom(47,8,12,'IMG_1')"));
    desk.holdPin(middle - QPoint(0, 20), {-100, -80});
    desk.release();
    QVERIFY(desk.becomes(QStringLiteral("reports.length > 0")));
    QCOMPARE(desk.pin().value(), QPoint(200, 120));
    QVERIFY(toldOnly(desk, desk.seenAt({200, 120})));
}

void MapPagePlacingTest::aDragIsTakenBack_data() {
    QTest::addColumn<QString>("by");
    QTest::addColumn<bool>("pinStays");

    QTest::newRow("Escape") << "" << true;
    QTest::newRow("the program, which removes it") << "removePointer()" << false;
    QTest::newRow("the program, which moves it") << "movePointer(47,8,'')" << true;
}

void MapPagePlacingTest::aDragIsTakenBack() {
    QFETCH(QString, by);
    QFETCH(bool, pinStays);
    PageDesk &desk = desks_.fresh();
    desk.ask(
        QStringLiteral("movePointerWithZoom(47,8,12,''); document.getElementById('map').focus()"));
    desk.holdPin(middle - QPoint(0, 20), {50, 60});
    if (by.isEmpty()) {
        desk.key(Qt::Key_Escape);
    } else {
        desk.ask(by);
    }
    desk.moveHeld({400, 300});
    desk.release();
    desk.click({500, 60});
    QCOMPARE(desk.reports(), QStringList());
    QCOMPARE(desk.pin().has_value(), pinStays);
    QVERIFY(!pinStays || desk.pin().value() == middle);
}

void MapPagePlacingTest::aTrackOffersItsPoint_data() {
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("words");

    QTest::newRow("nothing selected") << 0 << "Select photos first";
    QTest::newRow("one selected") << 1 << "Use This Point";
    QTest::newRow("several selected") << 3 << "Use This Point";
}

void MapPagePlacingTest::aTrackOffersItsPoint() {
    QFETCH(int, count);
    QFETCH(QString, words);
    PageDesk &desk = desks_.fresh();
    feedTrack(desk);
    select(desk, count, false);
    desk.ask(QStringLiteral("movePointerWithZoom(47,8,15,''); removePointer()"));
    desk.click(middle);
    QVERIFY(desk.becomes(QStringLiteral("document.querySelector('.point') !== null")));
    const QString text =
        desk.ask(QStringLiteral("document.querySelector('.point').innerText")).toString();
    QVERIFY2(text.contains(QLatin1String("1 Jun 2008")) &&
                 text.contains(QLatin1String("18:41:40")) &&
                 text.contains(QLatin1String("47.00000, 8.00100")) && text.contains(words),
             qPrintable(text));
    QCOMPARE(desk.reports(), QStringList());
    desk.ask(QStringLiteral("document.querySelector('.point button').click()"));
    QCOMPARE(desk.reports(), count > 0
                                 ? QStringList{QStringLiteral("position 47.000000:8.001000:15")}
                                 : QStringList());
}

void MapPagePlacingTest::aTrackIsMetWithinItsReach_data() {
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<bool>("met");

    QTest::newRow("near it") << QPoint(310, 206) << true;
    QTest::newRow("between its points") << QPoint(80, 200) << true;
    QTest::newRow("beside it") << QPoint(310, 212) << false;
}

void MapPagePlacingTest::aTrackIsMetWithinItsReach() {
    QFETCH(QPoint, at);
    QFETCH(bool, met);
    PageDesk &desk = desks_.fresh();
    feedTrack(desk);
    desk.ask(QStringLiteral("movePointerWithZoom(47,8,12,''); removePointer()"));
    desk.click(at);
    QCOMPARE(desk.ask(QStringLiteral("document.querySelector('.point') !== null")).toBool(), met);
}

void MapPagePlacingTest::aDropPlacesWhereItFalls() {
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral("movePointerWithZoom(0,0,10,'')"));
    desk.feed(R"({"kind":"drop","x":300,"y":200})");
    QVERIFY(toldOnly(desk, QStringLiteral("0:0:10")));
    for (const char *nowhere : {R"({"kind":"drop","x":-1,"y":200})", R"({"kind":"drop","x":3})",
                                R"({"kind":"drop","x":"1","y":401})", R"({"kind":"drop"})"}) {
        desk.feed(nowhere);
    }
    QCOMPARE(desk.reports(), QStringList());
}

void MapPagePlacingTest::pastedPositions_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("inField");
    QTest::addColumn<QString>("report");
    QTest::addColumn<QString>("seen");

    const QString text = QStringLiteral("geo:47.5,8.25?z=15");
    const QString there = QStringLiteral("47.500000:8.250000:15");
    const QString before = QStringLiteral("0.000000:0.000000:10");
    QTest::newRow("for photos") << text << 2 << false << QStringLiteral("position ") + there
                                << there;
    QTest::newRow("to look at") << text << 0 << false << QString() << there;
    QTest::newRow("into the field") << text << 2 << true << QString() << before;
    QTest::newRow("not a position") << "IMG_0412.JPG" << 2 << false << QString() << before;
    QTest::newRow("not on Earth") << "47.5, 208.25" << 2 << false << QString() << before;
}

void MapPagePlacingTest::pastedPositions() {
    QFETCH(QString, text);
    QFETCH(int, count);
    QFETCH(bool, inField);
    QFETCH(QString, report);
    QFETCH(QString, seen);
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral("movePointerWithZoom(0,0,10,''); removePointer()"));
    select(desk, count, false);
    desk.view().activateWindow();
    desk.view().setFocus();
    desk.ask(QStringLiteral("document.getElementById('%1').focus()")
                 .arg(inField ? QStringLiteral("place") : QStringLiteral("map")));
    QGuiApplication::clipboard()->setText(text);
    desk.key(Qt::Key_V, Qt::ControlModifier);
    if (inField) {
        QVERIFY(desk.becomes(QStringLiteral("document.getElementById('place').value !== ''")));
    }
    QCOMPARE(desk.reports().filter(QStringLiteral("position")),
             report.isEmpty() ? QStringList() : QStringList{report});
    QVERIFY(isSame(desk.seenInMiddle(), seen));
    QCOMPARE(desk.ask(QStringLiteral("document.getElementById('note').hidden")).toBool(),
             inField || seen != QLatin1String("0.000000:0.000000:10"));
}

QTEST_MAIN(MapPagePlacingTest)
#include "map_page_placing_test.moc"
