// What the program says to the map page, and what the page tells the program.

#include "page_desk.h"

#include <QRegularExpression>
#include <QTranslator>

class MapPageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { desks_.clear(); }
    void callsMoveMapAndPointer_data();
    void callsMoveMapAndPointer();
    void whatIsNoPositionRemovesThePointer_data();
    void whatIsNoPositionRemovesThePointer();
    void callsBeforeTheMapIsThereAreKept();
    void aFloodOfCallsEndsWithTheLast();
    void labelsAreOnlyText();
    void levelsAreToldWhenThePersonChangesThem();
    void longitudesAreBroughtIntoRange();
    void aPageWithoutItsProgramGoesOn_data();
    void aPageWithoutItsProgramGoesOn();
    void theMapFillsAnyView_data();
    void theMapFillsAnyView();
    void onlyItsOwnScriptsRunAndNothingElseIsReached();
    void textsAreInTheLanguageOfTheProgram();

private:
    PageDesks desks_;
};

void MapPageTest::callsMoveMapAndPointer_data() {
    QTest::addColumn<QString>("calls");
    QTest::addColumn<double>("lat"); // of the view's middle
    QTest::addColumn<double>("lon");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<bool>("pinInMiddle");

    const auto row = [](const char *name, const char *calls, double lat, double lon, int zoom,
                        bool pinInMiddle = true) {
        QTest::newRow(name) << QString::fromUtf8(calls) << lat << lon << zoom << pinInMiddle;
    };
    const char *const there = "movePointerWithZoom(47.3825,8.5432,14,'IMG_1');";
    row("with zoom", there, 47.3825, 8.5432, 14);
    row("four arguments", "movePointer(-33.9,18.4,12,'')", -33.9, 18.4, 12);
    row("as texts of the log have it", "movePointer(+47.5,-0.12463,9,'')", 47.5, -0.12463, 9);
    row("no zoom chosen, from afar", "movePointer(47.3825,8.5432,0,'')", 47.3825, 8.5432, 13);
    row("no zoom chosen, from near",
        "movePointerWithZoom(47,8,15,''); movePointerWithZoom(47.3825,8.5432,1,'')", 47.3825,
        8.5432, 15);
    row("zoom is no number", "movePointerWithZoom(47.3825,8.5432,'x','')", 47.3825, 8.5432, 13);
    row("zoom beyond the last", "movePointerWithZoom(47.3825,8.5432,99,'')", 47.3825, 8.5432, 19);
    row("at the date line", "movePointerWithZoom(-17,180,8,'')", -17, 180, 8);
    row("three arguments, in sight", "movePointerWithZoom(47,8,12,''); movePointer(47.01,8.02,'')",
        47, 8, 12, false);
    row("three arguments, out of sight", "movePointerWithZoom(47,8,12,''); movePointer(48,9,'')",
        48, 9, 12);
    row("a draft", "addNewMarkerToMap(47.3825,8.5432,11)", 47.3825, 8.5432, 11);
    row("a draft anywhere", "addNewMarkerToMap(0,0,1)", 25, 0, 1);
    row("a position after a draft", "addNewMarkerToMap(0,0,1); movePointer(47.3825,8.5432,14,'')",
        47.3825, 8.5432, 14);
}

void MapPageTest::callsMoveMapAndPointer() {
    QFETCH(QString, calls);
    QFETCH(double, lat);
    QFETCH(double, lon);
    QFETCH(int, zoom);
    QFETCH(bool, pinInMiddle);
    PageDesk &desk = desks_.fresh();
    desk.ask(calls);
    QVERIFY(isAt(desk.seenInMiddle(), lat, lon, zoom));
    const auto pin = desk.pin();
    QVERIFY(pin);
    QCOMPARE((*pin - QPoint(300, 200)).manhattanLength() < 4, pinInMiddle);
    QCOMPARE(desk.ask(QStringLiteral("document.querySelectorAll('.pin').length")).toInt(), 1);
    QCOMPARE(desk.reports(), QStringList());
    desk.ask(QStringLiteral("removePointer()"));
    QVERIFY(!desk.pin());
}

