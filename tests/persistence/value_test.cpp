#include "persistence/value.h"

#include <QtTest>

#include <limits>

using namespace pinmora;

class ValueTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void convertsLikeThePlatformAlwaysHas_data();
    void convertsLikeThePlatformAlwaysHas();
    void noValueComesFromEveryEmptyHolder();
};

Q_DECLARE_METATYPE(pinmora::Value)

void ValueTest::convertsLikeThePlatformAlwaysHas_data() {
    QTest::addColumn<Value>("value");
    QTest::addColumn<int>("integer");
    QTest::addColumn<double>("number");
    QTest::addColumn<QByteArray>("text"); // null: no text
    QTest::addColumn<bool>("flag");

    const double huge = 1e22;
    QTest::newRow("nothing") << Value() << 0 << 0.0 << QByteArray() << false;
    QTest::newRow("empty text") << Value("") << 0 << 0.0 << QByteArray("") << false;
    QTest::newRow("text with number")
        << Value(" -12.9 m") << -12 << -12.9 << QByteArray(" -12.9 m") << true;
    QTest::newRow("text without") << Value("north") << 0 << 0.0 << QByteArray("north") << false;
    QTest::newRow("whole") << Value(std::int32_t(7)) << 7 << 7.0 << QByteArray("7") << true;
    QTest::newRow("decimal") << Value(151.2) << 151 << 151.2 << QByteArray("151.2") << true;
    QTest::newRow("small") << Value(-0.000001) << 0 << -0.000001 << QByteArray("-0.000001") << true;
    QTest::newRow("huge") << Value(huge) << std::numeric_limits<int>::max() << huge
                          << QByteArray("1") + QByteArray(22, '0') << true;
    QTest::newRow("not a number") << Value(std::numeric_limits<double>::infinity())
                                  << std::numeric_limits<int>::max()
                                  << std::numeric_limits<double>::infinity() << QByteArray("inf")
                                  << true;
    QTest::newRow("flag") << Value(true) << 1 << 1.0 << QByteArray("1") << true;
}

void ValueTest::convertsLikeThePlatformAlwaysHas() {
    QFETCH(Value, value);
    QFETCH(int, integer);
    QFETCH(double, number);
    QFETCH(QByteArray, text);
    QFETCH(bool, flag);
    QCOMPARE(value.integer(), integer);
    QCOMPARE(value.toNumber().value_or(0), number);
    QCOMPARE(value.toText().hasValue(), !text.isNull());
    QCOMPARE(QByteArray::fromStdString(value.toText().string()), text.isNull() ? "" : text);
    QCOMPARE(value.toBool().value_or(false), flag);
    QVERIFY(!value.toDate());
}

void ValueTest::noValueComesFromEveryEmptyHolder() {
    QVERIFY(!Value(Text()).hasValue());
    QVERIFY(!Value(std::optional<std::int32_t>()).hasValue());
    QVERIFY(!Value(std::optional<Date>()).hasValue());
    QVERIFY(!Value(static_cast<Record *>(nullptr)).hasValue());
    QVERIFY(Value(std::int32_t(0)).hasValue());
    QVERIFY(!(Value(std::int32_t(0)) == Value("")) && !(Value("") == Value()));
}

QTEST_APPLESS_MAIN(ValueTest)
#include "value_test.moc"
