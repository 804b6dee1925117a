#include "recovery/program_run.h"
#include "recovery/test_files.h"

#include <QTemporaryDir>
#include <QTest>

#include <ctime>

using namespace pinmora;
using namespace pinmora::test;
namespace fs = std::filesystem;

namespace {

void liveIn(const char *zone) {
    qputenv("TZ", zone);
    tzset();
}

std::string gpx(const std::string &body) {
    return "<?xml version=\"1.0\"?><gpx>" + body + "</gpx>";
}

std::string point(const std::string &lat, const std::string &inside = "") {
    return "<trkpt lat=\"" + lat + "\" lon=\"8\"><time>2008-06-01T12:00:00Z</time>" + inside +
           "</trkpt>";
}

std::string manyPoints() {
    std::string points;
    for (int i = 0; i < 3000; ++i) {
        points += point("47." + std::to_string(i));
    }
    return gpx("<trk><trkseg>" + points + "</trkseg></trk>");
}

std::string utf16(const std::string &ascii) {
    std::string text = "\xFF\xFE";
    for (const char c : ascii) {
        text += c;
        text += '\0';
    }
    return text;
}

using Logs = std::vector<std::string>;

} // namespace

Q_DECLARE_METATYPE(Logs)
Q_DECLARE_METATYPE(pinmora::LogReading)

/// Imports are kept as the bytes of the logs, and read again to the same records.
class ImportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void logsAreReadAgainAsTheyWere_data();
    void logsAreReadAgainAsTheyWere();
    void textsThatWereNoFiles();
    void whatHappensToPointsInTheStepThatMadeThem();
    void aTurnOfTheEventLoopWhileALogIsRead();
    void countingGoesOn();
    void yearsAreThoseOfTheTime();
    void anImportIsKeptAsItsBytesOnly();

private:
    /// What the next run has, in another zone and without the logs.
    std::vector<std::string> broughtBack() {
        liveIn("JST-9");
        fs::remove_all(logs());
        ProgramRun program(files_);
        for (const RecoveryOffer &offer : program.offers()) {
            const auto error = program.recovered().bringBack(offer);
            if (error) {
                return {*error};
            }
        }
        return program.messages.empty() ? described(program.context()) : program.messages;
    }
    fs::path logs() const { return fs::path(folder_->path().toStdString()) / "logs"; }

    std::optional<QTemporaryDir> folder_;
    QuickFiles files_;
};

void ImportTest::init() {
    folder_.emplace();
    qputenv("XDG_DATA_HOME", folder_->path().toUtf8());
    fs::create_directory(logs());
    liveIn("CET-1CEST,M3.5.0,M10.5.0/3");
}

void ImportTest::logsAreReadAgainAsTheyWere_data() {
    QTest::addColumn<Logs>("logs");
    QTest::addColumn<LogReading>("reading");
    const auto row = [](const char *name, Logs logs, LogReading reading = LogReading::Exact) {
        QTest::newRow(name) << std::move(logs) << reading;
    };
    const std::string segment = gpx("<trk><trkseg>" + point("47.1") + "</trkseg></trk>");
    const std::string nmea = "$GPRMC,120510,A,4710.123,N,00810.456,E,0.5,054.7,010608,,,A\r\n"
                             "$GPGGA,120510,4710.124,N,00810.456,E,1,08,0.9,412.5,M,,,,\r\n\r\n";
    row("clock times of the zone", {segment});
    row("universal times", {segment}, LogReading::Tolerant);
    row("NMEA", {nmea});
    row("NMEA, tolerant", {nmea}, LogReading::Tolerant);
    row("NMEA with letters of Latin-1", {"\xE9\r\n" + nmea}, LogReading::Tolerant);
    row("NMEA with a mark", {"\xEF\xBB\xBF" + nmea});
    row("no log", {"nothing\n", nmea, "nothing"});
    row("empty log", {"", segment});
    row("several", {segment, nmea, segment, segment});
    row("larger than a block", {manyPoints(), segment});
    row("UTF-16", {utf16("\n" + gpx("<trk><trkseg>" + point("1") + "</trkseg></trk>"))},
        LogReading::Tolerant);
    row("malformed", {segment.substr(0, segment.size() - 20) + "&", segment});
    row("points without a segment", {gpx(point("1")), segment, gpx(point("2"))});
    row("values that a broken log has left",
        {"<?xml version=\"1.0\"?><gpx><trk><trkseg><trkpt lat=\"1\" lon=\"2\"><ele>3</ele>",
         gpx("<trk><trkseg><time>2008-06-01T13:00:00Z</time>"), gpx("</trk>"),
         gpx("<trk><trkseg><trkpt lon=\"9\"><time>2008-06-01T12:00:00Z</time></trkpt></trkseg>"
             "</trk>")});
    row("entities beside the log",
        {"<?xml version=\"1.0\"?><!DOCTYPE gpx [<!ENTITY height SYSTEM \"height.xml\">"
         "<!ENTITY none SYSTEM \"none.xml\">]><gpx><trk><trkseg>" +
         point("1", "<ele>&height;</ele>") + point("2", "<ele>&height;</ele>") +
         point("3", "<ele>&none;</ele>") + "</trkseg></trk></gpx>"});
}

