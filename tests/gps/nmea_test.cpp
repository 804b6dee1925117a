#include "gps/log_desk.h"
#include "rows.h"

using namespace pinmora;
using pinmora::test::LogDesk;

namespace {

/// The lines, each with a line feed.
std::string lines(std::initializer_list<std::string> all) {
    std::string text;
    for (const std::string &line : all) {
        text += line + '\n';
    }
    return text;
}

std::string checked(const std::string &sentence, unsigned fault = 0) {
    unsigned sum = fault;
    for (const char c : sentence.substr(1)) {
        sum ^= static_cast<unsigned char>(c);
    }
    return sentence + QString::asprintf("*%02X", sum).toStdString();
}

const std::string rmcRest = ",A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W";
const std::string ggaRest = ",4807.038,N,01131.000,E,1,08,0.9,545.4,M,46.9,M,,";
const std::string rmc19 = "$GPRMC,123519" + rmcRest;
const std::string gga19 = "$GPGGA,123519" + ggaRest;
const std::string rmc20 = "$GPRMC,123520" + rmcRest;
const std::string gga20 = "$GPGGA,123520" + ggaRest;

/// Words of LogDesk::points() for the sentences above.
std::string full(const std::string &second, int id) {
    return "+48.117298/+11.516666/545.40002/1994-03-23T12:35:" + second + "/" + std::to_string(id) +
           "/1";
}
std::string withoutHeight(const std::string &second, int id) {
    return "+48.117298/+11.516666/-/1994-03-23T12:35:" + second + "/" + std::to_string(id) + "/1";
}
std::string withoutTime(int id) {
    return "+48.117298/+11.516666/545.40002/-/" + std::to_string(id) + "/1";
}

} // namespace

class NmeaTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::useCentralEuropeanTime(); }

    void exactReading_data() {
        const auto row = test::rows<std::string, std::string, int>();
        const std::string brokenFix = "$GPGGA,123520,,,,,0,00,,,M,,M,,";
        row("one fix", lines({rmc19, gga19}), full("19", 3), 0);
        row("no line feed at the end", rmc19 + "\n" + gga19, full("19", 2), 0);
        row("carriage returns", rmc19 + "\r" + gga19 + "\r", full("19", 3), 0);
        row("both", rmc19 + "\r\n" + gga19 + "\r\n", full("19", 3), 0);
        row("both, turned round", rmc19 + "\n\r" + gga19 + "\n", full("19", 4), 0);
        row("next fix", lines({rmc19, gga19, rmc20}), full("19", 2) + " " + withoutHeight("20", 4),
            0);
        row("GGA before RMC", lines({gga19, rmc19, gga20, rmc20}),
            full("19", 2) + " " + full("20", 5), 0);
        row("RMC only", lines({rmc19, rmc20}),
            withoutHeight("19", 1) + " " + withoutHeight("20", 3), 0);
        row("GGA only", lines({gga19, gga20}), withoutTime(1) + " " + withoutTime(3), 2);
        row("times differ as texts", lines({rmc19, "$GPGGA,123519.00" + ggaRest}),
            withoutHeight("19", 1) + " " + withoutTime(3), 1);
        row("later position counts", lines({rmc19, "$GPGGA,123519,0000.000,S,00000.000,W,1,,,,M"}),
            "-0.000000/-0.000000//1994-03-23T12:35:19/3/1", 0);
        row("other lines", lines({"# head", "", "$GPGSV,1", rmc19, "x" + gga20, gga19}),
            full("19", 7), 0);
        row("no sentence with a fix", lines({"$GPGSV,1"}), "-/-/-/-/2/1", 0);
        row("checksum, status, quality do not matter",
            lines({"$GPRMC,123519,V,4807.038,N,01131.000,E,,,230394*00",
                   "$GPGGA,123519,4807.038,N,01131.000,E,0,,,545.4*00"}),
            full("19", 3), 0);
        row("other talkers", lines({"$GNRMC,123518" + rmcRest, rmc19, "$GNGGA,123519" + ggaRest}),
            withoutHeight("19", 4), 2);
        row("whole GSA", lines({rmc19, "$GPGSA,A,3,,,,,,,,,,,,,2.5,1.3,2.1", gga19}), full("19", 4),
            0);
        row("short GSA ends it", lines({rmc19, rmc20, "$GPGSA,A,3", gga20}), withoutHeight("19", 1),
            2);
        row("starts without a fix", lines({brokenFix, rmc20}), "", 2);
        row("loses the fix", lines({rmc19, gga19, brokenFix, rmc20}), full("19", 2), 2);
        row("short sentence of the same time", lines({rmc19, "$GPGGA,123519,4807.038,N"}), "", 2);
        row("nothing but the name", lines({rmc19, "$GPGGA"}), "", 2);
        row("hemisphere", lines({rmc19, "$GPGGA,123520,4807.038,X,01131.000,E,1,,,545.4"}),
            withoutHeight("19", 1), 1);
        row("short date", lines({rmc19, "$GPRMC,123520,A,4807.038,N,01131.000,E,,,23039"}),
            withoutHeight("19", 1), 1);
        row("short time", lines({rmc19, "$GPRMC,12352,A,4807.038,N,01131.000,E,,,230394"}),
            withoutHeight("19", 1), 1);
        row("impossible date", lines({"$GPRMC,123519,A,4807.038,N,01131.000,E,,,310299"}),
            "+48.117298/+11.516666/-/-/2/1", 1);
    }

    void exactReading() {
        const auto [log, points, unusable] = test::fetch<std::string, std::string, int>();
        LogDesk desk;
        const LogReport report = desk.load(log);
        QCOMPARE(desk.points(), points);
        QCOMPARE(report.points, desk.context.count<track_part>());
        QCOMPARE(report.tracks, 1U);
        QCOMPARE(desk.context.count<track>(), 1U);
        QCOMPARE(report.unusable, std::size_t(unusable));
        QVERIFY(!report.failed() && desk.messages.empty());
        QVERIFY(!desk.progress.progressWindow.isUp());
    }

    void tolerantReading_data() {
        const auto row = test::rows<std::string, std::string, int>();
        const auto gga = [](const std::string &time) { return "$GNGGA," + time + ggaRest; };
        const auto dated = [](const char *day, const char *time, int id) {
            return std::string("+48.117298/+11.516666/545.40002/") + day + "T" + time + "/" +
                   std::to_string(id) + "/1";
        };
        row("any talker", lines({"$GNRMC,123519" + rmcRest, "$GLGGA,123519" + ggaRest}),
            full("19", 3), 0);
        row("last line is enough", rmc19, withoutHeight("19", 1), 0);
        row("checksums", lines({checked(rmc19), checked(gga19)}), full("19", 3), 0);
        row("lower-case checksum", lines({"$GPRMC,123519,A,4807.038,N,01131.000,E,,,230394*1d"}),
            withoutHeight("19", 2), 0);
        row("wrong checksum", lines({rmc19, checked(rmc20, 1), gga19}), full("19", 4), 1);
        row("half a checksum", lines({rmc19, checked(rmc20).substr(0, rmc20.size() + 2)}),
            withoutHeight("19", 3), 1);
        row("no fix",
            lines({"$GPRMC,123519,V,4807.038,N,01131.000,E,,,230394",
                   "$GPGGA,123519,4807.038,N,01131.000,E,0,,,545.4", "$GPGGA,,,,,,0,,,,,,,,*66",
                   rmc20}),
            withoutHeight("20", 5), 3);
        row("damaged",
            lines({"$GPRMC,123519,A,4807.038,N", "$GPGGA,123519,4807.0x8,N,01131.000,E,1,,,1",
                   "$GPGGA,123519,4807.038,M,01131.000,E,1,,,1",
                   "$GPGGA,123519,4860.000,N,01131.000,E,1,,,1",
                   "$GPGGA,123519,9000.001,N,01131.000,E,1,,,1",
                   "$GPGGA,123519,4807.038,N,18100.000,E,1,,,1",
                   "$GPGGA,123519,4807.038,N,1131.000,E,1,,,1",
                   "$GPGGA,243519,4807.038,N,01131.000,E,1,,,1",
                   "$GPGGA,1235,4807.038,N,01131.000,E,1,,,1", "$GPGSA,A", rmc20}),
            withoutHeight("20", 12), 9);
        row("pole and date line", lines({"$GPRMC,123519,A,9000.000,S,18000.00,W,,,230394"}),
            "-90.000000/-180.000000/-/1994-03-23T12:35:19/2/1", 0);
        row("dated by RMC", lines({rmc19, gga("123520"), gga("123521")}),
            withoutHeight("19", 1) + " " + full("20", 2) + " " + full("21", 4), 0);
        row("dated by ZDA",
            lines({"$GPZDA,235958.00,31,12,2004,00,00", gga("235959"), gga("000000")}),
            dated("2004-12-31", "23:59:59", 2) + " " + dated("2005-01-01", "00:00:00", 4), 0);
        row("later than the next midnight",
            lines({"$GPZDA,120000,31,12,2004", gga("235959"), gga("120000"), gga("110000")}),
            dated("2004-12-31", "23:59:59", 2) + " " + dated("2005-01-01", "12:00:00", 3) + " " +
                dated("2005-01-01", "11:00:00", 5),
            0);
        row("a little before the last midnight", lines({"$GPZDA,000001,01,01,2005", gga("235959")}),
            dated("2004-12-31", "23:59:59", 3), 0);
        row("RMC without a date", lines({rmc19, "$GPRMC,123520,A,4807.038,N,01131.000,E,,,,,"}),
            withoutHeight("19", 1) + " " + withoutHeight("20", 3), 0);
        row("RMC with an impossible date",
            lines({"$GPRMC,123520,A,4807.038,N,01131.000,E,,,310294,,"}),
            "+48.117298/+11.516666/-/-/2/1", 1);
        row("damaged or impossible ZDA",
            lines({checked("$GPZDA,123518,31,12,2004", 1), "$GPZDA,123518,31,02,2004",
                   "$GPZDA,123518", "$GPZDA,12351,31,12,2004", gga19}),
            withoutTime(6), 1);
        row("no date anywhere", lines({gga19, gga20}), withoutTime(1) + " " + withoutTime(3), 2);
        row("nothing of use", lines({"$PMGNTRK,4415.163,N", "$GPRMC,,V,,,,,,,,,"}), "", 1);
    }

    void tolerantReading() {
        const auto [log, points, unusable] = test::fetch<std::string, std::string, int>();
        LogDesk desk;
        const LogReport report = desk.load(log, LogReading::Tolerant);
        QCOMPARE(desk.points(), points);
        QCOMPARE(report.tracks, std::size_t(points.empty() ? 0 : 1));
        QCOMPARE(desk.context.count<track>(), report.tracks);
        QCOMPARE(report.unusable, std::size_t(unusable));
        QVERIFY(!report.failed() && desk.messages.empty());
        QVERIFY(!desk.progress.progressWindow.isUp());
    }

    void whatIsNoLogIsTold_data() {
        const auto row = test::rows<std::string, LogReading, int>();
        row("empty", {}, LogReading::Exact, 0);
        row("empty, tolerant", {}, LogReading::Tolerant, 0);
        row("last line", rmc19, LogReading::Exact, 1);
        row("last line of two", "# head\n" + rmc19, LogReading::Exact, 1);
        row("other talkers", lines({"$GNRMC,123519" + rmcRest, "$GLGSV,1"}), LogReading::Exact, 1);
        row("no sentences", lines({" " + rmc19, "text"}), LogReading::Tolerant, 0);
    }

    void whatIsNoLogIsTold() {
        const auto [log, reading, unusable] = test::fetch<std::string, LogReading, int>();
        LogDesk desk;
        const LogReport report = desk.load(log, reading);
        QVERIFY(report.error == LogError::NotALog);
        QCOMPARE(desk.messages, std::vector<std::string>{
                                    "Error! There was an error parsing the GPS data file. File "
                                    "is not GPX or NMEA"});
        QCOMPARE(desk.context.count<track>() + desk.context.count<track_part>(), 0U);
        QCOMPARE(report.unusable, std::size_t(unusable));
        QVERIFY(!desk.progress.progressWindow.isUp());
    }

    /// Characters count, not bytes: a degree field of two characters is long enough, one is not.
    void theTextOfALogIsUtf8OrLatin1() {
        const auto fix = [](const std::string &latitude) {
            return "$GPGGA,1," + latitude + ",N,00000.000,E,1,,,\n";
        };
        for (const auto &[latitude, points] :
             {std::pair("\xC3\xA9", 0), std::pair("\xC3\xA9\xC3\xA9", 1), std::pair("\xE9\xE9", 1),
              std::pair("\xE9", 0)}) {
            LogDesk desk;
            QCOMPARE(desk.load(fix(latitude)).points, std::size_t(points));
            QCOMPARE(desk.load("\xEF\xBB\xBF" + lines({gga19})).points, 1U);
        }
    }
};

QTEST_GUILESS_MAIN(NmeaTest)
#include "nmea_test.moc"
