// What the program sends to be drawn on the map page, and what is seen of it.

#include "page_desk.h"

class MapPageDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { desks_.clear(); }
    void tracksAreShownWhenTheyCome();
    void tracksStayFittedInAWindowThatGrows();
    void tracksThatComeLeaveAShownPhotoInPlace();
    void aPhotoWithoutAPositionLeadsBack_data();
    void aPhotoWithoutAPositionLeadsBack();
    void aTrackGoesOnOverTheDateLine_data();
    void aTrackGoesOnOverTheDateLine();
    void photosComeAndGoAndAreHighlighted();
    void photosSlideWhileTheClockIsTurned();
    void noMoreGhostsThanCanBeSeen();
    void photosAreNamed();
    void thereIsSomethingToGoByOnEmptyGround();
    void theWorldHasLandAndWaterEverywhere_data();
    void theWorldHasLandAndWaterEverywhere();
    void theLookIsTheDesktops();
    void whatIsSentIsNeverMarkup();
    void nonsenseIsPassedOver_data();
    void nonsenseIsPassedOver();

private:
    PageDesks desks_;
};

namespace {

const QColor trackColour(0xd1, 0x46, 0x3f);
const QColor accent(0x2f, 0x6f, 0xdb);
const QColor land(0xf3, 0xf0, 0xe7);
const QColor water(0xbc, 0xd9, 0xe7);

bool becomesPainted(PageDesk &desk, QPoint at, QColor colour) {
    return PageDesk::waitFor([&] { return desk.isPainted(at, colour); });
}

QByteArray track(const char *lat, const char *lon) {
    return QByteArray(R"({"kind":"tracks","tracks":[{"number":1,"lat":[)") + lat + R"(],"lon":[)" +
           lon + R"(],"time":[]}]})";
}

} // namespace

void MapPageDrawingTest::tracksAreShownWhenTheyCome() {
    PageDesk &desk = desks_.fresh();
    QVERIFY(desk.ask(QStringLiteral("document.getElementById('fit').disabled")).toBool());
    desk.feed(track("47,47", "8,8.2"));
    const QString fitted = desk.seenInMiddle();
    QVERIFY(isAt(fitted, 47, 8.1, 11));
    QVERIFY(becomesPainted(desk, {300, 200}, trackColour));
    // The same again moves nothing, others do.
    desk.ask(QStringLiteral("movePointerWithZoom(47,8,5,''); removePointer()"));
    desk.feed(track("47,47", "8,8.2"));
    QVERIFY(desk.seenInMiddle().endsWith(QLatin1String(":5")));
    desk.ask(QStringLiteral("document.getElementById('fit').click()"));
    QCOMPARE(desk.seenInMiddle(), fitted);
    desk.feed(track("-33,-34", "18,19"));
    QVERIFY(isAt(desk.seenInMiddle(), -33.5, 18.5, 8));
    desk.feed(R"({"kind":"tracks","tracks":[]})");
    QVERIFY(desk.ask(QStringLiteral("document.getElementById('fit').disabled")).toBool());
}

/// A window comes to its size in several steps.
void MapPageDrawingTest::tracksStayFittedInAWindowThatGrows() {
    PageDesk &desk = desks_.fresh();
    const auto isAsWideAs = [&](int width) {
        return desk.becomes(QStringLiteral("mapPage.view.map.getSize().x === %1").arg(width));
    };
    desk.view().resize(100, 50);
    QVERIFY(isAsWideAs(100));
    desk.feed(track("47,47", "8,8.2"));
    desk.view().resize(600, 400);
    QVERIFY(isAsWideAs(600));
    QVERIFY(isAt(desk.seenInMiddle(), 47, 8.1, 11));
}

void MapPageDrawingTest::tracksThatComeLeaveAShownPhotoInPlace() {
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral("movePointerWithZoom(10,20,5,'')"));
    const QString before = desk.seenInMiddle();
    desk.feed(track("47,47", "8,8.2"));
    QCOMPARE(desk.seenInMiddle(), before);
    QCOMPARE(desk.reports(), QStringList());
}

