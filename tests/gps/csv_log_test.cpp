#include "gps/csv_log.h"
#include "gps/log_desk.h"
#include "gps/log_head.h"
#include "rows.h"

#include <array>
#include <utility>

using namespace pinmora;
using pinmora::test::LogDesk;

namespace {

const std::array formats{test::csvLogFormat, textLogFormats().front()};

const std::string csvLog = "time,latitude,longitude,altitude\r\n"
                           "2025-06-14T15:31:00Z,47.17360,8.51521,421\r\n"
                           "2025-06-14T15:31:xx,47.17360,8.51521,421\r\n"
                           "\n"
                           "2025-06-14T17:31:12.5+02:00,-47.1700,-8.5,\n"
                           "2025-06-14T15:31:24Z,90.5,8.5,420\n"
                           "2025-06-14T15:31:24Z,47.17";

const std::string itsPoints = "47.17360/8.51521/421/2025-06-14T15:31:00/1/1 "
                              "-47.1700/-8.5/-/2025-06-14T15:31:12+500000us/2/1";

/// Keeps what is told of one import, and gives it back.
struct Kept : ImportJournal, ImportSource {
    ImportFacts facts;
    std::string bytes;
    std::string given;

    void beginImport(const ImportFacts &told) override { facts = told; }
    std::string spareBlock() override { return std::string(inputBlockSize, '\0'); }
    void importBytes(std::string more) override { bytes += more; }
    void importEntity(std::string_view, const std::optional<std::string> &) override {}
    void endImport() override {}
    std::string_view next() override { return given = std::exchange(bytes, {}); }
    std::optional<std::string> entity(std::string_view) override { return std::nullopt; }
};

} // namespace

/// The example of docs/add-a-log-format.md: a format that the program does not have, plugged in by
/// its row of the table.
class CsvLogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isReadByItsRow_data() {
        const auto row = test::rows<std::string, std::string, std::string>();
        row("CSV", csvLog, itsPoints,
            "3 points or sentences could not be used, the first in line 3: ");
        row("with a mark", "\xEF\xBB\xBF" + csvLog, itsPoints, "3 points");
        row("heading only", "time,latitude,longitude", "", "");
    }

    void isReadByItsRow() {
        const auto [bytes, points, unusable] = test::fetch<std::string, std::string, std::string>();
        LogDesk desk;
        Gps gps(desk.context, desk.progress, desk.errors, formats);
        const auto path = desk.write("walk.log", bytes);
        const LogReport report = gps.loadLog(path);
        QCOMPARE(desk.points(), points);
        QVERIFY2(report.unusableText().starts_with(unusable), report.unusableText().c_str());
        QVERIFY(desk.messages.empty());
        QVERIFY(looksLikeLog(path, LogReading::Tolerant, formats));
    }

    void othersAreReadAsBefore() {
        for (const char *const other :
             {"$GPRMC,123519,A,4807.038,N,01131.000,E,1,2,230394,3,W\n$GPGSV,1,1\n",
              "<?xml version=\"1.0\"?><gpx><trk><trkseg><trkpt lat=\"1\" lon=\"2\">"
              "<time>2008-06-01T09:30:00Z</time></trkpt></trkseg></trk></gpx>"}) {
            LogDesk plain;
            plain.load(other);
            QVERIFY(!plain.points().empty());
            LogDesk desk;
            Gps(desk.context, desk.progress, desk.errors, formats)
                .loadLog(desk.write("walk.log", other));
            QCOMPARE(desk.points(), plain.points());
        }
    }

    void isReadAgainAfterACrash() {
        LogDesk desk;
        Kept kept;
        Gps gps(desk.context, desk.progress, desk.errors, formats);
        gps.setImportJournal(&kept);
        gps.loadLog(desk.write("walk.log", csvLog));
        LogDesk later;
        Gps(later.context, later.progress, later.errors, formats)
            .importAgain(later.context, kept.facts, nullptr, kept);
        QCOMPARE(later.points(), itsPoints);
    }

    /// What the page shows is what is compiled here.
    void thePageQuotesTheExample() {
        const auto textOf = [](const char *path) {
            std::ifstream file(std::string(PINMORA_SOURCE_DIR) + path);
            return std::string(std::istreambuf_iterator<char>(file), {});
        };
        const std::string page = textOf("/docs/add-a-log-format.md");
        const std::string code = textOf("/tests/gps/csv_log.h") + textOf("/tests/gps/csv_log.cpp");
        int blocks = 0;
        for (std::size_t at = page.find("```cpp\n"); at != std::string::npos;
             at = page.find("```cpp\n", at)) {
            at += 7;
            const std::size_t end = page.find("```", at);
            const std::string block = page.substr(at, end - at);
            QVERIFY2(code.find(block) != std::string::npos, block.c_str());
            ++blocks;
            at = end + 3;
        }
        QVERIFY(blocks >= 3);
    }
};

QTEST_GUILESS_MAIN(CsvLogTest)
#include "csv_log_test.moc"
