#include "persistence/context.h"
#include "platform/notification_centre.h"
#include "store/degrees.h"
#include "store/image_data.h"
#include "store/library_model.h"
#include "store/offset.h"
#include "store/track.h"
#include "store/track_part.h"
#include "store/track_part_best.h"

#include <QtTest>

#include <array>
#include <ctime>
#include <set>

using namespace pinmora;

class RecordsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
        tzset();
    }

    void everyKeyKeepsNothingZeroAndEmptyApart();
    void pointTimesAreReadAsLocalClockTime_data();
    void pointTimesAreReadAsLocalClockTime();
    void aTrackIsASetOfPoints();
    void deletingATrackDeletesItsPointsAndFreesTheBestPoint();
    void offsetsAreSummedAsTheyStand_data();
    void offsetsAreSummedAsTheyStand();
    void aNegativeBestPointIsNone();

private:
    NotificationCentre notifications;
    LibraryModel model{notifications};
    Context context{model};
};

/// Every attribute of every entity is written and read by key, so that a table row that names the
/// wrong member shows.
void RecordsTest::everyKeyKeepsNothingZeroAndEmptyApart() {
    for (const EntityDescription *entity : model.entities()) {
        Record &record = context.insertNewObjectForEntityForName(entity->name());
        QVERIFY(&record.entity() == entity);
        std::int32_t number = 0;
        std::vector<std::pair<std::string_view, Value>> written;
        for (const Property &property : entity->properties()) {
            if (property.kind != Property::Kind::Attribute) {
                continue;
            }
            Value value;
            switch (property.type) {
            case ValueType::String:
                value = Value(number == 0 ? std::string() : std::to_string(number));
                break;
            case ValueType::DateTime:
                value = Value(Date(std::chrono::seconds(number)));
                break;
            case ValueType::Data:
                value = Value(Bytes(static_cast<std::size_t>(number)));
                break;
            case ValueType::Bool:
                value = Value(number % 2 == 0);
                break;
            case ValueType::Integer:
                value = Value(number);
                break;
            case ValueType::Float:
            case ValueType::Number:
                value = Value(number + 0.5);
                break;
            }
            record.setPrimitiveValue(value, property.name);
            written.emplace_back(property.name, value);
            ++number;
        }
        for (const auto &[key, value] : written) {
            QVERIFY2(record.valueForKey(key) == value, key.data());
            record.setPrimitiveValue({}, key);
            QVERIFY2(!record.valueForKey(key).hasValue(), key.data());
        }
    }
}

void RecordsTest::pointTimesAreReadAsLocalClockTime_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<qint64>("utc"); // seconds; -1: no time
    QTest::addColumn<QByteArray>("shown");
    QTest::newRow("summer") << QByteArray("2008-05-12T14:05:09Z") << 1210593909LL
                            << QByteArray("12 May 2008 14:05:09");
    QTest::newRow("winter, one-digit day")
        << QByteArray("2008-01-02T03:04:05Z") << 1199239445LL << QByteArray("2 Jan 2008 03:04:05");
    QTest::newRow("fraction") << QByteArray("2008-05-12T14:05:09.250Z") << -1LL << QByteArray();
    QTest::newRow("no T, no Z") << QByteArray("2008-05-12 14:05:09") << -1LL << QByteArray();
    QTest::newRow("no such day") << QByteArray("2008-04-31T14:05:09Z") << -1LL << QByteArray();
    QTest::newRow("empty") << QByteArray("") << -1LL << QByteArray();
}

