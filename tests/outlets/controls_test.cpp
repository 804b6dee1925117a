#include "outlets/editing.h"
#include "outlets/selector.h"
#include "outlets/stepper.h"
#include "rows.h"

using namespace pinmora;

using Steps = QList<int>;

class ControlsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stepping_data() {
        const auto row = test::rows<int, bool, Steps, int, int>();
        row("up and down", 30, false, {1, 3, -2}, 32, 3);
        row("stays at the top", 58, false, {1, 1, 1}, 59, 1);
        row("stays at the bottom", 3, false, {-5, -1}, 0, 1);
        row("over the top", 59, true, {1}, 0, 1);
        row("under the bottom", 0, true, {-1}, 59, 1);
        row("several times around", 1, true, {-122}, 59, 1);
        row("once around", 1, true, {60}, 1, 0);
        row("from beyond the range", 900, false, {-1}, 58, 1);
        row("very far", 1, false, {INT_MAX, INT_MIN}, 0, 2);
    }

    void stepping() {
        const auto [from, wraps, steps, value, times] = test::fetch<int, bool, Steps, int, int>();
        Stepper stepper;
        stepper.maximum = 59;
        stepper.wraps = wraps;
        stepper.value.set(from);
        int heard = 0;
        const Connection connection = stepper.stepped.connect([&] { ++heard; });
        for (int step : steps) {
            stepper.stepBy(step);
        }
        QCOMPARE(stepper.value.get(), value);
        QCOMPARE(heard, times);

        stepper.enabled.set(false);
        stepper.stepBy(-1);
        stepper.stepBy(1);
        QCOMPARE(stepper.value.get(), value);
    }

    void choosingTheSameAgainIsAChoice() {
        Selector selector;
        QString heard;
        const Connection connection =
            selector.chosen.connect([&] { heard += QString::number(selector.selectedTag.get()); });
        selector.choose(1);
        selector.choose(1);
        selector.choose(0);
        selector.selectedTag.set(1); // shown, not chosen
        selector.enabled.set(false);
        selector.choose(0);
        QCOMPARE(heard, QStringLiteral("110"));
    }

    void oneEditorThatRefusesIsEnough() {
        Editing editing;
        QVERIFY(editing.commitEditing());
        QString asked;
        bool fit = false;
        const Connection first = editing.addEditor([&] { return asked += u'1', true; });
        Connection second = editing.addEditor([&] { return asked += u'2', fit; });
        const Connection third = editing.addEditor([&] { return asked += u'3', true; });
        QVERIFY(!editing.commitEditing());
        fit = true;
        QVERIFY(editing.commitEditing());
        second = {};
        fit = false;
        QVERIFY(editing.commitEditing());
        QCOMPARE(asked, QStringLiteral("12312313"));
    }
};

QTEST_APPLESS_MAIN(ControlsTest)
#include "controls_test.moc"