void MapPageTest::whatIsNoPositionRemovesThePointer_data() {
    QTest::addColumn<QString>("call");

    for (const char *call :
         {"movePointer()", "movePointer(NaN,8,'')", "movePointer(47,Infinity,'')",
          "movePointer(90.1,8,'')", "movePointer(47,-180.1,'')", "movePointer('47','8','')",
          "movePointer(null,undefined,[],{})", "movePointer({},{},3,'')",
          "movePointerWithZoom(47,{valueOf(){throw 1}},3,'')", "movePointerWithZoom()"}) {
        QTest::newRow(call) << QString::fromUtf8(call);
    }
}

void MapPageTest::whatIsNoPositionRemovesThePointer() {
    QFETCH(QString, call);
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral("movePointerWithZoom(47,8,9,'')"));
    QVERIFY(desk.pin());
    desk.ask(call);
    QVERIFY(!desk.pin());
    QVERIFY(isAt(desk.seenInMiddle(), 47, 8, 9));
}

void MapPageTest::callsBeforeTheMapIsThereAreKept() {
    PageDesk desk({600, 400}, "none", QStringLiteral(R"(
        var early = false;
        new MutationObserver((changes, observer) => {
            if (typeof movePointer === "function") {
                observer.disconnect();
                early = typeof L === "undefined";
                show_map();
                movePointerWithZoom(10, 20, 5, "");
                addNewMarkerToMap(47, 8, 9);
                movePointer(47.5, 8.5, 11, "");
            }
        }).observe(document, {childList: true, subtree: true});
    )"));
    QVERIFY2(desk.ask(QStringLiteral("early")).toBool(), "the functions came after the library");
    QVERIFY(isAt(desk.seenInMiddle(), 47.5, 8.5, 11));
    QVERIFY(desk.pin());
}

void MapPageTest::aFloodOfCallsEndsWithTheLast() {
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral("for (let i = 0; i < 3000; ++i) { show_map();"
                            "movePointerWithZoom(i % 80, i % 170, i % 20, 'x'.repeat(100000));"
                            "if (i % 7 === 0) addNewMarkerToMap(1, i % 90, 5); }"
                            "movePointerWithZoom(47.25, 8.25, 10, 'last')"));
    QVERIFY(isAt(desk.seenInMiddle(), 47.25, 8.25, 10));
    QCOMPARE(desk.ask(QStringLiteral("document.querySelectorAll('.pin').length")).toInt(), 1);
    QCOMPARE(desk.reports(), QStringList());
}

void MapPageTest::labelsAreOnlyText() {
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral(
        R"(movePointerWithZoom(47, 8, 9, '<img src=x onerror="hacked = 1">\u202e' + 'A'.repeat(1e6)))"));
    QTest::mouseMove(desk.view().focusProxy(), {300, 180});
    QVERIFY(desk.becomes(QStringLiteral("document.querySelector('.label') !== null")));
    const QString label =
        desk.ask(QStringLiteral("document.querySelector('.label').textContent")).toString();
    QVERIFY(label.startsWith(QLatin1String("<img src=x")));
    QVERIFY(label.size() <= 200);
    QVERIFY(
        desk.ask(QStringLiteral("document.querySelector('.label').offsetWidth < 300")).toBool());
    QCOMPARE(desk.ask(QStringLiteral("document.querySelectorAll('img').length")).toInt(), 0);
    desk.ask(QStringLiteral("movePointer(47, 8, {toString() { throw 1; }})"));
    QVERIFY(desk.pin());
}