void MapPageDrawingTest::aPhotoWithoutAPositionLeadsBack_data() {
    QTest::addColumn<bool>("tracks");
    QTest::addColumn<QString>("before");
    QTest::addColumn<bool>("zoom"); // by the person
    QTest::addColumn<QString>("middle");

    const char *const far = "movePointerWithZoom(-49.33,-72.88,13,'')";
    QTest::newRow("to the tracks") << true << far << false << "47.000000:8.100000:11";
    QTest::newRow("not from where the person has looked around")
        << true << far << true << "-49.330000:-72.880000:14";
    QTest::newRow("not when a track is seen")
        << true << "movePointerWithZoom(47.01,8.1,12,'')" << false << "47.010000:8.100000:12";
    QTest::newRow("not from a draft, which stays by the tracks")
        << true << "addNewMarkerToMap(-49,-72,13)" << false << "47.000000:8.100000:11";
    QTest::newRow("to the photos") << false << far << false << "10.000000:20.000000:16";
    QTest::newRow("not when a photo is seen")
        << false << "movePointerWithZoom(10,20.01,12,'')" << false << "10.000000:20.010000:12";
}

void MapPageDrawingTest::aPhotoWithoutAPositionLeadsBack() {
    QFETCH(bool, tracks);
    QFETCH(QString, before);
    QFETCH(bool, zoom);
    QFETCH(QString, middle);
    PageDesk &desk = desks_.fresh();
    desk.feed(R"({"kind":"photos","all":true,"photos":[{"id":7,"name":"a","lat":10,"lon":20}]})");
    if (tracks) {
        desk.feed(track("47,47", "8,8.2"));
    }
    desk.ask(before);
    if (zoom) {
        desk.ask(QStringLiteral("document.getElementById('zoom-in').click()"));
        QVERIFY(desk.becomes(QStringLiteral("reports.length > 0")));
    }
    desk.ask(QStringLiteral("removePointer()"));
    QVERIFY(!desk.pin());
    QVERIFY(isSame(desk.seenInMiddle(), middle));
}

void MapPageDrawingTest::aTrackGoesOnOverTheDateLine_data() {
    QTest::addColumn<QString>("view");
    QTest::addColumn<bool>("there"); // whether the middle of the view is on the track

    QTest::newRow("before the line") << "movePointerWithZoom(0,179.7,9,'')" << true;
    QTest::newRow("after the line") << "movePointerWithZoom(0,-179.8,9,'')" << true;
    QTest::newRow("on the line") << "movePointerWithZoom(0,180,9,'')" << true;
    QTest::newRow("on the line, from the west") << "movePointerWithZoom(0,-180,9,'')" << true;
    QTest::newRow("round the world") << "movePointerWithZoom(0,1,2,'')" << false;
}

void MapPageDrawingTest::aTrackGoesOnOverTheDateLine() {
    QFETCH(QString, view);
    QFETCH(bool, there);
    PageDesk &desk = desks_.fresh();
    desk.feed(track("0,0,0", "179,-179.5,-179"));
    const QString fitted = desk.seenInMiddle();
    QVERIFY2(qAbs(fitted.section(QLatin1Char(':'), 1, 1).toDouble()) > 179.9, qPrintable(fitted));
    QVERIFY2(fitted.section(QLatin1Char(':'), 2).toInt() >= 7, qPrintable(fitted));
    desk.ask(view);
    const QPoint at(340, 200); // beside the pin
    if (there) {
        QVERIFY(becomesPainted(desk, at, trackColour));
    } else {
        QVERIFY(becomesPainted(desk, at, water));
    }
}

