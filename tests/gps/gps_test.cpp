#include "gps/log_desk.h"
#include "gps/log_head.h"
#include "rows.h"

#include <sys/stat.h>

using namespace pinmora;
using pinmora::test::LogDesk;

class GpsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesOfLogs_data() {
        const auto row = test::rows<bool>();
        for (const char *name : {"/logs/day1.NMEA", "track.gpx", "track.GPX", "a.b.log", "x.TXT",
                                 "/.hidden.gpx", "/a.d/t.nmea"}) {
            row(name, true);
        }
        for (const char *name : {"track", "track.", ".hidden.gpx", ".gpx", "track.Gpx", "track.csv",
                                 "", "/logs.gpx/track", "track.gpx ", "gpx", "./track.gpx"}) {
            row(name, false);
        }
    }

    void namesOfLogs() {
        const auto [isLog] = test::fetch<bool>();
        LogDesk desk;
        QCOMPARE(desk.gps.isGPS(QTest::currentDataTag()), isLog);
    }

    void theHeadChoosesTheReader_data() {
        const auto row = test::rows<std::string, bool, bool>();
        const std::string nul(1, '\0');
        row("declaration", "<?xml version=\"1.0\"?>", true, true);
        row("no more than that", "<?xml version=", true, true);
        row("single quotes", "<?xml version='1.0'?>", true, true);
        row("UTF-8 mark", "\xEF\xBB\xBF<?xml version=\"1.0\"?>", true, true);
        row("two marks", "\xEF\xBB\xBF\xEF\xBB\xBF<?xml version=\"1.0\"?>", false, false);
        row("half a mark", "\xEF\xBB", false, false);
        row("blank before", " <?xml version=\"1.0\"?>", false, true);
        row("line before", "\r\n<?xml version=\"1.0\"?>", false, true);
        row("mark, then blank", "\xEF\xBB\xBF <?xml version=\"1.0\"?>", false, true);
        row("two blanks within", "<?xml  version=\"1.0\"?>", false, true);
        row("capitals", "<?XML version=\"1.0\"?>", false, true);
        row("no declaration", "<gpx>", false, true);
        row("comment", "<!-- -->", false, true);
        row("UTF-16, little end first", "\xFF\xFE<" + nul + "g" + nul, false, true);
        row("UTF-16, big end first", "\xFE\xFF" + nul + "<" + nul + "g", false, true);
        row("UTF-16, line before", "\xFE\xFF" + nul + "\n" + nul + "<", false, true);
        row("UTF-16 of something else", "\xFE\xFF<" + nul, false, false);
        row("UTF-16 without a mark", "<" + nul + "g" + nul, false, true);
        row("sentence", "$GPRMC,", false, false);
        row("blanks only", " \n", false, false);
        row("empty", "", false, false);
        row("binary", nul + "\x01<?xml version=", false, false);
    }

    void theHeadChoosesTheReader() {
        const auto [head, exact, tolerant] = test::fetch<std::string, bool, bool>();
        QCOMPARE(beginsWithXml(head, policyOf(LogReading::Exact)), exact);
        QCOMPARE(beginsWithXml(head, policyOf(LogReading::Tolerant)), tolerant);
        for (const bool isTolerant : {false, true}) {
            LogDesk desk;
            const LogReport report =
                desk.load(head, isTolerant ? LogReading::Tolerant : LogReading::Exact);
            QCOMPARE(report.error == LogError::MalformedGpx, isTolerant ? tolerant : exact);
        }
    }

    void filesThatCannotBeReadAreTold_data() {
        const auto row = test::rowsByValue<std::string, std::string>();
        row("missing", "No such file or directory");
        row("folder", "Is a directory");
        row("pipe", "Operation not supported");
        row("loop", "Too many levels of symbolic links");
        row("memory", "Input/output error"); // a device that fails
    }

    void filesThatCannotBeReadAreTold() {
        const auto [name, reason] = test::fetch<std::string, std::string>();
        LogDesk desk;
        std::filesystem::create_directory(desk.pathOf("folder"));
        std::filesystem::create_symlink("loop", desk.pathOf("loop"));
        std::filesystem::create_symlink("/proc/self/mem", desk.pathOf("memory"));
        QCOMPARE(::mkfifo(desk.pathOf("pipe").c_str(), 0600), 0);
        const std::string path = desk.pathOf(name).string();
        desk.progress.showProgressWindow("Loading", "", 1);
        const LogReport report = desk.gps.loadLog(path);
        QVERIFY(report.error == LogError::Unreadable);
        QCOMPARE(report.message, path + " could not be read: " + reason + ".");
        QCOMPARE(desk.messages, std::vector<std::string>{"Error! " + report.message});
        QVERIFY(desk.progress.progressWindow.isUp()); // no reader has started
        QVERIFY(looksLikeLog(path, LogReading::Exact));
        desk.load("<?xml version=\"1.0\"?><gpx><trkseg/></gpx>");
        QCOMPARE(desk.context.count<track>(), 1U);
    }

    void whatLooksLikeALog_data() {
        const auto row = test::rows<std::string, bool, bool>();
        row("XML", "<?xml version=\"1.0\"?>", true, true);
        row("XML without a declaration", "<gpx/>", false, true);
        row("sentence", "$GPRMC", true, true);
        row("any sentence", "# head\n\n$PMGNTRK", true, true);
        row("after a carriage return", "# head\r$GP", true, true);
        row("after a mark", "\xEF\xBB\xBF$GP", true, true);
        row("at the start of a block", std::string(inputBlockSize - 1, 'x') + "\n$", true, true);
        row("within a line", "cost: $5\n $GP", false, false);
        row("within a line over two blocks", std::string(inputBlockSize, 'x') + "$", false, false);
        row("prose", "Dear diary,\n", false, false);
        row("empty", "", false, false);
    }

    void whatLooksLikeALog() {
        const auto [text, exact, tolerant] = test::fetch<std::string, bool, bool>();
        LogDesk desk;
        const auto path = desk.write("x.txt", text);
        QCOMPARE(looksLikeLog(path, LogReading::Exact), exact);
        QCOMPARE(looksLikeLog(path, LogReading::Tolerant), tolerant);
    }

    void logsLargerThanABlock() {
        std::string gpx = "<?xml version=\"1.0\"?><gpx><trkseg>";
        std::string nmea;
        std::size_t points = 0;
        for (; gpx.size() < 3 * inputBlockSize || nmea.size() < 3 * inputBlockSize; ++points) {
            gpx += "<trkpt lat='1' lon='2'><time>2008-06-01T09:30:00Z</time></trkpt>\n";
            nmea +=
                "$GPGGA," + std::to_string(points) + ",4807.038,N,01131.000,E,1,08,0.9,545.4,M\n";
        }
        LogDesk desk;
        QCOMPARE(desk.load(gpx + "</trkseg></gpx>").points, points);
        QCOMPARE(desk.load(nmea).points, points);
    }
};

QTEST_GUILESS_MAIN(GpsTest)
#include "gps_test.moc"
