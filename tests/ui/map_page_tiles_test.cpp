// Maps from a server, and the map page without them.

#include "page_desk.h"
#include "tile_server.h"

class MapPageTilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { desks_.clear(); }
    void tilesAreShownWithTheirSource();
    void nothingIsFetchedThatIsNotSeen();
    void aServerThatFailsIsLeftAlone_data();
    void aServerThatFailsIsLeftAlone();
    void aServerThatFailsLaterIsLeftAlone_data();
    void aServerThatFailsLaterIsLeftAlone();
    void anAddressThatIsNoneLeavesTheBundledMap();
    void withoutAnAddressNothingIsAsked();

private:
    PageDesks desks_;
};

namespace {

const QColor tileColour(0, 200, 0);
const QString offline = QStringLiteral("Offline map. Try again");

QString isSource(const QString &text) {
    return QStringLiteral("document.getElementById('source').textContent === '%1'").arg(text);
}

bool becomesPainted(PageDesk &desk, QColor colour) {
    const QPoint middle(desk.view().width() / 2, desk.view().height() / 2);
    return PageDesk::waitFor([&] { return desk.isPainted(middle, colour); });
}

/// The bundled map is seen there: an own part of the world, so that it must be drawn anew.
bool showsBundledMap(PageDesk &desk, const char *call) {
    desk.ask(QLatin1String(call) + QStringLiteral("; removePointer()"));
    return becomesPainted(desk, QColor(0xf3, 0xf0, 0xe7));
}

} // namespace

void MapPageTilesTest::tilesAreShownWithTheirSource() {
    TileServer server;
    PageDesk desk({600, 400}, server.address());
    QVERIFY(desk.becomes(isSource(QStringLiteral("Online map"))));
    QVERIFY(becomesPainted(desk, tileColour));
    QCOMPARE(desk.ask(QStringLiteral("document.getElementById('credits').textContent")).toString(),
             QStringLiteral("127.0.0.1"));
    // What is drawn lies above the tiles.
    desk.feed(R"({"kind":"tracks","tracks":[{"number":1,"lat":[47,47],"lon":[8,8.2],"time":[]}]})");
    QVERIFY(becomesPainted(desk, QColor(0xd1, 0x46, 0x3f)));
}

void MapPageTilesTest::nothingIsFetchedThatIsNotSeen() {
    TileServer server;
    PageDesk desk({600, 400}, server.address());
    const QString allCame = QStringLiteral(
        "(() => { const tiles = [...document.querySelectorAll('img.leaflet-tile')];"
        "return tiles.length > 0 && tiles.every(tile => tile.complete && tile.naturalWidth); })()");
    QVERIFY(desk.becomes(allCame));
    const int before = server.requests;
    desk.ask(QStringLiteral("movePointerWithZoom(47,8,9,''); removePointer()"));
    QVERIFY(becomesPainted(desk, tileColour));
    QVERIFY(desk.becomes(allCame));
    QVERIFY(desk.ask(QStringLiteral(
                         R"([...document.querySelectorAll("img.leaflet-tile")].every(tile => {
        const box = tile.getBoundingClientRect();
        return box.right > 0 && box.bottom > 0 && box.left < innerWidth && box.top < innerHeight;
    }))"))
                .toBool());
    QVERIFY2(server.requests - before <= 4 * 3, qPrintable(QString::number(server.requests)));
}

void MapPageTilesTest::aServerThatFailsIsLeftAlone_data() {
    QTest::addColumn<int>("mood"); // -1: gone
    QTest::addColumn<QSize>("size");

    const QSize large(600, 400);
    QTest::newRow("refusing") << static_cast<int>(TileServer::Mood::Refusing) << large;
    // All tiles there are have failed before it is known that the server does.
    QTest::newRow("refusing two tiles")
        << static_cast<int>(TileServer::Mood::Refusing) << QSize(500, 60);
    QTest::newRow("silent") << static_cast<int>(TileServer::Mood::Silent) << large;
    QTest::newRow("gone") << -1 << large;
}

void MapPageTilesTest::aServerThatFailsIsLeftAlone() {
    QFETCH(int, mood);
    QFETCH(QSize, size);
    TileServer server;
    if (mood < 0) {
        server.leave();
    } else {
        server.mood = TileServer::Mood(mood);
    }
    PageDesk desk(size, server.address());
    QVERIFY(desk.becomes(isSource(offline), 20'000));
    QCOMPARE(desk.ask(QStringLiteral("document.getElementById('credits').textContent")).toString(),
             QStringLiteral("Natural Earth, GeoNames"));
    if (mood < 0) {
        server.comeBack();
    }
    server.mood = TileServer::Mood::There;
    const int before = server.requests;
    QVERIFY(showsBundledMap(desk, "movePointerWithZoom(46.9402,7.4202,9,'')"));
    QCOMPARE(server.requests, before);
    QCOMPARE(desk.ask(QStringLiteral("errors")).toStringList(), QStringList());
    // Until the person, or the network, wants another try.
    desk.ask(mood < 0 ? QStringLiteral("dispatchEvent(new Event('online'))")
                      : QStringLiteral("document.querySelector('#source button').click()"));
    QVERIFY(desk.becomes(isSource(QStringLiteral("Online map"))));
    QVERIFY(becomesPainted(desk, tileColour));
}

void MapPageTilesTest::aServerThatFailsLaterIsLeftAlone_data() {
    QTest::addColumn<int>("mood");

    QTest::newRow("refusing") << static_cast<int>(TileServer::Mood::Refusing);
    QTest::newRow("silent") << static_cast<int>(TileServer::Mood::Silent);
}

void MapPageTilesTest::aServerThatFailsLaterIsLeftAlone() {
    QFETCH(int, mood);
    TileServer server;
    PageDesk desk({600, 400}, server.address());
    QVERIFY(desk.becomes(isSource(QStringLiteral("Online map"))));
    QVERIFY(becomesPainted(desk, tileColour));
    server.mood = TileServer::Mood(mood);
    QVERIFY(showsBundledMap(desk, "movePointerWithZoom(46.9402,7.4202,9,'')"));
    QVERIFY(desk.becomes(isSource(offline), 20'000));
}

void MapPageTilesTest::anAddressThatIsNoneLeavesTheBundledMap() {
    TileServer server;
    PageDesk desk({600, 400}, server.address("/{nothing}/{z}"));
    QVERIFY(desk.becomes(isSource(offline)));
    QVERIFY(showsBundledMap(desk, "movePointerWithZoom(46.9402,7.4202,9,'')"));
    QVERIFY(desk.pin() == std::nullopt);
    QCOMPARE(server.requests, 0);
}

void MapPageTilesTest::withoutAnAddressNothingIsAsked() {
    PageDesk &desk = desks_.fresh();
    QVERIFY(desk.becomes(isSource(QStringLiteral("Bundled map"))));
    desk.ask(QStringLiteral("dispatchEvent(new Event('online'))"));
    QVERIFY(showsBundledMap(desk, "movePointerWithZoom(46.9402,7.4202,9,'')"));
    QVERIFY(desk.ask(isSource(QStringLiteral("Bundled map"))).toBool());
    QCOMPARE(desk.ask(QStringLiteral("document.querySelectorAll('img').length")).toInt(), 0);
}

QTEST_MAIN(MapPageTilesTest)
#include "map_page_tiles_test.moc"
