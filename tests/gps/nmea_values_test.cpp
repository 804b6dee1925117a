#include "gps/nmea_lines.h"
#include "gps/nmea_values.h"
#include "rows.h"

using namespace pinmora;

class NmeaValuesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void positions_data() {
        // degrees: "" for nothing
        const auto row = test::rowsByValue<bool, std::string, std::string, std::string>();
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

    void positions() {
        const auto [isLatitude, text, part, degrees] =
            test::fetch<bool, std::string, std::string, std::string>();
        QCOMPARE((isLatitude ? makeLat(text, part) : makeLon(text, part)).value_or(""), degrees);
    }

    void heights_data() {
        const auto row = test::rows<std::string, std::string>();
        row("single precision", "545.4", "545.40002");
        row("below the sea", "-12", "-12.00000");
        row("none", {}, {});
        row("no number", "M", "0.00000");
        row("with a checksum", "20.5*47", "20.50000");
    }

    void heights() {
        const auto [text, metres] = test::fetch<std::string, std::string>();
        QCOMPARE(makeEleString(text), metres);
    }

    void dates_data() {
        // instant: "" for nothing
        const auto row = test::rowsByValue<std::string, std::string, std::string>();
        row("230394", "123519", "1994-03-23 12:35:19");
        row("230394", "123519.99", "1994-03-23 12:35:19");
        row("010126", "000000", "2026-01-01 00:00:00"); // the current year
        row("010127", "000000", "1927-01-01 00:00:00");
        row("311299", "235959", "1999-12-31 23:59:59");
        row("290200", "000000", "2000-02-29 00:00:00");
        row("2303941", "1235190", "1994-03-23 12:35:19");
        for (const char *day : {"310426", "290299", "001326", "abcdef"}) {
            row(day, "000000", "");
        }
        for (const char *time : {"240000", "236000", "235960", "-10000"}) {
            row("010126", time, "");
        }
    }

    void dates() {
        const auto [date, time, instant] = test::fetch<std::string, std::string, std::string>();
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

    void linesEndInThreeWays() {
        std::string walked;
        for (NmeaLines lines("a\n\nb\r\rc\r\n\r\nd\n\re\r"); lines.next();) {
            walked += std::to_string(lines.index()) + std::string(lines.line()) +
                      (lines.isLast() ? "." : " ");
        }
        QCOMPARE(walked, "0a 1 2b 3 4c 5 6d 7 8e 9.");
        NmeaLines nothing("");
        QVERIFY(nothing.next() && nothing.isLast() && nothing.line().empty() && !nothing.next());
    }
};

QTEST_APPLESS_MAIN(NmeaValuesTest)
#include "nmea_values_test.moc"