void MapPageTest::levelsAreToldWhenThePersonChangesThem() {
    PageDesk &desk = desks_.fresh();
    const auto press = [&](const char *button) {
        desk.ask(
            QStringLiteral("document.getElementById('%1').click()").arg(QLatin1String(button)));
    };
    press("zoom-out"); // it is the first level already
    press("zoom-in");
    QVERIFY(desk.becomes(QStringLiteral("reports.length > 0")));
    QCOMPARE(desk.reports(), QStringList{QStringLiteral("level 2")});
    desk.ask(QStringLiteral("movePointerWithZoom(47,8,12,''); movePointerWithZoom(47,8,0,'')"));
    press("zoom-out");
    // What the program asks for on the way there waits, and stands.
    desk.ask(QStringLiteral("movePointerWithZoom(46,7,6,'')"));
    QVERIFY(desk.becomes(QStringLiteral("reports.length > 0")));
    QCOMPARE(desk.reports(), QStringList{QStringLiteral("level 11")});
    QVERIFY(isAt(desk.seenInMiddle(), 46, 7, 6));
    desk.ask(QStringLiteral("document.getElementById('map').focus()"));
    desk.key(Qt::Key_Plus);
    QVERIFY(desk.becomes(QStringLiteral("reports.length > 0")));
    QCOMPARE(desk.reports(), QStringList{QStringLiteral("level 7")});
    QVERIFY(isAt(desk.seenInMiddle(), 46, 7, 7));
    desk.key(Qt::Key_Plus, Qt::ShiftModifier); // as it is typed on many keyboards
    QVERIFY(desk.becomes(QStringLiteral("reports.length > 0")));
    QCOMPARE(desk.reports(), QStringList{QStringLiteral("level 8")});
    desk.ask(QStringLiteral("document.getElementById('map').dispatchEvent(new WheelEvent('wheel', "
                            "{deltaY: -200, clientX: 300, clientY: 200, bubbles: true}))"));
    QVERIFY(desk.becomes(QStringLiteral("reports.length > 0")));
    const QStringList reports = desk.reports();
    QCOMPARE(reports.size(), 1);
    QVERIFY(QRegularExpression(QStringLiteral("^level (9|10)$")).match(reports[0]).hasMatch());
}

void MapPageTest::longitudesAreBroughtIntoRange() {
    PageDesk &desk = desks_.fresh();
    for (const char *view : {"movePointer(0,179.9,4,'')", "movePointer(0,-179.9,4,'')"}) {
        desk.ask(QLatin1String(view));
        const QString west = desk.seenAt({100, 200});
        const QString east = desk.seenAt({500, 200});
        static const QRegularExpression form(QStringLiteral("^-?\\d+\\.\\d{6}:-?\\d+\\.\\d{6}:4$"));
        QVERIFY2(form.match(west).hasMatch(), qPrintable(west));
        QVERIFY2(form.match(east).hasMatch(), qPrintable(east));
        const double westLon = west.section(QLatin1Char(':'), 1, 1).toDouble();
        const double eastLon = east.section(QLatin1Char(':'), 1, 1).toDouble();
        QVERIFY(westLon > 150 && westLon < 180);
        QVERIFY(eastLon < -150 && eastLon > -180);
    }
}

void MapPageTest::aPageWithoutItsProgramGoesOn_data() {
    QTest::addColumn<QString>("control");

    for (const char *control :
         {"undefined", "null", "{}", "{zoomChangeJavascript() { throw new Error('no'); }}",
          "new Proxy({}, {get() { throw 1; }})"}) {
        QTest::newRow(control) << QString::fromUtf8(control);
    }
}

void MapPageTest::aPageWithoutItsProgramGoesOn() {
    QFETCH(QString, control);
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral("var kept = controlObj; controlObj = %1;").arg(control));
    desk.ask(QStringLiteral("document.getElementById('zoom-in').click()"));
    QVERIFY(desk.becomes(QStringLiteral("!document.getElementById('zoom-out').disabled")));
    desk.ask(QStringLiteral("controlObj = kept; document.getElementById('zoom-in').click()"));
    QVERIFY(desk.becomes(QStringLiteral("reports.length > 0")));
    QCOMPARE(desk.reports(), QStringList{QStringLiteral("level 3")});
}

