#include "gps/log_desk.h"
#include "rows.h"

using namespace pinmora;
using pinmora::test::LogDesk;

namespace {

const std::string gpxLog = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                           "<gpx><wpt lat='0' lon='0'><time>x</time></wpt><trk>\n"
                           "<trkseg><trkpt lat='1' lon='2'><ele>&#51;</ele>\n"
                           "<time>2008-06-01T09:30:00Z</time></trkpt>\n"
                           "<trkpt lat='4' lon='5'></trkpt></trkseg>\n"
                           "<trkseg><trkpt lat='6' lon='7'><time>2008-06-01T09:30:01.5Z</time>"
                           "<name>\xE2\x82\xAC</name></trkpt></trkseg></trk></gpx>\n";

const std::string nmeaLog = "# head\r\n"
                            "$GPRMC,123519,A,4807.038,N,01131.000,E,1,2,230394,3,W\r\n"
                            "$GPGSV,1,1\r\n"
                            "$GPGGA,123519,4807.038,N,01131.000,E,1,08,0.9,545.4,M\r\n"
                            "$GPGSA,A,3,,,,,,,,,,,,,2.5,1.3,2.1\r\n"
                            "$GPGGA,123520,4807.038,N,01131.000,E,1,08,0.9,545.4,M\r\n"
                            "$GPRMC,123520,A,4807.038,N,01131.000,E,1,2,230394,3,W\r\n";

std::size_t count(std::string_view text, std::string_view what) {
    std::size_t found = 0;
    for (std::size_t at = text.find(what); at != std::string_view::npos;
         at = text.find(what, at + 1)) {
        ++found;
    }
    return found;
}

/// How often the time field changes from one position sentence to the next.
std::size_t timeChanges(std::string_view log) {
    std::size_t changes = 0;
    QByteArray last;
    for (const QByteArray &line : QByteArray(log.data(), qsizetype(log.size())).split('\n')) {
        const QList<QByteArray> fields = line.trimmed().split(',');
        if (fields.size() > 1 && (fields[0] == "$GPRMC" || fields[0] == "$GPGGA")) {
            changes += !last.isNull() && fields[1] != last ? 1 : 0;
            last = fields[1].isNull() ? QByteArray("") : fields[1];
        }
    }
    return changes;
}

} // namespace

/// Logs that break off anywhere, and documents that come in blocks of any size.
class LogCutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void gpxCutAtEveryByte() {
        for (std::size_t size = 0; size <= gpxLog.size(); ++size) {
            const std::string_view cut = std::string_view(gpxLog).substr(0, size);
            const std::size_t points = std::min<std::size_t>(1, count(cut, "</time></trkpt>")) +
                                       count(cut, "</name></trkpt>");
            for (const LogReading reading : {LogReading::Exact, LogReading::Tolerant}) {
                LogDesk desk;
                const LogReport report = desk.load(cut, reading);
                const bool isGpx =
                    reading == LogReading::Exact ? cut.starts_with("<?xml version=") : size > 0;
                const bool isWhole = cut.find("</gpx>") != std::string_view::npos;
                QCOMPARE(report.points, points);
                QCOMPARE(desk.context.count<track_part>(), points);
                QCOMPARE(report.tracks, count(cut, "<trkseg>"));
                QVERIFY(report.error == (!isGpx    ? LogError::NotALog
                                         : isWhole ? LogError::None
                                                   : LogError::MalformedGpx));
                QCOMPARE(desk.messages.size(), isWhole ? 0u : 1u);
            }
        }
    }

    /// Under the exact reading a cut within a sentence ends the log there, except in what follows
    /// the last field that is read.
    void nmeaCutAtEveryByte() {
        const std::size_t firstFix = nmeaLog.find("$GPRMC");
        const std::size_t secondTime = nmeaLog.find("123520");
        for (std::size_t size = 0; size <= nmeaLog.size(); ++size) {
            const std::string_view cut = std::string_view(nmeaLog).substr(0, size);
            const std::string_view lastLine = cut.substr(cut.find_last_of("\r\n") + 1);
            const std::size_t needed = lastLine.starts_with("$GPGSA") ? 17 : 9; // commas
            const bool isKnown = lastLine.starts_with("$GPRMC") || lastLine.starts_with("$GPGGA") ||
                                 lastLine.starts_with("$GPGSA");
            const bool isShortDate =
                lastLine.starts_with("$GPRMC") && lastLine.size() - lastLine.find(",230394") > 20;
            const bool isBroken = isKnown && (count(lastLine, ",") < needed || isShortDate);

            LogDesk desk;
            const LogReport exact = desk.load(cut);
            const bool isLog = cut.find("$GP") != std::string_view::npos &&
                               cut.find_first_of("\r\n", firstFix) != std::string_view::npos;
            // A point is complete when another time is seen, even a part of one, or the log ends in
            // order.
            const std::size_t points = isLog ? timeChanges(cut) + (isBroken ? 0 : 1) : 0;
            QVERIFY2(exact.points == points, std::to_string(size).c_str());
            QVERIFY(exact.error == (isLog ? LogError::None : LogError::NotALog));

            // Tolerant: as many points as there are different times in sentences that have their
            // fields.
            const LogReport tolerant = desk.load(cut, LogReading::Tolerant);
            const bool first = count(cut.substr(0, nmeaLog.find("$GPGSV")), ",") >= 9;
            const bool second = size > secondTime && count(cut.substr(secondTime), ",") >= 8;
            QCOMPARE(tolerant.points, std::size_t(first) + std::size_t(second));
        }
    }

    void blocksOfAnySizeMakeNoDifference_data() {
        const auto row = test::rows<std::string>();
        row("plain", gpxLog);
        row("cut", gpxLog.substr(0, gpxLog.size() - 30));
        row("mark and blanks", "\xEF\xBB\xBF \n\n" + gpxLog);
        row("no declaration", "\n" + gpxLog.substr(gpxLog.find('\n')));
        std::string wide = "\xFF\xFE";
        wide += std::string("\n\0", 2);
        for (const char c : std::string("<gpx><trkpt lat='1' lon='2'><time/></trkpt></gpx>")) {
            wide += {c, '\0'};
        }
        row("UTF-16", wide);
        row("blanks only", "\n \n");
        row("a mark only", "\xEF\xBB");
    }

    void blocksOfAnySizeMakeNoDifference() {
        const auto [document] = test::fetch<std::string>();
        std::string expected;
        for (std::size_t blockSize = document.size(); blockSize > 0; --blockSize) {
            LogDesk desk;
            GpxReader reader(desk.context, desk.progress, desk.errors);
            reader.elements().setActiveLog(true);
            reader.begin({}, LogReading::Tolerant);
            for (std::size_t at = 0; at < document.size(); at += blockSize) {
                if (!reader.feed(std::string_view(document).substr(at, blockSize))) {
                    break;
                }
            }
            const LogReport report = reader.finish();
            const std::string result = desk.points() + report.message + report.unusableText();
            if (blockSize == document.size()) {
                expected = result;
            }
            QCOMPARE(result, expected);
        }
        QVERIFY(!expected.empty());
    }
};

QTEST_GUILESS_MAIN(LogCutTest)
#include "log_cut_test.moc"
