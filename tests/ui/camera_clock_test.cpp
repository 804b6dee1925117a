#include "ui/camera_row.h"
#include "ui/photo_table_model.h"
#include "ui/stepper_box.h"
#include "ui/window_desk.h"

#include <QAction>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLabel>

using namespace pinmora;
using std::chrono::seconds;
using enum ActionName;

namespace {

constexpr const char *canon = "Canon, Canon EOS 5D";

struct ClockDesk : WindowDesk {
    ClockDesk() {
        for (const char *name : {"a", "b"}) {
            addPhoto(name, "2026:05:08 10:00:00").setCamera(canon);
        }
        addPhoto("c", "2026:05:08 10:00:20");
        settle();
    }

    bool does(ActionName name) const { return action(name)->isEnabled(); }
    void press(const char *text) {
        QTest::mouseClick(button(text), Qt::LeftButton);
        settle();
    }
    template <class Widget>
    Widget *inSheet(const QString &name) const {
        for (auto *widget : sheet()->findChildren<Widget *>()) {
            if (widget->accessibleName().startsWith(name)) {
                return widget;
            }
        }
        qFatal("nothing in the sheet is called %s", qPrintable(name));
    }
    bool sheetSays(const QString &text) const {
        const QList<QLabel *> labels = sheet()->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
                           [&text](const QLabel *label) { return label->text() == text; });
    }
    seconds clock(const char *camera) { return parts().clockOffset.clock(camera); }
};

} // namespace

class CameraClockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void aTrueTimeIsTyped() {
        ClockDesk desk;
        QVERIFY(!desk.does(PhotoWasTakenAt));
        desk.clickRow(0);
        desk.clickRow(1, Qt::ControlModifier);
        QVERIFY(!desk.does(PhotoWasTakenAt));
        desk.clickRow(2);
        desk.action(PhotoWasTakenAt)->trigger();
        desk.settle();
        auto *const taken = desk.sheet()->findChild<QDateTimeEdit *>();
        QCOMPARE(taken->text(), QStringLiteral("8 May 2026 10:00:20"));
        QTest::keyClicks(taken, QStringLiteral("12")); // the hour is selected
        QVERIFY(desk.sheetSays(QStringLiteral("The camera was 2 h slow.")));
        QTest::keyClick(taken, Qt::Key_Escape);
        desk.settle();
        QVERIFY(!desk.sheet());
        QCOMPARE(desk.clock(""), seconds(0));

        desk.action(PhotoWasTakenAt)->trigger();
        desk.settle();
        QTest::keyClicks(desk.sheet()->findChild<QDateTimeEdit *>(), QStringLiteral("09"));
        desk.press("Set Clock");
        QVERIFY(!desk.sheet());
        QCOMPARE(desk.clock(""), seconds(-3600));
    }

    void aCameraGetsItsOwnClock() {
        ClockDesk desk;
        desk.action(ShowCameras)->trigger();
        QCOMPARE(desk.sheet()->findChildren<CameraRow *>().size(), 2);
        QVERIFY(!desk.inSheet<QCheckBox>(QStringLiteral("(not told)"))->isEnabled());
        QVERIFY(desk.sheetSays(QStringLiteral("(not told)")));
        desk.inSheet<QCheckBox>(QStringLiteral("Canon EOS 5D"))->click();
        desk.settle();
        auto *const row = desk.inSheet<CameraRow>(QStringLiteral("Canon EOS 5D"));
        for (auto *button : row->findChildren<QAbstractButton *>()) {
            if (button->accessibleName() == QStringLiteral("Subtract from the camera's time")) {
                button->click(); // a zero does not keep it
            }
        }
        desk.settle();
        auto *const minutes = row->findChildren<StepperBox *>().at(1);
        minutes->setFocus();
        minutes->selectAll();
        QTest::keyClicks(minutes, QStringLiteral("90"));
        QTest::keyClick(minutes, Qt::Key_Return);
        desk.settle();
        QCOMPARE(desk.clock(canon), seconds(-59 * 60)); // the largest number of minutes
        QVERIFY(desk.sheetSays(QStringLiteral("The camera was 59 min fast.")));
        QVERIFY(desk.sheetSays(QStringLiteral("Common clock")));
        desk.press("Close");
        QVERIFY(!desk.sheet());
        QCOMPARE(desk.clock(""), seconds(0));

        desk.clickRow(0);
        QVERIFY(desk.named<QLabel>("Canon EOS 5D: 59 min fast")->isVisible());
        desk.clickRow(2);
        QVERIFY(desk.named<QLabel>("The camera’s clock was right.")->isVisible());
    }

    void logsAreAppliedToSome() {
        ClockDesk desk;
        QVERIFY(!desk.does(ApplyToUnplaced));
        desk.addPoint("2026-05-08T10:00:17Z", "47.1", "8.5");
        desk.settle();
        QVERIFY(!desk.does(ApplyToSelected));
        desk.clickRow(2);
        QVERIFY(desk.does(ApplyToSelected) && desk.does(ApplyToUnplaced));
        QVERIFY(desk.does(PickTrackPoint));
        desk.action(PickTrackPoint)->trigger();
        QVERIFY(desk.parts().pointPicking.armed.get());
        QVERIFY(desk.action(PickTrackPoint)->isChecked());
        QTest::keyClick(desk.photoTable(), Qt::Key_Escape);
        QVERIFY(!desk.parts().pointPicking.armed.get());
        QVERIFY(!desk.action(PickTrackPoint)->isChecked());
        desk.action(ToggleMarker)->trigger();
        QTest::keyClick(desk.photoTable(), Qt::Key_Escape);
        QCOMPARE(desk.action(ToggleMarker)->text(), QStringLiteral("Add Marker"));
        desk.action(PlaceAtNearestPoint)->trigger();
        desk.settle();
        QVERIFY(desk.photo(2).lat_and_lon());
        desk.action(Undo)->trigger();
        desk.action(ApplyToSelected)->trigger();
        desk.settle();
        QVERIFY(desk.photo(2).lat_and_lon() && !desk.photo(0).lat_and_lon());
        const QAbstractItemModel &model = *desk.photoTable()->model();
        QVERIFY(model.index(2, 2)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .startsWith(QStringLiteral("From the log, ")));
        const QModelIndex position = model.index(2, PhotoTableModel::Position);
        QCOMPARE(position.data(PhotoTableModel::OriginSign).toString(), QStringLiteral("from-log"));
        QCOMPARE(position.data(PhotoTableModel::OriginGap).toString(), QString());
        desk.parts().clockOffset.setClock("", seconds(600)); // it was placed before that
        desk.settle();
        QCOMPARE(position.data(PhotoTableModel::OriginGap).toString(), QStringLiteral("0:03"));
        desk.parts().clockOffset.setClock("", seconds(0));
        desk.action(ApplyToUnplaced)->trigger();
        desk.settle();
        QVERIFY(desk.photo(0).lat_and_lon());
        QVERIFY(!desk.does(ApplyToUnplaced));
    }
};

QTEST_MAIN(CameraClockTest)
#include "camera_clock_test.moc"
