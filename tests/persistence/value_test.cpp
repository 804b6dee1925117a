#include "persistence/value.h"
#include "rows.h"

#include <limits>

using namespace pinmora;

class ValueTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void convertsLikeThePlatformAlwaysHas_data() {
        // text: null: no text
        const auto row = test::rows<Value, int, double, QByteArray, bool>();
        const double huge = 1e22;
        row("nothing", {}, 0, 0.0, {}, false);
        row("empty text", "", 0, 0.0, "", false);
        row("text with number", " -12.9 m", -12, -12.9, " -12.9 m", true);
        row("text without", "north", 0, 0.0, "north", false);
        row("whole", Value(std::int32_t(7)), 7, 7.0, "7", true);
        row("decimal", 151.2, 151, 151.2, "151.2", true);
        row("small", -0.000001, 0, -0.000001, "-0.000001", true);
        row("huge", huge, std::numeric_limits<int>::max(), huge,
            QByteArray("1") + QByteArray(22, '0'), true);
        row("not a number", Value(std::numeric_limits<double>::infinity()),
            std::numeric_limits<int>::max(), std::numeric_limits<double>::infinity(), "inf", true);
        row("flag", true, 1, 1.0, "1", true);
    }

    void convertsLikeThePlatformAlwaysHas() {
        const auto [value, integer, number, text, flag] =
            test::fetch<Value, int, double, QByteArray, bool>();
        QCOMPARE(value.integer(), integer);
        QCOMPARE(value.toNumber().value_or(0), number);
        QCOMPARE(value.toText().hasValue(), !text.isNull());
        QCOMPARE(QByteArray::fromStdString(value.toText().string()), text.isNull() ? "" : text);
        QCOMPARE(value.toBool().value_or(false), flag);
        QVERIFY(!value.toDate());
    }

    void noValueComesFromEveryEmptyHolder() {
        QVERIFY(!Value(static_cast<Record *>(nullptr)).hasValue());
        QVERIFY(Value(std::int32_t(0)).hasValue());
        QVERIFY(!(Value(std::int32_t(0)) == Value("")) && !(Value("") == Value()));
    }
};

QTEST_APPLESS_MAIN(ValueTest)
#include "value_test.moc"