void MapPageDrawingTest::photosComeAndGoAndAreHighlighted() {
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral("movePointerWithZoom(47.0123,8.0123,12,''); removePointer()"));
    const QPoint middle(300, 200);
    desk.feed(
        R"({"kind":"photos","all":true,"photos":[{"id":7,"name":"a","lat":47.0123,"lon":8.0123},)"
        R"({"id":8,"name":"b","lat":40,"lon":9}],"gone":[]})");
    QVERIFY(becomesPainted(desk, middle + QPoint(4, 0), accent));
    QVERIFY(desk.isPainted(middle, land));
    desk.feed(R"({"kind":"selection","ids":[7],"count":1,"clickPlaces":false})");
    QVERIFY(becomesPainted(desk, middle, accent));
    desk.feed(
        R"({"kind":"photos","all":false,"photos":[{"id":8,"name":"b","lat":47.0123,"lon":8.0323}],)"
        R"("gone":[7]})");
    QVERIFY(becomesPainted(desk, middle, land));
    desk.ask(QStringLiteral("movePointer(47.0123,8.0323,12,''); removePointer()"));
    QVERIFY(becomesPainted(desk, middle + QPoint(4, 0), accent));
    desk.feed(R"({"kind":"photos","all":true,"photos":[],"gone":[]})");
    QVERIFY(becomesPainted(desk, middle + QPoint(4, 0), land));
}

/// Along a track through the middle of the view, where a second is 100 pixels.
void MapPageDrawingTest::photosSlideWhileTheClockIsTurned() {
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral("movePointerWithZoom(0,25,7,''); removePointer()"));
    const double degrees = 100 * 360.0 / 256 / 128;
    QByteArray lat;
    QByteArray lon;
    QByteArray times;
    for (const int i : {1, 0, -2, -1}) { // in no order
        lat += lat.isEmpty() ? "0" : ",0";
        lon += (lon.isEmpty() ? "" : ",") + QByteArray::number(25 + i * degrees);
        times += (times.isEmpty() ? "" : ",") + QByteArray::number(1000 + i);
    }
    desk.feed(R"({"kind":"tracks","tracks":[{"number":1,"lat":[)" + lat + R"(],"lon":[)" + lon +
              R"(],"time":[)" + times + "]}]}");
    desk.ask(QStringLiteral("movePointerWithZoom(0,25,7,''); removePointer()"));
    const auto isGhostAt = [&desk](int x) {
        const QColor seen = desk.view().grab().toImage().pixelColor(QPoint(x, 200));
        return seen.blue() > seen.red() + 24; // the accent through which the track is seen
    };
    const auto becomesGhostAt = [&](int x, bool is) {
        return PageDesk::waitFor([&] { return isGhostAt(x) == is; });
    };
    QVERIFY(becomesPainted(desk, {200, 200}, trackColour));
    desk.feed(R"({"kind":"turn","by":0,"times":[999]})");
    QVERIFY(becomesGhostAt(200, true));
    desk.feed(R"({"kind":"turn","by":1})");
    QVERIFY(becomesGhostAt(300, true) && becomesGhostAt(200, false));
    desk.feed(R"({"kind":"turn","by":-1})");
    QVERIFY(becomesGhostAt(100, true) && becomesGhostAt(300, false));
    // Far in time it stays at the end, and is none of the track's own.
    desk.feed(R"({"kind":"turn","by":400})");
    QVERIFY(PageDesk::waitFor([&desk] { // its ring, on the water beside the track
        const QColor seen = desk.view().grab().toImage().pixelColor(QPoint(400, 205));
        return seen.red() > seen.blue() + 40;
    }));
    desk.feed(R"({"kind":"turn","by":0})");
    QVERIFY(becomesGhostAt(200, true));
    desk.feed(R"({"kind":"turn","by":null})");
    QVERIFY(becomesPainted(desk, {200, 200}, trackColour));
}

void MapPageDrawingTest::noMoreGhostsThanCanBeSeen() {
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral(R"(
        var drawn = 0, waves = {kind: "tracks", tracks: [{number: 1, lat: [], lon: [], time: []}]};
        for (let i = 0; i < 20000; ++i) {
            waves.tracks[0].lat.push(47 + 0.1 * Math.sin(i / 40));
            waves.tracks[0].lon.push(8 + i / 50000);
            waves.tracks[0].time.push(i);
        }
        const {arc} = CanvasRenderingContext2D.prototype;
        CanvasRenderingContext2D.prototype.arc = function (x, y, size, ...given) {
            drawn += size === 5 ? 1 : 0; // a ghost
            return arc.call(this, x, y, size, ...given);
        };
        const say = (message) => document.dispatchEvent(
            new CustomEvent("pinmora-feed", {detail: JSON.stringify(message)}));
        say(waves);
        drawn = 0;
        say({kind: "turn", by: 0, times: Array.from({length: 10000}, (_, i) => 2 * i)});
    )"));
    QVERIFY(desk.becomes(QStringLiteral("drawn > 0")));
    QCOMPARE(desk.ask(QStringLiteral("drawn")).toInt(), 500);
    // A few are all drawn.
    desk.ask(QStringLiteral("drawn = 0; say({kind: 'turn', by: 0, times: [100, 9000, 19000]})"));
    QVERIFY(desk.becomes(QStringLiteral("drawn > 0")));
    QCOMPARE(desk.ask(QStringLiteral("drawn")).toInt(), 3);
}

