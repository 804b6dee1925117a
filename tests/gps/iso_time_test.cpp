#include "gps/iso_time.h"
#include "rows.h"

using namespace pinmora;

class IsoTimeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void instants_data() {
        // microseconds: after 2008-06-01T09:30:00 UTC; -1 for no instant
        const auto row = test::rowsByValue<std::string, qint64>();
        constexpr qint64 second = 1'000'000;
        constexpr qint64 minute = 60 * second;
        for (const char *start :
             {"2008-06-01T09:30:00Z", "2008-06-01T09:30:00", "2008-06-01 09:30:00z",
              "2008-06-01t09:30:00Z", "\n 2008-06-01T09:30:00Z\r\n\t", "2008-06-01T09:30Z",
              "2008-06-01T11:30:00+02:00", "2008-06-01T11:30:00.000+0200", "2008-06-01T11:30:00+02",
              "2008-06-01T05:00:00-04:30", "20080601T0930", "2008-153T09:30:00Z", "2008153T093000Z",
              "2008-W22-7T09:30:00Z", "2008W227T093000Z"}) {
            row(start, 0);
        }
        row("2008-06-01T09:30:07Z", 7 * second);
        row("2008-06-01T09:30:00.5Z", second / 2);
        row("2008-06-01T09:30:00,25", second / 4);
        row("2008-06-01T09:30:00.0000019Z", 1);
        row("2008-06-02T00:15:00+14:00", 45 * minute);
        row("20080601T093001Z", second);
        row("2008-06-01T09:30.5Z", 30 * second);
        row("2008-06-01T10Z", 30 * minute);
        row("20080601T09,75", 15 * minute);
        row("20080601T113000.5+0200", second / 2);
        row("2009-W01-1T00:00:00Z", (210 * 24 * 60 + 14 * 60 + 30) * minute);
        row("2008-06-01T24:00:00Z", (14 * 60 + 30) * minute);
        row("2008-06-30T23:59:60Z", (29 * 24 * 60 + 14 * 60 + 30) * minute);
        for (const char *none : {"",
                                 "2008-06-01",
                                 "2008-06-01T",
                                 "2008-06-01T09:30:",
                                 "09:30:00Z",
                                 "2008-06-01T09:30:00.Z",
                                 "2008-06-01T09:30:00Z+02:00",
                                 "2008-06-01T09:30:00 Z",
                                 "2008-06-01T09:30:00+2",
                                 "2008-06-01T09:30:00+02:",
                                 "2008-06-01T09:30:00+24:00",
                                 "2008-06-01T09:30:00+02:60",
                                 "2008-06-01T09:30:00CEST",
                                 "2008-6-1T09:30:00Z",
                                 "08-06-01T09:30:00Z",
                                 "+2008-06-01T09:30:00Z",
                                 "2008-06-01T09:60:00Z",
                                 "2008-06-31T09:30:00Z",
                                 "2007-02-29T09:30:00Z",
                                 "2008-13-01T09:30:00Z",
                                 "2008-00-01T09:30:00Z",
                                 "2008-06-00T09:30:00Z",
                                 "200806-01T09:30:00Z",
                                 "2008-06-01T093000Z",
                                 "20080601T09:30:00Z",
                                 "2008-06-01T0\xC2\xB2:30:00Z",
                                 "2008-06-01T24:00:01Z",
                                 "2008-06-01T09:30:61Z",
                                 "2008-000T09:30:00Z",
                                 "2007-366T09:30:00Z",
                                 "2008-W53-1T09:30:00Z",
                                 "2008-W22-8T09:30:00Z"}) {
            row(none, -1);
        }
    }

    void instants() {
        const auto [text, microseconds] = test::fetch<std::string, qint64>();
        const Date start = std::chrono::sys_days(std::chrono::June / 1 / 2008) +
                           std::chrono::hours(9) + std::chrono::minutes(30);
        const std::optional<Date> instant = instantFromIsoText(text);
        QCOMPARE(instant ? qint64((*instant - start).count()) : -1, microseconds);
    }
};

QTEST_APPLESS_MAIN(IsoTimeTest)
#include "iso_time_test.moc"