void RecordsTest::pointTimesAreReadAsLocalClockTime() {
    QFETCH(QByteArray, text);
    QFETCH(qint64, utc);
    QFETCH(QByteArray, shown);
    auto &point = context.insert<track_part>();
    point.setTimeWithDate(Date());
    point.setValue(text.toStdString(), "time");
    QCOMPARE(point.time().has_value(), utc >= 0);
    if (utc >= 0) {
        QCOMPARE(point.time()->time_since_epoch() / std::chrono::seconds(1), utc);
    }
    QCOMPARE(point.timeString(), shown.toStdString());
    point.setValue(Value(Date(std::chrono::seconds(5))), "timeWithDate");
    QVERIFY(point.time() == Date(std::chrono::seconds(5)));
    point.setValue(point.valueForKey("time"), "time"); // what was read can be written back
    QVERIFY(point.time() == Date(std::chrono::seconds(5)));
    point.setValue({}, "timeWithDate");
    QVERIFY(!point.time());
}

void RecordsTest::aTrackIsASetOfPoints() {
    auto &walk = context.insert<track>();
    auto &drive = context.insert<track>();
    std::vector<track_part *> points;
    for (int i = 0; i < 5; ++i) {
        points.push_back(&context.insert<track_part>());
        walk.addTrack_partObject(*points.back());
        walk.addTrack_partObject(*points.back());
    }
    QCOMPARE(walk.points().size(), 5u);
    drive.removeTrack_partObject(*points[0]);
    QCOMPARE(walk.points().size(), 5u);
    points[1]->setTrack(&drive); // from the middle of one set into another
    walk.removeTrack_partObject(*points[4]);
    walk.removeTrack_partObject(*points[0]);
    const std::set<track_part *> left(walk.points().begin(), walk.points().end());
    QVERIFY(left == (std::set<track_part *>{points[2], points[3]}));
    QVERIFY(drive.points() == std::vector<track_part *>{points[1]});
    QVERIFY(points[0]->valueForKey("track") == Value());
    QVERIFY(walk.valueForKey("track_part").toRecordList().size() == 2);
}

void RecordsTest::deletingATrackDeletesItsPointsAndFreesTheBestPoint() {
    Context own(model);
    auto &walk = own.insert<track>();
    for (int i = 0; i < 3; ++i) {
        own.insert<track_part>().setTrack(&walk);
    }
    own.insert<track_part>();
    auto &best = own.insert<track_part_best>();
    best.setTrack(&walk);
    own.deleteObject(walk);
    QCOMPARE(own.count<track_part>(), 1u);
    QVERIFY(best.track() == nullptr);
}

void RecordsTest::offsetsAreSummedAsTheyStand_data() {
    QTest::addColumn<QList<int>>("fields"); // plus, hours, minutes, seconds; shorter: absent
    QTest::addColumn<int>("seconds");
    QTest::newRow("fresh") << QList<int>{} << 0;
    QTest::newRow("no direction") << QList<int>{0, 1} << -3600;
    QTest::newRow("no carry") << QList<int>{1, 1, 75, 0} << 8100;
    QTest::newRow("all") << QList<int>{1, 2, 30, 5} << 9005;
    QTest::newRow("subtracted") << QList<int>{0, 0, 1, 29} << -89;
    QTest::newRow("largest field") << QList<int>{1, 0, 0, 2147483647} << 2147483647;
}

void RecordsTest::offsetsAreSummedAsTheyStand() {
    QFETCH(QList<int>, fields);
    QFETCH(int, seconds);
    auto &clock = context.insert<offset>();
    const std::array keys = {"plus", "hours", "minutes", "seconds"};
    for (qsizetype i = 0; i < fields.size(); ++i) {
        clock.setValue(Value(fields[i]), keys[static_cast<std::size_t>(i)]);
    }
    QCOMPARE(clock.signedOffset().count(), std::int64_t(seconds));
    QVERIFY(!clock.not_enabled());
}

void RecordsTest::aNegativeBestPointIsNone() {
    auto &best = context.insert<track_part_best>();
    QVERIFY(best.bestTrackSet());
    best.setPoint_id(-1);
    QVERIFY(best.valueForKey("bestTrackSet") == Value(false));
    best.setPoint_id(0);
    QVERIFY(best.bestTrackSet());
}

QTEST_APPLESS_MAIN(RecordsTest)
#include "records_test.moc"
