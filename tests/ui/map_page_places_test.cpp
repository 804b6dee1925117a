// Positions and names that people type on the map page.

#include "page_desk.h"

namespace {

/// The call that reads the text.
QString reading(const QString &text) {
    const QByteArray json = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return QStringLiteral("mapPage.coordinates(%1[0])").arg(QString::fromUtf8(json));
}

} // namespace

class MapPagePlacesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { desks_.clear(); }
    void positionsAreReadInTheUsualForms_data();
    void positionsAreReadInTheUsualForms();
    void whatIsNotClearlyAPositionIsNotTakenForOne_data();
    void whatIsNotClearlyAPositionIsNotTakenForOne();
    void aPlaceIsFoundByName();
    void theKeyboardChoosesAPlace();
    void theFieldTakesPositions();
    void answersThatComeLateAreDropped();
    void namesAreOnlyText();

private:
    PageDesks desks_;
};

void MapPagePlacesTest::positionsAreReadInTheUsualForms_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("lat");
    QTest::addColumn<double>("lon");

    const double lat = 47.3825;
    const double lon = 8.5432;
    for (const char *text : {"47.3825, 8.5432",
                             "47.3825,8.5432",
                             "47.3825 8.5432",
                             " 47.3825\t8.5432\n",
                             "47.3825;8.5432",
                             "+47.3825 +8.5432",
                             "47.3825° 8.5432°",
                             "47.3825 N 8.5432 E",
                             "47.3825N, 8.5432E",
                             "n47.3825 e8.5432",
                             "8.5432 E 47.3825 N",
                             "E 8.5432 N 47.3825",
                             "47.3825N 8.5432",
                             "N 47° 22.950' E 8° 32.592'",
                             "N 47 22.950 E 8 32.592",
                             "47° 22.950′ N, 8° 32.592′ E",
                             "47 22.950, 8 32.592",
                             "47°22'57.0\"N 8°32'35.52\"E",
                             "47°22′57.0″N 8°32′35.52″E",
                             "47° 22’ 57.0” 8° 32’ 35.52”",
                             "47°22'57.0''N 8°32'35.52''E",
                             "47 22 57.0 8 32 35.52",
                             "47º22'57\"N 008º32'35.52\"E",
                             "geo:47.3825,8.5432",
                             "GEO:47.3825,8.5432,412;u=10?z=12",
                             "47,3825; 8,5432",
                             "47,3825 8,5432",
                             "47,3825, 8,5432",
                             "N 47° 22,950' E 8° 32,592'"}) {
        QTest::newRow(text) << QString::fromUtf8(text) << lat << lon;
    }
    QTest::newRow("south and west") << "33°52'10\"S 151°12'30\"W" << -33.869444 << -151.208333;
    QTest::newRow("signs") << "-33.9 18.4" << -33.9 << 18.4;
    QTest::newRow("minus") << "\u221233.9, \u221218.4" << -33.9 << -18.4;
    QTest::newRow("signed degrees and minutes") << "-0 30, 18 24" << -0.5 << 18.4;
    QTest::newRow("whole degrees") << "47, 8" << 47.0 << 8.0;
    QTest::newRow("the corner") << "-90, -180" << -90.0 << -180.0;
}

void MapPagePlacesTest::positionsAreReadInTheUsualForms() {
    QFETCH(QString, text);
    QFETCH(double, lat);
    QFETCH(double, lon);
    const QVariantMap position = desks_.kept().ask(reading(text)).toMap();
    QVERIFY2(position.contains(QStringLiteral("lat")), qPrintable(text));
    QVERIFY(qAbs(position[QStringLiteral("lat")].toDouble() - lat) < 1e-6);
    QVERIFY(qAbs(position[QStringLiteral("lon")].toDouble() - lon) < 1e-6);
}

void MapPagePlacesTest::whatIsNotClearlyAPositionIsNotTakenForOne_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("looksLikeOne");

    for (const char *text :
         {"47,8", "47,3825", "47,3 8", "47,38,8,54", "91, 8", "47.5, 180.1", "47 N 8 N", "8 E 47 W",
          "47°61' 8°10'", "47.5 22 8.5 32", "-47.5 S 8 E", "47 22 57 8 32", "1 2 3 4 5 6 7 8",
          "geo:95,8", "47 -22, 8 10", "47' 8'", "47.38; 8.54; 3"}) {
        QTest::newRow(text) << QString::fromUtf8(text) << true;
    }
    for (const char *text : {"", " ", "Zürich", "1770", "N", "St. Gallen 9000", "IMG_0412.JPG 12",
                             "2008-06-01T17:41", "geo:here", "0);alert(1)//"}) {
        QTest::newRow(text) << QString::fromUtf8(text) << false;
    }
    QTest::newRow("long") << QString(100'000, QLatin1Char('1')) << false;
}

void MapPagePlacesTest::whatIsNotClearlyAPositionIsNotTakenForOne() {
    QFETCH(QString, text);
    QFETCH(bool, looksLikeOne);
    const QVariantMap answer = desks_.kept().ask(reading(text)).toMap();
    QVERIFY(!answer.contains(QStringLiteral("lat")));
    QCOMPARE(answer.contains(QStringLiteral("refused")), looksLikeOne);
}

