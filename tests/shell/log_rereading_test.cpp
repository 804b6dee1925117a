#include "gps/log_desk.h"
#include "persistence/undo_manager.h"
#include "recovery/program_run.h"
#include "recovery/test_files.h"
#include "shell/log_rereading.h"
#include "shell/track_words.h"

using namespace pinmora;
using namespace pinmora::test;
namespace fs = std::filesystem;

using Words = std::vector<std::string>;

namespace {

const std::string segment =
    "<trk><trkseg><trkpt lat=\"47\" lon=\"8\"><time>2024-05-01T10:00:00Z</time></trkpt>"
    "<trkpt lat=\"47\" lon=\"9\"><time>2024-05-01T10:00:01.5Z</time></trkpt></trkseg></trk>";
const std::string gpxLog = "<?xml version=\"1.0\"?><gpx>" + segment + segment + "</gpx>";
const std::string nmeaLog = "$GNRMC,100000.00,A,4717.000,N,00833.000,E,0,0,010524,,,A*4E\r\n"
                            "$GPRMC,100001.00,A,4717.000,N,00833.000,E,0,0,010524,,,A*51\r\n";

} // namespace

/// Reading the logs of the library again with the other reading.
class LogRereadingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useCentralEuropeanTime(); }
    void newTracksTakeThePlaceOfTheOld();
    void whatCannotBeReadAgainStays_data();
    void whatCannotBeReadAgainStays();
    void itComesBackAfterACrash_data();
    void itComesBackAfterACrash();
};

void LogRereadingTest::newTracksTakeThePlaceOfTheOld() {
    LogDesk desk;
    UndoManager undo(desk.context);
    desk.gps.loadLog(desk.write("a.gpx", gpxLog));
    desk.gps.loadLog(desk.write("b.nmea", nmeaLog));
    for (track *one : desk.context.records<track>()) {
        one->setTrack_id(one->track_id().value() + 10);
    }
    undo.closeStep();
    const std::string before = desk.points();
    Words shown;
    const Connection drawn = desk.progress.progressWindow.displayed.connect([&] {
        QVERIFY(desk.progress.progressWindow.isUp());
        shown.push_back(desk.progress.progressTextSub.text.get());
    });
    QCOMPARE(readLogsAgain(desk.context, LogReading::Tolerant, nullptr, desk.progress), Words());
    QCOMPARE(tracksIn(desk.context),
             "11/a.gpx/tolerant/2 12/a.gpx/tolerant/2 11/b.nmea/tolerant/2");
    QVERIFY(desk.points().starts_with("47/8/-/2024-05-01T10:00:00/"));
    QCOMPARE(shown,
             (Words{"", "Reading 1 of 2", "Reading 1 of 2", "Reading 2 of 2", "Reading 2 of 2"}));
    QVERIFY(!desk.progress.progressWindow.isUp());
    undo.undo();
    QCOMPARE(desk.points(), before);
}

void LogRereadingTest::whatCannotBeReadAgainStays_data() {
    QTest::addColumn<std::optional<std::string>>("text"); // nothing: the file is gone
    using Text = std::optional<std::string>;
    QTest::newRow("gone") << Text();
    QTest::newRow("no log any more") << Text("some text");
    QTest::newRow("cut off") << Text(gpxLog.substr(0, gpxLog.size() - 10));
    QTest::newRow("empty") << Text("<?xml version=\"1.0\"?><gpx/>");
}

void LogRereadingTest::whatCannotBeReadAgainStays() {
    QFETCH(std::optional<std::string>, text);
    LogDesk desk;
    desk.gps.loadLog(desk.write("a.gpx", gpxLog));
    const std::string before = desk.points();
    if (text) {
        desk.write("a.gpx", *text);
    } else {
        fs::remove(desk.pathOf("a.gpx"));
    }
    QCOMPARE(readLogsAgain(desk.context, LogReading::Tolerant, nullptr, desk.progress),
             Words{desk.pathOf("a.gpx")});
    QCOMPARE(desk.points(), before);
    QCOMPARE(desk.messages, Words());
}

void LogRereadingTest::itComesBackAfterACrash_data() {
    QTest::addColumn<int>("undone");
    QTest::addColumn<int>("redone");
    QTest::newRow("read again") << 0 << 0;
    QTest::newRow("and taken back") << 1 << 0;
    QTest::newRow("and read again after all") << 1 << 1;
}

/// The steps stand in the journal as bytes of logs, one of which is no log any more, and as the
/// tracks that went.
void LogRereadingTest::itComesBackAfterACrash() {
    QFETCH(int, undone);
    QFETCH(int, redone);
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    const fs::path logs = home.path().toStdString();
    Words before;
    {
        ProgramRun program;
        for (const auto &[name, text] : {std::pair("a.gpx", gpxLog), std::pair("b.nmea", nmeaLog),
                                         std::pair("c.gpx", gpxLog)}) {
            std::ofstream(logs / name) << text;
            program.import(logs / name);
        }
        std::ofstream(logs / "a.gpx") << gpxLog.substr(0, gpxLog.size() - 10);
        readLogsAgain(program.context(), LogReading::Tolerant, program.gps.importJournal(),
                      program.progress);
        for (int i = 0; i < undone; ++i) {
            program.undoManager().undo();
        }
        for (int i = 0; i < redone; ++i) {
            program.undoManager().redo();
        }
        QVERIFY(program.keeper.recorder().flush());
        before = described(program.context());
    }
    ProgramRun program;
    QCOMPARE(program.offers().size(), 1U);
    QVERIFY(!program.recovered().bringBack(program.offers().front()));
    QCOMPARE(difference(described(program.context()), before), QString());
}

QTEST_GUILESS_MAIN(LogRereadingTest)
#include "log_rereading_test.moc"