void MapPageDrawingTest::photosAreNamed() {
    PageDesk &desk = desks_.fresh();
    const auto saysAt = [&](QPoint at, const char *text) {
        QTest::mouseMove(desk.view().focusProxy(), at + QPoint(40, 40));
        QTest::mouseMove(desk.view().focusProxy(), at);
        return desk.becomes(QStringLiteral("document.querySelector('.label')?.textContent === '%1'")
                                .arg(QString::fromUtf8(text)));
    };
    desk.feed(R"({"kind":"photos","all":true,"photos":[{"id":7,"name":"<b>","lat":47,"lon":8},)"
              R"({"id":8,"name":"b","lat":47,"lon":8.1},{"id":9,"name":"c","lat":47,"lon":8.1}]})");
    desk.ask(QStringLiteral("movePointerWithZoom(47,8,10,'')"));
    desk.ask(QStringLiteral("removePointer()"));
    QVERIFY(saysAt({300, 200}, "<b>"));
    QVERIFY(saysAt({300 + 73, 200}, "b, c"));
    // The pin of the selected one has its name, also when a call has none.
    desk.feed(R"({"kind":"selection","ids":[7],"count":1,"clickPlaces":false})");
    desk.ask(QStringLiteral("movePointer(47,8,'')"));
    QVERIFY(saysAt({300, 180}, "<b>"));
}

void MapPageDrawingTest::thereIsSomethingToGoByOnEmptyGround() {
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral("movePointerWithZoom(-45.501,-69.901,17,''); removePointer()"));
    const QColor ink(0x6b, 0x71, 0x78);
    const auto isWrittenIn = [&](QRect part) {
        const QImage seen = desk.view().grab(part).toImage();
        int count = 0;
        for (int i = 0; i < seen.width() * seen.height(); ++i) {
            const QColor one = seen.pixelColor(i % seen.width(), i / seen.width());
            count += qAbs(one.red() - ink.red()) + qAbs(one.blue() - ink.blue()) < 24 ? 1 : 0;
        }
        return count > 5;
    };
    QVERIFY(PageDesk::waitFor([&] { return isWrittenIn({500, 60, 100, 290}); })); // latitudes
    QVERIFY(PageDesk::waitFor([&] { return isWrittenIn({60, 0, 300, 30}); }));    // longitudes
    QVERIFY(PageDesk::waitFor([&] { return isWrittenIn({60, 50, 420, 290}); }));  // places
}

void MapPageDrawingTest::theWorldHasLandAndWaterEverywhere_data() {
    QTest::addColumn<QString>("position");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QColor>("colour");

    for (const int zoom : {3, 8, 19}) {
        const auto row = [zoom](const char *name, const char *position, QColor colour) {
            QTest::addRow("%s at %d", name, zoom) << QString::fromUtf8(position) << zoom << colour;
        };
        row("Bern", "46.94017,7.42019", land);
        row("the Pacific", "-40.01317,-130.01219", water);
        row("Chukotka, west of the line", "67.50317,179.01219", land);
        row("Chukotka, east of it", "67.30317,-177.50219", land);
        row("the Caspian", "42.01317,50.51319", water);
        row("Antarctica", "-79.50317,120.01319", land);
    }
}

