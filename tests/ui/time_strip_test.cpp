#include "ui/time_strip_widget.h"

#include "persistence/undo_manager.h"
#include "ui/time_axis.h"
#include "ui/window_desk.h"

#include <QAccessible>
#include <QWheelEvent>

using namespace pinmora;
using namespace std::chrono_literals;

namespace {

struct StripDesk : WindowDesk {
    StripDesk() {
        for (const char *time : {"2026-05-08T10:00:00Z", "2026-05-08T10:30:00Z"}) {
            addPoint(time, "47", "8");
        }
        auto &way = *context().fetch<track>().front();
        for (track_part *point : context().fetch<track_part>()) {
            way.addTrack_partObject(*point);
        }
        for (const char *minute : {"05", "10", "20"}) {
            addPhoto(minute, (std::string("2026:05:08 10:") + minute + ":00").c_str());
        }
        settle();
        settle();
        if (!QTest::qWaitFor([this] { return strip()->isVisible() && strip()->width() > 500; })) {
            qFatal("the strip does not show");
        }
    }

    TimeStripWidget *strip() const { return window->findChild<TimeStripWidget *>(); }
    QPoint at(std::size_t row) { return at(parts().timeStrip.ticks().at(row).at); }
    QPoint at(Date moment) const {
        return {qRound(strip()->axis().xOf(moment)), strip()->height() - 12};
    }
    void drag(QPoint from, QPoint to, bool letGo = true) {
        QTest::mousePress(strip(), Qt::LeftButton, {}, from);
        QTest::mouseMove(strip(), (from + to) / 2);
        QTest::mouseMove(strip(), to);
        if (letGo) {
            QTest::mouseRelease(strip(), Qt::LeftButton, {}, to);
            settle();
        }
    }
    void key(int key, Qt::KeyboardModifiers keys = {}) {
        QTest::keyClick(strip(), Qt::Key(key), keys);
        settle();
    }
    void wheel(QPointF at, QPoint angle, Qt::KeyboardModifiers keys = {}) {
        QWheelEvent event(at, strip()->mapToGlobal(at), {}, angle, Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(strip(), &event);
    }
    std::vector<std::string> selected() {
        std::vector<std::string> names;
        for (const image *photo : parts().arrays.pictureArray.selectedObjects()) {
            names.push_back(photo->image_name().string());
        }
        return names;
    }
    std::chrono::seconds clock() { return parts().clockOffset.clock(""); }
};

using Names = std::vector<std::string>;

Date instant(const char *text) {
    LocalZone zone;
    return *dateFromText(text, "%Y-%m-%d %H:%M:%S", zone);
}

} // namespace

class TimeStripTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void marksStandAtRoundTimes_data() {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::addColumn<QStringList>("labels");
        QTest::newRow("seconds") << QByteArray("2026-05-08 10:00:55")
                                 << QByteArray("2026-05-08 10:01:24")
                                 << QStringList{QStringLiteral("8 May 10:01:00"),
                                                QStringLiteral("10:01:10"),
                                                QStringLiteral("10:01:20")};
        QTest::newRow("half hours")
            << QByteArray("2026-05-08 09:20:00") << QByteArray("2026-05-08 10:40:00")
            << QStringList{QStringLiteral("8 May 09:30"), QStringLiteral("10:00"),
                           QStringLiteral("10:30")};
        QTest::newRow("midnight") << QByteArray("2026-05-08 20:00:00")
                                  << QByteArray("2026-05-09 11:00:00")
                                  << QStringList{QStringLiteral("9 May"), QStringLiteral("06:00")};
        QTest::newRow("days") << QByteArray("2026-05-08 10:00:00")
                              << QByteArray("2026-05-11 11:00:00")
                              << QStringList{QStringLiteral("9 May"), QStringLiteral("10 May"),
                                             QStringLiteral("11 May")};
        QTest::newRow("years") << QByteArray("2000-12-31 23:00:00")
                               << QByteArray("2026-05-08 11:00:00")
                               << QStringList{QStringLiteral("2010"), QStringLiteral("2020")};
    }
    void marksStandAtRoundTimes() {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        const TimeAxis axis(instant(from), instant(to), 300);
        QStringList labels;
        double last = -100;
        for (const TimeAxis::Mark &mark : axis.marks(75)) {
            QVERIFY(mark.x >= last + 75 && mark.x <= 300);
            last = mark.x;
            labels << mark.label;
        }
        QTEST(labels, "labels");
    }

    void aClickSelects() {
        StripDesk desk;
        QTest::mouseClick(desk.strip(), Qt::LeftButton, {}, desk.at(1) + QPoint(3, 0));
        QCOMPARE(desk.selected(), Names{"10"});
        QTest::mouseClick(desk.strip(), Qt::LeftButton, Qt::ControlModifier, desk.at(2));
        desk.settle();
        QCOMPARE(desk.selected(), (Names{"10", "20"}));
        QCOMPARE(desk.photoTable()->selectionModel()->selectedRows().size(), 2);
        QTest::mouseClick(desk.strip(), Qt::LeftButton, {}, desk.at(1) + QPoint(20, 0));
        QCOMPARE(desk.selected().size(), 2U); // there is nothing
        QCOMPARE(desk.clock().count(), 0);
    }

