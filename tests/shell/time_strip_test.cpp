#include "shell/time_strip.h"

#include "persistence/undo_manager.h"
#include "shell/desk.h"

#include <QTest>

using namespace pinmora;
using namespace std::chrono_literals;

namespace {

/// A log of ten minutes, and photos that stand on it, beside it, and nowhere.
struct StripDesk : Desk {
    StripDesk() {
        start();
        auto &way = context().insert<track>();
        way.setTrack_id(7);
        for (int minute = 0; minute <= 10; ++minute) {
            auto &point = context().insert<track_part>();
            point.setLat("47");
            point.setLon("8");
            point.setTime("2026-05-08T10:" + std::string(minute < 10 ? "0" : "") +
                          std::to_string(minute) + ":00Z");
            way.addTrack_partObject(point);
        }
        on = &addPhoto("on", "2026:05:08 10:03:00");
        far = &addPhoto("far", "2026:05:08 09:50:00");
        addPhoto("timeless", "2026:05:08 10:02:00").setNo_capture_time(true);
        settle();
    }

    void settle() {
        for (int turn = 0; turn < 4; ++turn) {
            endTurn();
        }
    }
    TimeStrip &strip() { return parts().timeStrip; }
    TimeStrip::Tick tick(const image *photo) {
        for (const TimeStrip::Tick &one : strip().ticks()) {
            if (one.photo == photo) {
                return one;
            }
        }
        return {};
    }
    std::chrono::seconds moved(const image *photo) {
        return std::chrono::duration_cast<std::chrono::seconds>(tick(photo).at - *photo->date());
    }

    image *on = nullptr;
    image *far = nullptr;
};

} // namespace

class TimeStripTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void showsWhatThereIs() {
        StripDesk desk;
        QCOMPARE(desk.strip().bars().size(), 1U);
        QCOMPARE(desk.strip().bars()[0].number, std::string("7"));
        QVERIFY(desk.strip().bars()[0].to - desk.strip().bars()[0].from == 10min);
        QCOMPARE(desk.strip().ticks().size(), 2U); // not the one without a capture time
        QVERIFY(!desk.tick(desk.on).far);
        QVERIFY(desk.tick(desk.far).far);
        QVERIFY(desk.strip().photosExtent()->from == *desk.far->date());

        desk.far->setDate("2026:05:08 10:04:00");
        QVERIFY(!desk.tick(desk.far).far);
        desk.context().deleteObject(*desk.on);
        QCOMPARE(desk.strip().ticks().size(), 1U);
        desk.delegate.library.removeAllGPSData();
        desk.settle();
        QVERIFY(desk.strip().bars().empty());
        QVERIFY(!desk.tick(desk.far).far);
    }

    void tellsOnceATurn() {
        StripDesk desk;
        int told = 0;
        const Connection connection = desk.strip().changed.connect([&told] { ++told; });
        desk.on->setDate("2026:05:08 10:01:00");
        desk.far->setDate("2026:05:08 10:02:00");
        desk.strip().choose({desk.on}, TimeStrip::Choice::Only);
        desk.settle();
        QCOMPARE(told, 1);
        desk.on->setCity("Bern"); // is not seen here
        desk.settle();
        QCOMPARE(told, 1);
    }

    void choosesPhotos() {
        StripDesk desk;
        using enum TimeStrip::Choice;
        desk.strip().choose({desk.on}, Only);
        QVERIFY(desk.tick(desk.on).selected && !desk.tick(desk.far).selected);
        desk.strip().choose({desk.far}, Also);
        QVERIFY(desk.tick(desk.on).selected && desk.tick(desk.far).selected);
        desk.strip().choose({desk.on}, Toggled);
        QVERIFY(!desk.tick(desk.on).selected && desk.tick(desk.far).selected);
    }

    void turnsTheClock() {
        StripDesk desk;
        UndoManager &undo = *desk.context().undoManager();
        undo.closeStep();
        desk.strip().grasp(*desk.far);
        desk.strip().turnTo(9min);
        desk.strip().turnTo(15min);
        QCOMPARE(desk.strip().turnWords(), std::string("+15 min"));
        QVERIFY(desk.moved(desk.far) == 15min && desk.moved(desk.on) == 15min);
        QVERIFY(!desk.tick(desk.far).far);
        QVERIFY(desk.parts().clockOffset.clock("") == 0s); // nothing is stored yet
        desk.strip().cancel();
        QVERIFY(desk.moved(desk.far) == 0s && desk.tick(desk.far).far);

        desk.strip().grasp(*desk.far);
        desk.strip().turnTo(15min);
        desk.strip().letGo();
        undo.closeStep();
        QVERIFY(desk.parts().clockOffset.clock("") == 15min);
        desk.strip().grasp(*desk.far);
        desk.strip().turnTo(-20min);
        QCOMPARE(desk.strip().turnWords(), std::string("−20 min → −5 min"));
        desk.strip().cancel();
        desk.strip().step(-1h);
        undo.closeStep();
        QVERIFY(desk.moved(desk.far) == -45min);
        undo.undo();
        QVERIFY(desk.moved(desk.far) == 15min);
        undo.undo();
        QVERIFY(desk.moved(desk.far) == 0s);
    }

    void turnsOneCameraOnly() {
        StripDesk desk;
        desk.far->setCamera("Maker, One");
        desk.parts().clockOffset.setHasOwnClock("Maker, One", true);
        desk.strip().grasp(*desk.far);
        desk.strip().turnTo(10min);
        QVERIFY(desk.moved(desk.far) == 10min && desk.moved(desk.on) == 0s);
        desk.strip().letGo();
        desk.strip().grasp(*desk.on);
        desk.strip().turnTo(1min);
        QVERIFY(desk.moved(desk.far) == 10min && desk.moved(desk.on) == 1min);
    }

    void setsTheClockByAMoment() {
        StripDesk desk;
        QVERIFY(!desk.strip().canSetFromMoment());
        desk.select({desk.on});
        QVERIFY(desk.strip().canSetFromMoment());
        desk.strip().setFromMoment(desk.strip().bars()[0].from + 5min + 20s); // nearest: 10:05
        QVERIFY(desk.moved(desk.on) == 2min);
        QVERIFY(desk.on->lat_and_lon());
    }
};

QTEST_GUILESS_MAIN(TimeStripTest)
#include "time_strip_test.moc"
