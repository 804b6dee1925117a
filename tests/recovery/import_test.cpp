#include "recovery/program_run.h"
#include "recovery/test_files.h"
#include "rows.h"

#include <QTemporaryDir>

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

/// Imports are kept as the bytes of the logs, and read again to the same records.
class ImportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        folder_.emplace();
        qputenv("XDG_DATA_HOME", folder_->path().toUtf8());
        fs::create_directory(logs());
        liveIn("CET-1CEST,M3.5.0,M10.5.0/3");
    }

    void logsAreReadAgainAsTheyWere_data() {
        const auto row = rows<Logs, LogReading>();
        const std::string segment = gpx("<trk><trkseg>" + point("47.1") + "</trkseg></trk>");
        const std::string nmea =
            "$GPRMC,120510,A,4710.123,N,00810.456,E,0.5,054.7,010608,,,A\r\n"
            "$GPGGA,120510,4710.124,N,00810.456,E,1,08,0.9,412.5,M,,,,\r\n\r\n";
        row("clock times of the zone", {segment}, LogReading::Exact);
        row("universal times", {segment}, LogReading::Tolerant);
        row("NMEA", {nmea}, LogReading::Exact);
        row("NMEA, tolerant", {nmea}, LogReading::Tolerant);
        row("NMEA with letters of Latin-1", {"\xE9\r\n" + nmea}, LogReading::Tolerant);
        row("NMEA with a mark", {"\xEF\xBB\xBF" + nmea}, LogReading::Exact);
        row("no log", {"nothing\n", nmea, "nothing"}, LogReading::Exact);
        row("empty log", {"", segment}, LogReading::Exact);
        row("several", {segment, nmea, segment, segment}, LogReading::Exact);
        row("larger than a block", {manyPoints(), segment}, LogReading::Exact);
        row("UTF-16", {utf16("\n" + gpx("<trk><trkseg>" + point("1") + "</trkseg></trk>"))},
            LogReading::Tolerant);
        row("malformed", {segment.substr(0, segment.size() - 20) + "&", segment},
            LogReading::Exact);
        row("points without a segment", {gpx(point("1")), segment, gpx(point("2"))},
            LogReading::Exact);
        row("values that a broken log has left",
            {"<?xml version=\"1.0\"?><gpx><trk><trkseg><trkpt lat=\"1\" lon=\"2\"><ele>3</ele>",
             gpx("<trk><trkseg><time>2008-06-01T13:00:00Z</time>"), gpx("</trk>"),
             gpx("<trk><trkseg><trkpt lon=\"9\"><time>2008-06-01T12:00:00Z</time></trkpt></trkseg>"
                 "</trk>")},
            LogReading::Exact);
        row("entities beside the log",
            {"<?xml version=\"1.0\"?><!DOCTYPE gpx [<!ENTITY height SYSTEM \"height.xml\">"
             "<!ENTITY none SYSTEM \"none.xml\">]><gpx><trk><trkseg>" +
             point("1", "<ele>&height;</ele>") + point("2", "<ele>&height;</ele>") +
             point("3", "<ele>&none;</ele>") + "</trkseg></trk></gpx>"},
            LogReading::Exact);
    }

    void logsAreReadAgainAsTheyWere() {
        const auto row = fetch<Logs, LogReading>();
        put(logs() / "height.xml", "412.5");
        const QString lost = lostOf([&](ProgramRun &program) {
            program.addPhoto("something that a person did");
            for (const std::string &log : std::get<Logs>(row)) {
                program.import(put(logs() / "log", log), std::get<LogReading>(row));
            }
        });
        QCOMPARE(lost, QString());
    }

    void textsThatWereNoFiles() {
        const QString lost = lostOf([&](ProgramRun &program) {
            program.step([&] { program.gps.processNMEAData("\xE9\r\n" + logText(4, 3)); });
            program.gps.setActiveLog(true);
            program.step([&] { program.gps.parseXMLFile(put(logs() / "log", logText(1, 3))); });
            QCOMPARE(program.context().count<track_part>(), 6U);
        });
        QCOMPARE(lost, QString());
    }

    void whatHappensToPointsInTheStepThatMadeThem() {
        const QString lost = lostOf([&](ProgramRun &program) {
            const auto points = [&] { return program.context().fetch<track_part>(); };
            {
                const UndoGroup group(program.context(), "Import");
                program.import(put(logs() / "log", logText(1, 4)));
                points()[1]->setLat("changed");
                {
                    const UnregisteredChanges isThePrograms(program.context());
                    program.context().insert<image>().setZoom(3);
                }
                program.context().deleteObject(*points()[2]);
                program.import(put(logs() / "log", logText(2, 4)));
                points()[4]->setTrack(nullptr);
            }
            program.undoManager().undo();
            program.undoManager().redo();
        });
        QCOMPARE(lost, QString());
    }

    void aTurnOfTheEventLoopWhileALogIsRead() {
        const QString lost = lostOf([&](ProgramRun &program) {
            image &photo = program.addPhoto("a");
            const Connection drawn = program.progress.progressIndic.animating.onChange([&](bool) {
                photo.setComments(photo.comments().string() + "!");
                program.undoManager().closePart();
            });
            program.progress.showProgressWindow("Loading", "", 1);
            program.import(put(logs() / "log", logText(4, 3)));
            program.undoManager().undo();
            QCOMPARE(program.context().count<track_part>(), 0U);
            program.undoManager().redo();
        });
        QCOMPARE(lost, QString());
    }

    void countingGoesOn() {
        {
            ProgramRun program(files_);
            program.import(put(logs() / "log", logText(1, 4)));
            program.import(put(logs() / "log", logText(2, 4)));
        }
        ProgramRun program(files_);
        QVERIFY(!program.recovered().bringBack(program.offers().front()));
        program.import(put(logs() / "log", logText(3, 1)));
        QCOMPARE(program.context().fetch<track>().back()->track_id(), std::optional(3));
        QCOMPARE(program.context().fetch<track_part>().back()->point_id(), std::optional(9));
    }

    void yearsAreThoseOfTheTime() {
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

    void anImportIsKeptAsItsBytesOnly() {
        ProgramRun program(files_);
        const std::string log = manyPoints();
        program.import(put(logs() / "log", log));
        program.undoManager().undo();
        program.undoManager().redo();
        QVERIFY(program.keeper.recorder().flush());
        QVERIFY(fs::file_size(currentJournal()) < log.size() + 1000);
    }

private:
    /// What a run does with records, and where those that the next run brings back, in another zone
    /// and without the logs, differ from them.
    QString lostOf(const std::function<void(ProgramRun &)> &work) {
        std::vector<std::string> before;
        {
            ProgramRun program(files_);
            work(program);
            before = described(program.context());
        }
        liveIn("JST-9");
        fs::remove_all(logs());
        ProgramRun program(files_);
        std::string errors = bringBackAll(program);
        for (const std::string &message : program.messages) {
            errors += message;
        }
        return errors.empty() ? difference(described(program.context()), before)
                              : QString::fromStdString(errors);
    }
    fs::path logs() const { return fs::path(folder_->path().toStdString()) / "logs"; }

    std::optional<QTemporaryDir> folder_;
    FailingFiles files_;
};

QTEST_GUILESS_MAIN(ImportTest)
#include "import_test.moc"