void MapPageDrawingTest::theWorldHasLandAndWaterEverywhere() {
    QFETCH(QString, position);
    QFETCH(int, zoom);
    QFETCH(QColor, colour);
    PageDesk &desk = desks_.fresh();
    desk.ask(
        QStringLiteral("movePointerWithZoom(%1,%2,''); removePointer()").arg(position).arg(zoom));
    QVERIFY(becomesPainted(desk, {300, 200}, colour));
}

void MapPageDrawingTest::theLookIsTheDesktops() {
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral("movePointerWithZoom(0,-30,5,''); removePointer()"));
    QVERIFY(becomesPainted(desk, {300, 200}, water));
    desk.feed(track("0,0", "-31,-29"));
    desk.feed(R"({"kind":"look","dark":true,"window":"#24272b","text":"#e6e8ea","quiet":"#98a1aa",)"
              R"("lines":"#3a3f45","accent":"#7aa8f0","track":"#00ff00"})");
    QVERIFY(becomesPainted(desk, {300, 200}, QColor(0, 255, 0)));
    QVERIFY(becomesPainted(desk, {300, 150}, QColor(0x21, 0x40, 0x4f)));
    // What is no colour is left out, and light follows dark.
    desk.feed(R"({"kind":"look","dark":false,"track":"red;}*{display:none","accent":7})");
    QVERIFY(becomesPainted(desk, {300, 150}, water));
    QVERIFY(becomesPainted(desk, {300, 200}, trackColour));
}

void MapPageDrawingTest::whatIsSentIsNeverMarkup() {
    PageDesk &desk = desks_.fresh();
    desk.feed(
        R"json({"kind":"photos","all":true,"photos":[{"id":"<b>","name":"<img src=x onerror=hacked=1>",
        "lat":47,"lon":8},{"id":2,"name":{"a":1},"lat":"0);alert(1)//","lon":8}]})json");
    desk.feed(
        R"json({"kind":"tracks","tracks":[{"number":"<img src=x>","lat":[47,47],"lon":[8,8.01],
        "time":["<img src=x onerror=hacked=1>",1e300]},
        {"number":2,"lat":["0);alert(1)//",1],"lon":[8,9],"time":[]}]})json");
    desk.ask(QStringLiteral("movePointerWithZoom(47,8,15,''); removePointer()"));
    desk.click({300, 200});
    QVERIFY(desk.becomes(QStringLiteral("document.querySelector('.point') !== null")));
    QCOMPARE(desk.ask(QStringLiteral("document.querySelectorAll('#map img').length +"
                                     "document.querySelectorAll('b').length"))
                 .toInt(),
             0);
    QCOMPARE(desk.ask(QStringLiteral("typeof hacked")).toString(), QStringLiteral("undefined"));
}

void MapPageDrawingTest::nonsenseIsPassedOver_data() {
    QTest::addColumn<QByteArray>("message");

    for (const char *message :
         {"", "{", "null", "[]", "7", R"({"kind":"constructor"})", R"({"kind":"__proto__"})",
          R"({"kind":"tracks"})", R"({"kind":"tracks","tracks":[null,7,{}]})",
          R"({"kind":"tracks","tracks":[{"lat":[47],"lon":[]}]})",
          R"({"kind":"tracks","tracks":[{"lat":[95,95],"lon":[8,9]}]})",
          R"({"kind":"photos","photos":[null]})", R"({"kind":"photos","gone":7})",
          R"({"kind":"selection","ids":"x"})", R"({"kind":"look","window":[]})",
          R"({"kind":"turn","by":"1","times":[null,"x"]})",
          R"({"kind":"turn","by":1,"times":7})"}) {
        QTest::newRow(message) << QByteArray(message);
    }
}

void MapPageDrawingTest::nonsenseIsPassedOver() {
    QFETCH(QByteArray, message);
    PageDesk &desk = desks_.fresh();
    desk.feed(message);
    QVERIFY(desk.seenInMiddle().endsWith(QLatin1String(":1")));
    desk.feed(track("47,47", "8,8.2"));
    QVERIFY(isAt(desk.seenInMiddle(), 47, 8.1, 11));
    QVERIFY(becomesPainted(desk, {300, 200}, trackColour));
}

QTEST_MAIN(MapPageDrawingTest)
#include "map_page_drawing_test.moc"
