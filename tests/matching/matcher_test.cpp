#include "matching/matcher.h"

#include "matching/library.h"
#include "store/image.h"
#include "store/offset.h"

#include <QTest>

using namespace pinmora;
using namespace std::chrono_literals;

namespace {

/// Remembers in which order a photo's position was set.
struct SetKeys : ChangeObserver {
    void didChange(Record &, std::string_view key) override {
        keys += key == "lat" || key == "lon" || key == "alt" ? std::string(key) + " " : "";
    }
    std::string keys;
};

} // namespace

class MatcherTest : public QObject {
    Q_OBJECT

    struct Desk : Library {
        offset &clockOffset = context.insert<offset>();
        Matcher matcher{context, clockOffset};
        image &photo = context.insert<image>();
        Date noon;

        Desk() {
            photo.setDate("2008:05:12 12:00:00");
            photo.setHasChangesFalse();
            noon = *photo.date();
        }
    };

private Q_SLOTS:
    void correctedTime_data() {
        using Number = std::optional<int>;
        QTest::addColumn<Number>("plus");
        QTest::addColumn<Number>("hours");
        QTest::addColumn<Number>("minutes");
        QTest::addColumn<Number>("seconds");
        QTest::addColumn<qint64>("added");

        const auto row = [](const char *name, Number plus, Number hours, Number minutes,
                            Number seconds, qint64 added) {
            QTest::newRow(name) << plus << hours << minutes << seconds << added;
        };
        row("fresh record", {}, {}, {}, {}, 0);
        row("minutes beyond the hour", 1, 1, 75, 0, 8'100);
        row("subtracted", 0, 1, 75, 0, -8'100);
        row("no sign is subtracted", {}, 1, {}, 1, -3'601);
        row("any other sign is added", 7, {}, {}, 90, 90);
        row("more than 32 bits of seconds", 1, 2'147'483'647, 2'147'483'647, 2'147'483'647,
            7'861'937'631'667);
    }

    void correctedTime() {
        using Number = std::optional<int>;
        QFETCH(Number, plus);
        QFETCH(Number, hours);
        QFETCH(Number, minutes);
        QFETCH(Number, seconds);
        QFETCH(qint64, added);
        Desk desk;
        desk.clockOffset.setPlus(plus);
        desk.clockOffset.setHours(hours);
        desk.clockOffset.setMinutes(minutes);
        desk.clockOffset.setSeconds(seconds);
        QVERIFY(desk.matcher.correctedTime(desk.photo) == desk.noon + std::chrono::seconds(added));
        desk.photo.setDate("none");
        QVERIFY(!desk.matcher.correctedTime(desk.photo));
    }

    void theOffsetIsReadForEachPhoto() {
        Desk desk;
        track_part &elevenOClock = desk.addPoint(desk.noon - 1h);
        track_part &noon = desk.addPoint(desk.noon);
        QCOMPARE(desk.matcher.getLatLonAlt(desk.photo), &noon);
        desk.clockOffset.setHours(1);
        QCOMPARE(desk.matcher.getLatLonAlt(desk.photo), &elevenOClock);
    }

    void placesAPhoto() {
        Desk desk;
        desk.photo.updateLatAndLon({"10", "20"});
        desk.photo.setAlt("5");
        track_part &point = desk.addPoint(desk.noon - 72h, "-33.85670", "-070.1", " 12.50 ");
        SetKeys observer;
        desk.context.addObserver(observer);
        QCOMPARE(desk.matcher.placeAtNearestPoint(desk.photo), &point);
        desk.context.removeObserver(observer);

        QVERIFY(desk.photo.lat() == "-33.85670");
        QVERIFY(desk.photo.lon() == "-070.1");
        QVERIFY(desk.photo.alt() == " 12.50 ");
        QVERIFY(desk.photo.lat_ref() == "S");
        QVERIFY(desk.photo.lon_ref() == "W");
        QCOMPARE(desk.photo.zoom(), std::optional(10));
        QVERIFY(desk.photo.position_source() == PositionSource::log);
        QCOMPARE(observer.keys, "lat lon alt ");

        point.setAlt({});
        QVERIFY(desk.matcher.placeAtNearestPoint(desk.photo));
        QVERIFY(!desk.photo.alt().hasValue());
    }

    void leavesAPhotoAloneWithoutAPointOrADate() {
        Desk desk;
        QCOMPARE(desk.matcher.placeAtNearestPoint(desk.photo), nullptr);
        desk.addPoint({});
        QCOMPARE(desk.matcher.placeAtNearestPoint(desk.photo), nullptr);
        desk.addPoint(desk.noon);
        image &undated = desk.context.insert<image>();
        QCOMPARE(desk.matcher.placeAtNearestPoint(undated), nullptr);
        for (const image *photo : {&desk.photo, &undated}) {
            QVERIFY(!photo->getHasChanges());
            QVERIFY(!photo->lat().hasValue() && !photo->zoom() &&
                    !photo->position_source().hasValue());
        }
    }

    void followsThePoints() {
        Desk desk;
        const auto found = [&] { return desk.matcher.getLatLonAlt(desk.photo); };
        track_part &far = desk.addPoint(desk.noon + 1h);
        QCOMPARE(found(), &far);
        track_part &near = desk.addPoint(desk.noon + 1min);
        QCOMPARE(found(), &near);
        near.setTimeWithDate(desk.noon + 2h);
        QCOMPARE(found(), &far);
        near.setTimeWithDate(desk.noon);
        QCOMPARE(found(), &near);
        near.setLon("");
        QCOMPARE(found(), &far);
        desk.context.deleteObject(far);
        desk.context.commitChanges();
        QCOMPARE(found(), nullptr);
    }

    void observesOnlyWhileItHasAnIndex() {
        Desk desk;
        desk.addPoint(desk.noon + 1h);
        QVERIFY(!desk.context.isObserved());
        desk.matcher.getLatLonAlt(desk.photo);
        desk.matcher.dropIndex();
        QVERIFY(!desk.context.isObserved());
        track_part &imported = desk.addPoint(desk.noon);
        QCOMPARE(desk.matcher.getLatLonAlt(desk.photo), &imported);
        {
            Matcher another(desk.context, desk.clockOffset);
            another.getLatLonAlt(desk.photo);
        }
        desk.matcher.dropIndex();
        QVERIFY(!desk.context.isObserved());
    }
};

QTEST_GUILESS_MAIN(MatcherTest)
#include "matcher_test.moc"