void MapPageTest::theMapFillsAnyView_data() {
    QTest::addColumn<QSize>("size");

    QTest::newRow("small") << QSize(300, 200);
    QTest::newRow("narrow") << QSize(300, 800);
    QTest::newRow("wide") << QSize(1400, 250);
}

void MapPageTest::theMapFillsAnyView() {
    QFETCH(QSize, size);
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral("movePointerWithZoom(47,8,9,''); addNewMarkerToMap(47,8,9)"));
    desk.view().resize(size);
    QVERIFY(desk.becomes(QStringLiteral("innerWidth === %1 && innerHeight === %2 &&"
                                        "document.getElementById('map').offsetHeight === %2")
                             .arg(size.width())
                             .arg(size.height())));
    QVERIFY(desk.becomes(QStringLiteral("mapPage.view.map.getSize().x === innerWidth")));
    QVERIFY(isAt(desk.seenInMiddle(), 47, 8, 9));
    // Nothing lies on anything else, or beyond the view.
    const QVariant overlaps = desk.ask(QStringLiteral(R"((() => {
        const box = (name) => document.querySelector(name).getBoundingClientRect();
        const boxes = ["#buttons", "#search", "#note", "#status", ".leaflet-control-scale"].map(box);
        return boxes.filter((one, i) => one.left < 0 || one.top < 0 || one.right > innerWidth ||
            one.bottom > innerHeight || one.width === 0 || boxes.some((other, j) => i !== j &&
                one.left < other.right && other.left < one.right &&
                one.top < other.bottom && other.top < one.bottom)).length;
    })())"));
    QCOMPARE(overlaps.toInt(), 0);
}

void MapPageTest::onlyItsOwnScriptsRunAndNothingElseIsReached() {
    PageDesk &desk = desks_.fresh();
    desk.ask(QStringLiteral(R"(
        var hacked = 0, reached = "";
        document.body.insertAdjacentHTML("beforeend", "<img src=x onerror='hacked = 1'>");
        document.body.append(Object.assign(document.createElement("script"),
                                           {textContent: "hacked = 1"}));
        document.body.append(Object.assign(document.createElement("script"),
                                           {src: "http://localhost:9/x.js"}));
        fetch("http://localhost:9/").catch(() => { reached = "refused"; });
    )"));
    QVERIFY(desk.becomes(QStringLiteral("reached === 'refused' && refused.length >= 4")));
    QCOMPARE(desk.ask(QStringLiteral("hacked")).toInt(), 0);
    QVERIFY(desk.ask(QStringLiteral("refused.includes('connect-src')")).toBool());
}

void MapPageTest::textsAreInTheLanguageOfTheProgram() {
    class German : public QTranslator {
    public:
        QString translate(const char *, const char *text, const char *, int) const override {
            return QLatin1String(text) == QLatin1String("en-GB")     ? QStringLiteral("de")
                   : QLatin1String(text) == QLatin1String("Zoom in") ? QStringLiteral("\"Näher\"")
                   : QLatin1String(text) == QLatin1String("Bundled map")
                       ? QStringLiteral("<b>Mitgelieferte Karte")
                       : QString();
        }
        bool isEmpty() const override { return false; }
    } german;
    QVERIFY(QCoreApplication::installTranslator(&german));
    PageDesk desk;
    QCOMPARE(desk.ask(QStringLiteral("document.documentElement.lang")).toString(),
             QStringLiteral("de"));
    QCOMPARE(desk.ask(QStringLiteral("document.getElementById('zoom-in').title")).toString(),
             QStringLiteral("\"Näher\""));
    QCOMPARE(desk.ask(QStringLiteral("document.getElementById('zoom-out').title")).toString(),
             QStringLiteral("Zoom out"));
    QVERIFY(desk.becomes(QStringLiteral(
        "document.getElementById('source').textContent === '<b>Mitgelieferte Karte'")));
}

QTEST_MAIN(MapPageTest)
#include "map_page_test.moc"