    void aBandSelectsMany() {
        StripDesk desk;
        desk.drag(desk.at(0) - QPoint(20, 0), desk.at(1) + QPoint(20, 0));
        QCOMPARE(desk.selected(), (Names{"05", "10"}));
        QCOMPARE(desk.clock().count(), 0);
    }

    void draggingATickTurnsTheClock() {
        StripDesk desk;
        const QPoint from = desk.at(0);
        const QPoint to = desk.at(2);
        desk.drag(from, to, false);
        QCOMPARE(desk.clock().count(), 0);
        QVERIFY((desk.at(0) - to).manhattanLength() <= 1);
        QTest::keyClick(desk.strip(), Qt::Key_Escape);
        QCOMPARE(desk.at(0), from);
        QTest::mouseRelease(desk.strip(), Qt::LeftButton, {}, to);
        QCOMPARE(desk.clock().count(), 0);

        desk.drag(from, to);
        const auto minutes = std::chrono::round<std::chrono::minutes>(desk.clock());
        QCOMPARE(minutes.count(), 15);
        QVERIFY(desk.selected().empty());
        desk.action(ActionName::Undo)->trigger();
        desk.settle();
        QCOMPARE(desk.clock().count(), 0);
        QCOMPARE(desk.at(0), from);
    }

    void keysStepTheClock() {
        StripDesk desk;
        desk.strip()->setFocus();
        desk.key(Qt::Key_Right);
        desk.key(Qt::Key_Right, Qt::ShiftModifier);
        desk.key(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(desk.clock().count(), 1 + 60 - 3600);
        desk.action(ActionName::Undo)->trigger();
        desk.settle();
        QCOMPARE(desk.clock().count(), 61);
    }

    /// To assistive technology it is a slider, whose value is the clock.
    void theClockIsHeard() {
        StripDesk desk;
        desk.key(Qt::Key_Right, Qt::ShiftModifier);
        QAccessibleInterface *const heard = QAccessible::queryAccessibleInterface(desk.strip());
        QCOMPARE(heard->role(), QAccessible::Slider);
        QCOMPARE(heard->text(QAccessible::Value), QStringLiteral("The camera was 1 min slow."));
        heard->valueInterface()->setCurrentValue(-3600);
        desk.settle();
        QCOMPARE(desk.clock().count(), -3600);
    }

    void theWheelZoomsAndPans() {
        StripDesk desk;
        const QPointF point = desk.at(1);
        const auto spanOf = [](const TimeAxis &axis) { return axis.to() - axis.from(); };
        const TimeAxis before = desk.strip()->axis();
        desk.wheel(point, {0, 240});
        QVERIFY(spanOf(desk.strip()->axis()) < spanOf(before) * 0.51);
        QVERIFY(std::abs(desk.at(1).x() - point.x()) <= 1);
        const TimeAxis zoomed = desk.strip()->axis();
        desk.wheel(point, {0, 120}, Qt::ShiftModifier);
        QVERIFY(desk.strip()->axis().from() < zoomed.from());
        QCOMPARE(spanOf(desk.strip()->axis()).count(), spanOf(zoomed).count());
        QTest::mouseDClick(desk.strip(), Qt::LeftButton, {}, QPoint(1, 3));
        QCOMPARE(desk.strip()->axis().from(), before.from());
    }

    void aDoubleClickOnATrackSetsTheClock() {
        StripDesk desk;
        desk.select({desk.parts().arrays.pictureArray.arrangedObjects().front()});
        const Date end = desk.parts().timeStrip.bars().at(0).to;
        QTest::mouseDClick(desk.strip(), Qt::LeftButton, {}, desk.at(end) - QPoint(8, 0));
        desk.settle();
        QCOMPARE(desk.clock().count(), 25 * 60);
    }

    void photosFarAwayAreCountedAtTheEdge() {
        StripDesk desk;
        const Date from = desk.strip()->axis().from();
        desk.addPhoto("old", "2001:01:01 00:00:00");
        desk.settle();
        desk.settle();
        QVERIFY(from - desk.strip()->axis().from() < 1h); // the tracks can be seen still
        QTest::mouseClick(desk.strip(), Qt::LeftButton, {},
                          QPoint(20, desk.strip()->height() - 24));
        QVERIFY(desk.strip()->axis().from() < instant("2001-01-01 00:00:00"));
    }

    void isNotThereWhenThereIsNothing() {
        WindowDesk desk;
        auto *const strip = desk.window->findChild<TimeStripWidget *>();
        QVERIFY(strip && !strip->isVisible());
        desk.addPhoto("a", "2026:05:08 10:00:00");
        desk.settle();
        QTRY_VERIFY(strip->isVisible());
        const int high = strip->height();
        desk.window->resize(960, 540);
        QTRY_VERIFY(strip->height() < high);
    }
};

QTEST_MAIN(TimeStripTest)
#include "time_strip_test.moc"