void MapPagePlacesTest::aPlaceIsFoundByName() {
    PageDesk &desk = desks_.fresh();
    desk.click({500, 20});
    desk.type(QStringLiteral("reykjav"));
    QVERIFY(desk.becomes(QStringLiteral("document.querySelectorAll('#places li').length > 0")));
    const QString first =
        desk.ask(QStringLiteral("document.querySelector('#places li').textContent")).toString();
    QVERIFY2(first.contains(QLatin1String("Reykjav")) && first.contains(QLatin1String("Iceland")),
             qPrintable(first));
    desk.click({500, 56});
    QVERIFY(isSame(desk.seenInMiddle(), QStringLiteral("64.13548:-21.89541:13")));
    QVERIFY(desk.ask(QStringLiteral("document.getElementById('places').hidden")).toBool());
    QCOMPARE(desk.reports().filter(QStringLiteral("position")), QStringList());
}

void MapPagePlacesTest::theKeyboardChoosesAPlace() {
    PageDesk &desk = desks_.fresh();
    const QString before = desk.seenInMiddle();
    desk.click({500, 20});
    desk.type(QStringLiteral("san"));
    QVERIFY(desk.becomes(QStringLiteral("document.querySelectorAll('#places li').length > 2")));
    desk.key(Qt::Key_Escape);
    QVERIFY(desk.ask(QStringLiteral("document.getElementById('places').hidden")).toBool());
    desk.type(QStringLiteral("san"));
    QVERIFY(desk.becomes(QStringLiteral("document.querySelectorAll('#places li').length > 2")));
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}) {
        desk.key(key);
    }
    const QString second =
        desk.ask(QStringLiteral("document.querySelectorAll('#places li .name')[1].textContent"))
            .toString();
    QCOMPARE(
        desk.ask(QStringLiteral("document.querySelector('[aria-selected=true] .name').textContent"))
            .toString(),
        second);
    QCOMPARE(desk.seenInMiddle(), before);
    desk.key(Qt::Key_Return);
    QVERIFY(desk.seenInMiddle() != before);
    QCOMPARE(desk.ask(QStringLiteral("document.getElementById('place').value")).toString(), second);
}

void MapPagePlacesTest::theFieldTakesPositions() {
    PageDesk &desk = desks_.fresh();
    desk.feed(R"({"kind":"selection","ids":[],"count":1,"clickPlaces":true})");
    desk.click({500, 20});
    desk.type(QStringLiteral("47.5 N 8.25 E"));
    desk.key(Qt::Key_Return);
    QVERIFY(isAt(desk.seenInMiddle(), 47.5, 8.25, 13));
    QCOMPARE(desk.reports().filter(QStringLiteral("position")), QStringList());
    desk.key(Qt::Key_Escape);
    desk.type(QStringLiteral("147.5 8.25"));
    desk.key(Qt::Key_Return);
    QVERIFY(desk.becomes(QStringLiteral("!document.getElementById('note').hidden")));
    QVERIFY(isAt(desk.seenInMiddle(), 47.5, 8.25, 13));
}

void MapPagePlacesTest::answersThatComeLateAreDropped() {
    PageDesk desk({600, 400}, "none", QStringLiteral(R"(
        var asked = [];
        const real = fetch;
        fetch = (address, options) => address.startsWith("search")
            ? new Promise(answer => asked.push(name => answer(new Response(JSON.stringify(
                [{name, region: "", country: "", lat: 1, lon: 2}])))))
            : real(address, options);
    )"));
    desk.click({500, 20});
    desk.type(QStringLiteral("ber"));
    QVERIFY(desk.becomes(QStringLiteral("asked.length === 1")));
    desk.type(QStringLiteral("n"));
    QVERIFY(desk.becomes(QStringLiteral("asked.length === 2")));
    desk.ask(QStringLiteral("asked[1]('Bern')"));
    QVERIFY(desk.becomes(QStringLiteral("document.querySelector('#places li') !== null")));
    desk.ask(QStringLiteral("var settled = false; asked[0]('Berlin');"
                            "setTimeout(() => setTimeout(() => { settled = true; }))"));
    QVERIFY(desk.becomes(QStringLiteral("settled")));
    QCOMPARE(desk.ask(QStringLiteral("document.querySelector('#places li .name').textContent"))
                 .toString(),
             QStringLiteral("Bern"));
}

void MapPagePlacesTest::namesAreOnlyText() {
    PageDesk desk({600, 400}, "none", QStringLiteral(R"(
        const real = fetch;
        const name = "<img src=x onerror='hacked = 1'>";
        fetch = (address, options) => address.startsWith("world") ? real(address, options)
            : Promise.resolve(new Response(JSON.stringify([
                {name, region: name, country: name, lat: 47, lon: 8}, {name: 7, lat: "x"}])));
    )"));
    desk.click({500, 20});
    desk.type(QStringLiteral("x"));
    QVERIFY(desk.becomes(QStringLiteral("document.querySelectorAll('#places li').length === 1")));
    desk.key(Qt::Key_Return);
    QVERIFY(isAt(desk.seenInMiddle(), 47, 8, 13));
    QCOMPARE(desk.ask(QStringLiteral("document.querySelectorAll('img').length")).toInt(), 0);
}

QTEST_MAIN(MapPagePlacesTest)
#include "map_page_places_test.moc"
