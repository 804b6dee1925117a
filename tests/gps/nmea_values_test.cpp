#include "gps/nmea_lines.h"
#include "gps/nmea_values.h"

#include <QtTest>

using namespace pinmora;

class NmeaValuesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void positions_data();
    void positions();
    void heights_data();
    void heights();
    void dates_data();
    void dates();
    void linesEndInThreeWays();
};

void NmeaValuesTest::positions_data() {
    QTest::addColumn<bool>("isLatitude");
    QTest::addColumn<std::string>("text");
    QTest::addColumn<std::string>("part");
    QTest::addColumn<std::string>("degrees"); // "" for nothing
    const auto row = [](bool isLatitude, const char *text, const char *part, const char *degrees) {
        QTest::addRow("%s %s", text, part)
            << isLatitude << std::string(text) << std::string(part) << std::string(degrees);
    };
    row(true, "4807.038", "N", "+48.117298");
    row(true, "4807.038", "S", "-48.117298");
    row(false, "01131.000", "E", "+11.516666");
    row(false, "01131.000", "W", "-11.516666");
    row(false, "17959.9999", "E", "+180.000000");
    row(true, "0000.0000", "S", "-0.000000");
    row(true, "48", "N", "+48.000000");
    row(true, "ab07.5", "N", "+0.125000");
    row(true, "48 07.5x", "N", "+48.125000");
    row(true, "-107.5", "N", "+-0.875000");
    row(true, "4807.5e2", "N", "+48.125000");
    row(true, "4", "N", "");
    row(true, "", "N", "");
    row(false, "01", "E", "");
    row(true, "4807.038", "", "");
    row(true, "4807.038", "n", "");
    row(true, "4807.038", "E", "");
    row(false, "01131.000", "N", "");
    row(false, "01131.000", "EE", "");
}

void NmeaValuesTest::positions() {
    QFETCH(bool, isLatitude);
    QFETCH(std::string, text);
    QFETCH(std::string, part);
    QFETCH(std::string, degrees);
    QCOMPARE((isLatitude ? makeLat(text, part) : makeLon(text, part)).value_or(""), degrees);
}

void NmeaValuesTest::heights_data() {
    QTest::addColumn<std::string>("text");
    QTest::addColumn<std::string>("metres");
    QTest::newRow("single precision") << std::string("545.4") << std::string("545.40002");
    QTest::newRow("below the sea") << std::string("-12") << std::string("-12.00000");
    QTest::newRow("none") << std::string() << std::string();
    QTest::newRow("no number") << std::string("M") << std::string("0.00000");
    QTest::newRow("with a checksum") << std::string("20.5*47") << std::string("20.50000");
}

void NmeaValuesTest::heights() {
    QFETCH(std::string, text);
    QFETCH(std::string, metres);
    QCOMPARE(makeEleString(text), metres);
}

void NmeaValuesTest::dates_data() {
    QTest::addColumn<std::string>("date");
    QTest::addColumn<std::string>("time");
    QTest::addColumn<std::string>("instant"); // "" for nothing
    const auto row = [](const char *date, const char *time, const char *instant) {
        QTest::addRow("%s %s", date, time)
            << std::string(date) << std::string(time) << std::string(instant);
    };
    row("230394", "123519", "1994-03-23 12:35:19");
    row("230394", "123519.99", "1994-03-23 12:35:19");
    row("010126", "000000", "2026-01-01 00:00:00"); // the current year
    row("010127", "000000", "1927-01-01 00:00:00");
    row("311299", "235959", "1999-12-31 23:59:59");
    row("290200", "000000", "2000-02-29 00:00:00");
    row("2303941", "1235190", "1994-03-23 12:35:19");
    row("310426", "000000", "");
    row("290299", "000000", "");
    row("001326", "000000", "");
    row("010126", "240000", "");
    row("010126", "236000", "");
    row("010126", "235960", "");
    row("010126", "-10000", "");
    row("abcdef", "000000", "");
}

void NmeaValuesTest::dates() {
    QFETCH(std::string, date);
    QFETCH(std::string, time);
    QFETCH(std::string, instant);
    const std::optional<Date> made = makeDateStamp(date, time, std::chrono::year(2026));
    const auto shown = [](Date stamp) {
        const auto second = std::chrono::floor<std::chrono::seconds>(stamp.time_since_epoch());
        return textFromWallClock(WallClock(second), "%Y-%m-%d %H:%M:%S");
    };
    QCOMPARE(made ? shown(*made) : std::string(), instant);
    QVERIFY(isDateStamp(date, time));
    QVERIFY(!isDateStamp(date.substr(0, 5), time) && !isDateStamp(date, time.substr(0, 5)));
    QVERIFY(!isDateStamp("\xC3\xA9\xC3\xA9\xC3\xA9", time));
}

void NmeaValuesTest::linesEndInThreeWays() {
    std::string walked;
    for (NmeaLines lines("a\n\nb\r\rc\r\n\r\nd\n\re\r"); lines.next();) {
        walked += std::to_string(lines.index()) + std::string(lines.line()) +
                  (lines.isLast() ? "." : " ");
    }
    QCOMPARE(walked, std::string("0a 1 2b 3 4c 5 6d 7 8e 9."));
    NmeaLines nothing("");
    QVERIFY(nothing.next() && nothing.isLast() && nothing.line().empty() && !nothing.next());
}

QTEST_APPLESS_MAIN(NmeaValuesTest)
#include "nmea_values_test.moc"
