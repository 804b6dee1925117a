#include "map/feed_messages.h"
#include "map/map_desk.h"
#include "rows.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace pinmora;
using namespace std::chrono_literals;

namespace {

QJsonObject parsed(const std::string &json) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(json), &error);
    if (error.error != QJsonParseError::NoError) {
        qFatal("no JSON: %s", json.c_str());
    }
    return document.object();
}

/// What a page knows that does as the messages say.
struct PageStub {
    explicit PageStub(MapView &shown) : view(shown) {
        view.attach([this](const MapView::Command &command) {
            if (const auto *feed = std::get_if<MapView::Feed>(&command)) {
                hear(parsed(feed->json));
            }
        });
    }
    void hear(const QJsonObject &message) {
        const QString kind = message[u"kind"].toString();
        kinds += kind + u' ';
        if (kind == u"tracks") {
            tracks = message[u"tracks"].toArray();
        } else if (kind == u"selection") {
            selection = message;
        } else {
            if (message[u"all"].toBool()) {
                photos.clear();
            }
            const QJsonArray gone = message[u"gone"].toArray();
            for (const auto &id : gone) {
                photos.remove(id.toInt());
            }
            const QJsonArray given = message[u"photos"].toArray();
            for (const auto &photo : given) {
                photos[photo[u"id"].toInt()] = photo.toObject();
            }
        }
    }
    /// "name lat lon|" of each photo, in the order of their serials.
    QString drawn() const {
        QString text;
        for (const QJsonObject &photo : photos) {
            text += QStringLiteral("%1 %2 %3|")
                        .arg(photo[u"name"].toString())
                        .arg(photo[u"lat"].toDouble())
                        .arg(photo[u"lon"].toDouble());
        }
        return text;
    }
    qsizetype points() const {
        qsizetype count = 0;
        for (const auto &one : tracks) {
            count += one[u"lat"].toArray().size();
        }
        return count;
    }

    MapView &view;
    QString kinds;
    QJsonArray tracks;
    QMap<int, QJsonObject> photos;
    QJsonObject selection;
};

track &addTrack(MapDesk &desk, int points) {
    auto &way = desk.context.insert<track>();
    for (int i = 0; i < points; ++i) {
        way.addTrack_partObject(desk.addPoint(Date(std::chrono::seconds(i)), std::to_string(i % 90),
                                              std::to_string(i % 180)));
    }
    return way;
}

} // namespace

class FeedTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothingIsSaidBeforeAPageIsThere() {
        MapDesk desk;
        PageStub page(desk.webView1);
        desk.pictureArray.select(&desk.addPhoto("47", "8"));
        addTrack(desk, 2);
        QCoreApplication::processEvents();
        QCOMPARE(page.kinds, QString());
        desk.webView1.loaded.emit();
        QCOMPARE(page.kinds, QStringLiteral("tracks photos selection "));
        QCOMPARE(page.drawn(), QStringLiteral("a 47 8|"));
        desk.webView1.loaded.emit();
        QCOMPARE(page.kinds.count(u"selection"), 2);
    }

    void followsThePhotos() {
        MapDesk desk;
        PageStub page(desk.webView1);
        PageStub wizards(desk.webView2);
        desk.webView1.loaded.emit();
        image &a = desk.addPhoto("47", "8", "a");
        image &b = desk.addPhoto("", "", "b");
        QTRY_COMPARE(page.drawn(), QStringLiteral("a 47 8|"));
        b.updateLatAndLon({"-1.5", "2"});
        a.setImage_name("A");
        QTRY_COMPARE(page.drawn(), QStringLiteral("A 47 8|b -1.5 2|"));
        desk.context.deleteObject(a);
        QTRY_COMPARE(page.drawn(), QStringLiteral("b -1.5 2|"));
        desk.undo.undo();
        QTRY_COMPARE(page.drawn(), QStringLiteral("A 47 8|b -1.5 2|"));
        desk.undo.undo();
        QTRY_COMPARE(page.drawn(), QStringLiteral("a 47 8|"));
        desk.undo.redo();
        QTRY_COMPARE(page.drawn(), QStringLiteral("A 47 8|b -1.5 2|"));
        b.setLon("");
        QTRY_COMPARE(page.drawn(), QStringLiteral("A 47 8|"));
        QCOMPARE(wizards.kinds, QString());
        desk.webView2.loaded.emit();
        QCOMPARE(wizards.drawn(), page.drawn());
    }

    void goneAndBackWithinATurnIsThere() {
        MapDesk desk;
        PageStub page(desk.webView1);
        image &photo = desk.addPhoto("47", "8");
        desk.settle();
        desk.webView1.loaded.emit();
        desk.context.deleteObject(photo);
        desk.undo.undo();
        desk.addPhoto("1", "2", "b");
        QTRY_COMPARE(page.drawn(), QStringLiteral("a 47 8|b 1 2|"));
    }

    void followsTheTracks() {
        MapDesk desk;
        PageStub page(desk.webView1);
        desk.webView1.loaded.emit();
        addTrack(desk, 3).setTrack_id(12);
        track &second = addTrack(desk, 4);
        QTRY_COMPARE(page.points(), 7);
        QCOMPARE(page.tracks[0][u"number"].toInt(), 12);
        desk.context.deleteObject(second);
        QTRY_COMPARE(page.points(), 3);
        desk.undo.undo();
        QTRY_COMPARE(page.points(), 7);
        desk.undo.undo();
        QTRY_COMPARE(page.tracks.size(), 0);
    }

    /// Long work that draws itself gives many turns; the tracks are not sent in each of them.
    void longWorkIsNotHeldUp() {
        MapDesk desk;
        PageStub page(desk.webView1);
        addTrack(desk, 20'000);
        desk.settle();
        desk.webView1.loaded.emit();
        page.kinds.clear();
        for (int turn = 0; turn < 100; ++turn) {
            addTrack(desk, 2);
            QCoreApplication::processEvents();
        }
        QVERIFY2(page.kinds.count(u"tracks") < 50, qPrintable(page.kinds));
        QTRY_COMPARE(page.points(), 20'200);
    }

    void selection_data() {
        const auto row = test::rows<int, int, bool, bool>();
        row("none", 0, 0, false, false);
        row("one placed", 1, 0, false, true);
        row("one unplaced", 0, 1, true, true);
        row("two unplaced", 0, 2, false, true);
        row("mixed", 1, 1, false, true);
    }

    void selection() {
        const auto [placed, unplaced, clickPlaces, clickPlacesInWizard] =
            test::fetch<int, int, bool, bool>();
        MapDesk desk;
        PageStub page(desk.webView1);
        PageStub wizards(desk.webView2);
        desk.webView1.loaded.emit();
        desk.webView2.loaded.emit();
        std::vector<image *> photos;
        QJsonArray ids;
        for (int i = 0; i < placed; ++i) {
            photos.push_back(&desk.addPhoto("47", "8"));
            ids.append(static_cast<int>(photos.back()->serial()));
        }
        for (int i = 0; i < unplaced; ++i) {
            photos.push_back(&desk.addPhoto());
        }
        desk.pictureArray.setSelectedObjects(photos);
        QTRY_COMPARE(page.selection[u"count"].toInt(), placed + unplaced);
        QCOMPARE(page.selection[u"ids"].toArray(), ids);
        QCOMPARE(page.selection[u"clickPlaces"].toBool(), clickPlaces);
        QCOMPARE(wizards.selection[u"clickPlaces"].toBool(), clickPlacesInWizard);
        if (unplaced == 1 && placed == 0) {
            photos.front()->updateLatAndLon({"1", "2"});
            QTRY_VERIFY(!page.selection[u"clickPlaces"].toBool());
            QCOMPARE(page.selection[u"ids"].toArray().size(), 1);
        }
    }

    void hostileTexts_data() {
        const auto row = test::rowsByValue<QByteArray, QByteArray, QByteArray>();
        row("47", "</script><img onerror=alert(1)>", "</script><img onerror=alert(1)> 47 8|");
        row("47", "\"}],\"x\":[\\u0022\\", "\"}],\"x\":[\\u0022\\ 47 8|");
        row("47", QByteArray("a\0b\n\x7f", 5), QByteArray("a\0b\n\x7f 47 8|", 11));
        row("47", "Z\xC3\xBCrich \xE2\x80\xA8", "Zürich \u2028 47 8|");
        row("47", "\xFF\xE2\x80", "\uFFFD\uFFFD\uFFFD 47 8|");
        row("0);alert(1)//", "a", "");
        row("\"47\"", "a", "");
        row("4e1", "a", "");
        row("90.5", "a", "");
        row("nan", "a", "");
        row(" -07.50 ", "a", "a -7.5 8|");
        row("+.5", "a", "a 0.5 8|");
    }

    void hostileTexts() {
        const auto [lat, name, drawn] = test::fetch<QByteArray, QByteArray, QByteArray>();
        MapDesk desk;
        PageStub page(desk.webView1);
        image &photo = desk.addPhoto(lat.constData(), "8");
        photo.setImage_name(name.toStdString());
        addTrack(desk, 1).points().front()->setLat(lat.toStdString());
        desk.webView1.loaded.emit();
        QCOMPARE(page.drawn().toUtf8(), drawn);
        QCOMPARE(page.tracks.size(), page.photos.size());
    }

    void pointsAreWhatALogSays() {
        MapDesk desk;
        auto &way = desk.context.insert<track>();
        way.addTrack_partObject(desk.addPoint(Date(1212345678s), "47.3825", "-8.5"));
        way.addTrack_partObject(desk.addPoint({}, "-0.000001", "180"));
        way.addTrack_partObject(desk.addPoint({}, "", ""));
        desk.addPoint({}, "1", "1"); // of no track
        qputenv("TZ", "UTC-2");
        const std::string json = feed_messages::tracks(desk.context);
        qunsetenv("TZ");
        QCOMPARE(json, std::string(R"({"kind":"tracks","tracks":[{"number":1,)"
                                   R"("lat":[47.3825,-1e-06],"lon":[-8.5,180],)"
                                   R"("time":[1212352878,null]}]})"));
    }

    void manyPointsAreThinned_data() {
        // tracks: how many points each has
        const auto row = test::rows<QList<int>, int>();
        row("few", QList{5, 1}, 6);
        row("one too many", QList{5, 2}, 6);
        row("many", QList{1000, 1, 2, 3, 777}, 100);
        row("barely more than ends", QList{50, 50, 50}, 7);
        row("ends only", QList{50, 50, 50}, 6);
    }

    void manyPointsAreThinned() {
        const auto [tracks, most] = test::fetch<QList<int>, int>();
        MapDesk desk;
        int all = 0;
        for (const int points : tracks) {
            auto &way = desk.context.insert<track>();
            for (int i = 0; i < points; ++i) {
                way.addTrack_partObject(desk.addPoint(Date(std::chrono::seconds(i))));
            }
            all += points;
        }
        const QJsonArray sent =
            parsed(feed_messages::tracks(desk.context, static_cast<std::size_t>(most)))[u"tracks"]
                .toArray();
        QCOMPARE(sent.size(), tracks.size());
        int count = 0;
        for (qsizetype i = 0; i < tracks.size(); ++i) {
            const QJsonArray times = sent[i][u"time"].toArray();
            QCOMPARE(times.first().toInt(), 0);
            QCOMPARE(times.last().toInt(), tracks[i] - 1);
            double widest = 0;
            for (qsizetype k = 1; k < times.size(); ++k) {
                QVERIFY(times[k].toInt() > times[k - 1].toInt());
                widest = std::max(widest, times[k].toDouble() - times[k - 1].toDouble());
            }
            const int room = most - 2 * static_cast<int>(tracks.size());
            QVERIFY(room <= 0 || widest <= all / room + 1);
            count += static_cast<int>(times.size());
        }
        QVERIFY(count <= most);
        QVERIFY(all > most || count == all);
    }
};

QTEST_GUILESS_MAIN(FeedTest)
#include "feed_test.moc"
