#include "outlets/editing.h"
#include "outlets/selector.h"
#include "outlets/stepper.h"

#include <QTest>

using namespace pinmora;

using Steps = QList<int>;

class ControlsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stepping_data() {
        QTest::addColumn<int>("from");
        QTest::addColumn<bool>("wraps");
        QTest::addColumn<Steps>("steps");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("times");

        QTest::newRow("up and down") << 30 << false << Steps{1, 3, -2} << 32 << 3;
        QTest::newRow("stays at the top") << 58 << false << Steps{1, 1, 1} << 59 << 1;
        QTest::newRow("stays at the bottom") << 3 << false << Steps{-5, -1} << 0 << 1;
        QTest::newRow("over the top") << 59 << true << Steps{1} << 0 << 1;
        QTest::newRow("under the bottom") << 0 << true << Steps{-1} << 59 << 1;
        QTest::newRow("several times around") << 1 << true << Steps{-122} << 59 << 1;
        QTest::newRow("once around") << 1 << true << Steps{60} << 1 << 0;
        QTest::newRow("from beyond the range") << 900 << false << Steps{-1} << 58 << 1;
        QTest::newRow("very far") << 1 << false << Steps{INT_MAX, INT_MIN} << 0 << 2;
    }

    void stepping() {
        QFETCH(int, from);
        QFETCH(bool, wraps);
        QFETCH(Steps, steps);
        Stepper stepper;
        stepper.maximum = 59;
        stepper.wraps = wraps;
        stepper.value.set(from);
        int times = 0;
        const Connection connection = stepper.stepped.connect([&] { ++times; });
        for (int step : steps) {
            stepper.stepBy(step);
        }
        QTEST(stepper.value.get(), "value");
        QTEST(times, "times");

        stepper.enabled.set(false);
        stepper.stepBy(-1);
        stepper.stepBy(1);
        QTEST(stepper.value.get(), "value");
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
