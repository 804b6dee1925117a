#include "platform/date.h"
#include "rows.h"

#include <QLocale>

#include <ctime>
#include <random>

using namespace pinmora;
using std::chrono::hours;
using std::chrono::microseconds;
using std::chrono::seconds;
using std::chrono::sys_seconds;

namespace {

constexpr std::string_view iso = "%Y-%m-%d %H:%M:%S";
constexpr const char *centralEurope = "CET-1CEST,M3.5.0,M10.5.0/3";
constexpr const char *newZealand = "NZST-12NZDT,M9.5.0,M4.1.0/3";
constexpr const char *lordHowe = "<+1030>-10:30<+11>-11,M10.1.0,M4.1.0"; // half an hour of summer
constexpr const char *nepal = "<+0545>-5:45";
constexpr const char *newYork = "EST5EDT,M3.2.0,M11.1.0";

void setZone(const char *zone) {
    qputenv("TZ", zone);
}

seconds plainOffset(std::int64_t instant) {
    const std::time_t time = instant;
    std::tm local{};
    localtime_r(&time, &local);
    return seconds{local.tm_gmtoff};
}

/// The instant by trying every offset that is in force within two days, the earliest first.
std::optional<sys_seconds> plainInstantOf(WallClock wallClock) {
    const std::int64_t wall = wallClock.time_since_epoch().count();
    std::optional<sys_seconds> earliest;
    for (std::int64_t near = wall - 2 * 86400; near <= wall + 2 * 86400; near += 1800) {
        const std::int64_t candidate = wall - plainOffset(near).count();
        if (candidate + plainOffset(candidate).count() == wall) {
            const sys_seconds instant{seconds{candidate}};
            earliest = earliest ? std::min(*earliest, instant) : instant;
        }
    }
    return earliest;
}

std::string universal(Date date) {
    return textFromWallClock(WallClock{std::chrono::floor<seconds>(date.time_since_epoch())}, iso);
}

} // namespace

class DateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void strictReading_data() {
        // expected: seconds since 1970 on the wall; -1 for nothing
        const auto row = test::rows<QByteArray, QByteArray, qint64>();
        const QByteArray exif = "%Y:%m:%d %H:%M:%S";
        const QByteArray gpx = "%Y-%m-%dT%H:%M:%SZ";
        row("exif", "2008:05:12 14:05:09", exif, 1210601109);
        row("gpx", "2008-05-12T14:05:09Z", gpx, 1210601109);
        row("leap day", "2008:02:29 00:00:00", exif, 1204243200);
        row("before 1970", "1969:12:31 23:59:50", exif, -10);
        row("date only", "20080512", "%Y%m%d", 1210550400);
        row("fraction", "2008-05-12T14:05:09.5Z", gpx, -1);
        row("numeric zone", "2008-05-12T14:05:09+02:00", gpx, -1);
        row("cut", "2008-05-12T14:05:09", gpx, -1);
        for (const char *text :
             {"2008:05:12 14:05:0", "2008:05:12 14:05:09 ", "2008:5:12 14:05:09",
              "2008:05:12 14:05: 9", "2008:05:12 14:05:+9",
              "2008:05:12 14:05:1:", // the character after 9
              "2100:02:29 00:00:00", "2008:04:31 00:00:00", "0000:00:00 00:00:00",
              "2008:05:12 24:00:00", "2008:05:12 14:60:09", "2008:12:31 23:59:60", ""}) {
            row(text, text, exif, -1);
        }
        row("field unknown", "08", "%y", -1);
        row("format cut", "08", "08%", -1);
    }

    void strictReading() {
        const auto [text, format, expected] = test::fetch<QByteArray, QByteArray, qint64>();
        const auto read = wallClockFromText(text.toStdString(), format.toStdString());
        QCOMPARE(read ? read->time_since_epoch().count() : -1, expected);
    }

    void writing() {
        const auto wall = wallClockFromText("2008-05-02 04:05:09", iso).value();
        QCOMPARE(textFromWallClock(wall, "%a %e %b %Y %H:%M:%S"), "Fri 2 May 2008 04:05:09");
        QCOMPARE(textFromWallClock(wall, "%d/%m 100% %x%"), "02/05 100% %x%");
        const auto sunday = wallClockFromText("0987-12-31 23:59:59", iso).value();
        QCOMPARE(textFromWallClock(sunday, "%Y %b"), "0987 Dec");
        QCOMPARE(textFromWallClock(sunday + seconds{1}, "%Y %b %e"), "0988 Jan 1");
    }

    void localizedNamesAreTheSystems() {
        setZone("UTC0");
        LocalZone zone;
        const Date date = dateFromText("2008-05-04 04:05:09", iso, zone).value();
        const QLocale system = QLocale::system();
        QCOMPARE(QString::fromStdString(localizedTextFromDate(date, "%a|%b|%e", zone)),
                 system.dayName(7, QLocale::ShortFormat) + u'|' +
                     system.monthName(5, QLocale::ShortFormat) + QStringLiteral("|4"));
    }

    void zones_data() {
        // expected: universal time
        const auto row = test::rows<QByteArray, std::string, std::string>();
        row("winter", centralEurope, "2021-01-15 12:00:00", "2021-01-15 11:00:00");
        row("summer", centralEurope, "2021-07-15 12:00:00", "2021-07-15 10:00:00");
        row("last before the gap", centralEurope, "2021-03-28 01:59:59", "2021-03-28 00:59:59");
        row("first in the gap", centralEurope, "2021-03-28 02:00:00", "2021-03-28 01:00:00");
        row("last in the gap", centralEurope, "2021-03-28 02:59:59", "2021-03-28 01:59:59");
        row("after the gap", centralEurope, "2021-03-28 03:00:00", "2021-03-28 01:00:00");
        row("twice, begin", centralEurope, "2021-10-31 02:00:00", "2021-10-31 00:00:00");
        row("twice, end", centralEurope, "2021-10-31 02:59:59", "2021-10-31 00:59:59");
        row("after twice", centralEurope, "2021-10-31 03:00:00", "2021-10-31 02:00:00");
        row("twice in the west", newYork, "2021-11-07 01:30:00", "2021-11-07 05:30:00");
        row("gap in the west", newYork, "2021-03-14 02:30:00", "2021-03-14 07:30:00");
        row("southern summer", newZealand, "2021-01-15 12:00:00", "2021-01-14 23:00:00");
        row("southern twice", newZealand, "2021-04-04 02:30:00", "2021-04-03 13:30:00");
        row("half-hour twice", lordHowe, "2021-04-04 01:45:00", "2021-04-03 14:45:00");
        row("half-hour gap", lordHowe, "2021-10-03 02:15:00", "2021-10-02 15:45:00");
        row("quarter hour", nepal, "1965-06-01 00:00:00", "1965-05-31 18:15:00");
        row("far ahead", centralEurope, "2099-07-15 12:00:00", "2099-07-15 10:00:00");
    }

    void zones() {
        const auto [zone, wallClock, expected] =
            test::fetch<QByteArray, std::string, std::string>();
        setZone(zone.constData());
        const auto asked = wallClockFromText(wallClock, iso).value();
        for (const int daysAway : {0, -200, -2, 2, 200}) {
            LocalZone local;
            local.instantOf(asked + hours{24} * daysAway); // what is kept must not mislead
            QCOMPARE(universal(local.instantOf(asked)), expected);
        }
    }

    void instantsBeforeTheSecondRoundDown() {
        setZone("UTC0");
        LocalZone zone;
        QCOMPARE(textFromDate(Date{microseconds{-1}}, iso, zone), "1969-12-31 23:59:59");
        QCOMPARE(textFromDate(Date{microseconds{1999999}}, iso, zone), "1970-01-01 00:00:01");
    }

    /// Walks of small and large steps, so that stretches are kept, grown both ways and left.
    void keptStretchesAgreeWithPlainLookups_data() {
        const auto row = test::rowsByValue<QByteArray>();
        for (const char *zone : {centralEurope, newYork, newZealand, lordHowe, nepal,
                                 "<+24>-24:59:59<-24>24:59:59,J90,J270", "UTC0"}) {
            row(zone);
        }
    }

    void keptStretchesAgreeWithPlainLookups() {
        const auto [zone] = test::fetch<QByteArray>();
        setZone(zone.constData());
        LocalZone forward;
        LocalZone back;
        std::mt19937_64 random{7};
        std::int64_t instant = 0;
        for (int i = 0; i < 30000; ++i) {
            const bool jump = i % 500 == 0;
            instant = jump ? static_cast<std::int64_t>(random() % 6'000'000'000) - 1'900'000'000
                           : instant + static_cast<std::int64_t>(random() % 40'000) - 15'000;
            const sys_seconds time{seconds{instant}};
            const WallClock wall = forward.wallClockAt(time);
            QCOMPARE((wall.time_since_epoch() - time.time_since_epoch()).count(),
                     plainOffset(instant).count());
            if (i % 20 == 0) {
                QCOMPARE(back.instantOf(wall), Date{plainInstantOf(wall).value()});
            } else {
                QCOMPARE(forward.wallClockAt(back.instantOf(wall)), wall);
            }
        }
    }
};

QTEST_GUILESS_MAIN(DateTest)
#include "date_test.moc"