void ImportTest::logsAreReadAgainAsTheyWere() {
    QFETCH(Logs, logs);
    QFETCH(LogReading, reading);
    std::vector<std::string> before;
    writeFile(this->logs() / "height.xml", "412.5");
    {
        ProgramRun program(files_);
        program.addPhoto("something that a person did");
        for (const std::string &log : logs) {
            program.import(writeFile(this->logs() / "log", log), reading);
        }
        before = described(program.context());
    }
    QCOMPARE(difference(broughtBack(), before), QString());
}

void ImportTest::textsThatWereNoFiles() {
    std::vector<std::string> before;
    {
        ProgramRun program(files_);
        program.step([&] { program.gps.processNMEAData("\xE9\r\n" + logText(4, 3)); });
        program.gps.setActiveLog(true);
        program.step([&] { program.gps.parseXMLFile(writeFile(logs() / "log", logText(1, 3))); });
        QCOMPARE(program.context().count<track_part>(), std::size_t(6));
        before = described(program.context());
    }
    QCOMPARE(difference(broughtBack(), before), QString());
}

void ImportTest::whatHappensToPointsInTheStepThatMadeThem() {
    std::vector<std::string> before;
    {
        ProgramRun program(files_);
        const auto points = [&] { return program.context().fetch<track_part>(); };
        {
            const UndoGroup group(program.context(), "Import");
            program.import(writeFile(logs() / "log", logText(1, 4)));
            points()[1]->setLat("changed");
            {
                const UnregisteredChanges isThePrograms(program.context());
                program.context().insert<image>().setZoom(3);
            }
            program.context().deleteObject(*points()[2]);
            program.import(writeFile(logs() / "log", logText(2, 4)));
            points()[4]->setTrack(nullptr);
        }
        program.undoManager().undo();
        program.undoManager().redo();
        before = described(program.context());
    }
    QCOMPARE(difference(broughtBack(), before), QString());
}

void ImportTest::aTurnOfTheEventLoopWhileALogIsRead() {
    std::vector<std::string> before;
    {
        ProgramRun program(files_);
        image &photo = program.addPhoto("a");
        const Connection drawn = program.progress.progressIndic.animating.onChange([&](bool) {
            photo.setComments(photo.comments().string() + "!");
            program.undoManager().closePart();
        });
        program.progress.showProgressWindow("Loading", "", 1);
        program.import(writeFile(logs() / "log", logText(4, 3)));
        program.undoManager().undo();
        QCOMPARE(program.context().count<track_part>(), std::size_t(0));
        program.undoManager().redo();
        before = described(program.context());
    }
    QCOMPARE(difference(broughtBack(), before), QString());
}

void ImportTest::countingGoesOn() {
    {
        ProgramRun program(files_);
        program.import(writeFile(logs() / "log", logText(1, 4)));
        program.import(writeFile(logs() / "log", logText(2, 4)));
    }
    ProgramRun program(files_);
    QVERIFY(!program.recovered().bringBack(program.offers().front()));
    program.import(writeFile(logs() / "log", logText(3, 1)));
    QCOMPARE(program.context().fetch<track>().back()->track_id(), std::optional(3));
    QCOMPARE(program.context().fetch<track_part>().back()->point_id(), std::optional(9));
}

void ImportTest::yearsAreThoseOfTheTime() {
    struct Bytes : ImportSource {
        std::string bytes = logText(4, 1);
        std::string given;
        std::string_view next() override { return given = std::exchange(bytes, {}); }
        std::optional<std::string> entity(std::string_view) override { return std::nullopt; }
    };
    ProgramRun program(files_);
    ImportFacts facts;
    facts.format = ImportFacts::Format::Nmea;
    facts.currentYear = 2007; // when "08" was still 1908
    Bytes source;
    program.gps.importAgain(program.context(), facts, nullptr, source);
    const Date date = program.context().fetch<track_part>().front()->time().value();
    QVERIFY(date < std::chrono::sys_days(std::chrono::year(1909) / 1 / 1));
}

void ImportTest::anImportIsKeptAsItsBytesOnly() {
    ProgramRun program(files_);
    const std::string log = manyPoints();
    program.import(writeFile(logs() / "log", log));
    program.undoManager().undo();
    program.undoManager().redo();
    QVERIFY(program.keeper.recorder().flush());
    QVERIFY(fs::file_size(currentJournal()) < log.size() + 1000);
}

QTEST_GUILESS_MAIN(ImportTest)
#include "import_test.moc"
