#include "persistence/context.h"
#include "platform/notification_centre.h"
#include "rows.h"
#include "store/degrees.h"
#include "store/image_data.h"
#include "store/library_model.h"
#include "store/offset.h"
#include "store/track.h"
#include "store/track_part.h"
#include "store/track_part_best.h"

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

    /// Every attribute of every entity is written and read by key, so that a table row that names
    /// the wrong member shows.
    void everyKeyKeepsNothingZeroAndEmptyApart() {
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

    void pointTimesAreReadAsLocalClockTime_data() {
        // utc: seconds; -1: no time
        const auto row = test::rows<QByteArray, qint64, QByteArray>();
        row("summer", "2008-05-12T14:05:09Z", 1210593909LL, "12 May 2008 14:05:09");
        row("winter, one-digit day", "2008-01-02T03:04:05Z", 1199239445LL, "2 Jan 2008 03:04:05");
        row("fraction", "2008-05-12T14:05:09.250Z", -1LL, {});
        row("no T, no Z", "2008-05-12 14:05:09", -1LL, {});
        row("no such day", "2008-04-31T14:05:09Z", -1LL, {});
        row("empty", "", -1LL, {});
    }

    void pointTimesAreReadAsLocalClockTime() {
        const auto [text, utc, shown] = test::fetch<QByteArray, qint64, QByteArray>();
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

    void aTrackIsASetOfPoints() {
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

    void deletingATrackDeletesItsPointsAndFreesTheBestPoint() {
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

    void offsetsAreSummedAsTheyStand_data() {
        // fields: plus, hours, minutes, seconds; shorter: absent
        const auto row = test::rows<QList<int>, int>();
        row("fresh", {}, 0);
        row("no direction", {0, 1}, -3600);
        row("no carry", {1, 1, 75, 0}, 8100);
        row("all", {1, 2, 30, 5}, 9005);
        row("subtracted", {0, 0, 1, 29}, -89);
        row("largest field", {1, 0, 0, 2147483647}, 2147483647);
    }

    void offsetsAreSummedAsTheyStand() {
        const auto [fields, seconds] = test::fetch<QList<int>, int>();
        auto &clock = context.insert<offset>();
        const std::array keys = {"plus", "hours", "minutes", "seconds"};
        for (qsizetype i = 0; i < fields.size(); ++i) {
            clock.setValue(Value(fields[i]), keys[static_cast<std::size_t>(i)]);
        }
        QCOMPARE(clock.signedOffset().count(), std::int64_t(seconds));
        QVERIFY(!clock.not_enabled());
    }

    void aNegativeBestPointIsNone() {
        auto &best = context.insert<track_part_best>();
        QVERIFY(best.bestTrackSet());
        best.setPoint_id(-1);
        QVERIFY(best.valueForKey("bestTrackSet") == Value(false));
        best.setPoint_id(0);
        QVERIFY(best.bestTrackSet());
    }

private:
    NotificationCentre notifications;
    LibraryModel model{notifications};
    Context context{model};
};

QTEST_APPLESS_MAIN(RecordsTest)
#include "records_test.moc"
