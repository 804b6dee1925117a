#include "gps/gps_intake.h"
#include "gps/log_desk.h"
#include "persistence/undo_manager.h"
#include "platform/defaults.h"

using namespace pinmora;
using test::LogDesk;

using Words = std::vector<std::string>;

namespace {

constexpr std::string_view gpxLog =
    "<?xml version=\"1.0\"?><gpx><trk><trkseg><trkpt lat=\"1\" lon=\"2\">"
    "<time>2024-05-01T10:00:00Z</time></trkpt></trkseg></trk></gpx>";
constexpr std::string_view nmeaLog =
    "$GPRMC,100000,A,4717.000,N,00833.000,E,0,0,010524,,*00\n$GPRMC,100001,A,4717.000,N,00833.000,"
    "E,0,0,010524,,*00\n";

struct IntakeDesk : LogDesk {
    UndoManager undo{context};
    Defaults defaults;
    bool loadRunning = false;
    GpsIntake intake{context,    gps, progress, defaults, [this]() -> Window & { return window; },
                     loadRunning};
    std::vector<LogReport> reports;
    int loads = 0;
    Connection heard = intake.loaded.connect([this](const std::vector<LogReport> &told) {
        reports = told;
        loads += loadRunning ? 100 : 1;
    });
};

} // namespace

/// How logs come in through the open panel.
class GpsIntakeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thePanelOffersLogs() {
        IntakeDesk desk;
        desk.defaults.setText("gpsDir", "/logs/first.gpx");
        desk.gps.setActiveLog(true);
        desk.intake.menuLoadGPSData();
        QVERIFY(!desk.gps.activeLog() && !desk.gps.gpxFile() && !desk.gps.inTrack());
        const OpenPanel &panel = desk.intake.panel;
        QCOMPARE(desk.intake.panel.sheet().host().get(), &desk.window);
        QVERIFY(!panel.canChooseDirectories && panel.allowsMultipleSelection);
        QCOMPARE(panel.directory, "/logs/first.gpx");
        QCOMPARE(panel.allowedTypes,
                 (Words{"log", "LOG", "txt", "TXT", "gpx", "GPX", "nmea", "NMEA"}));
    }

    void nothingComesOfACancelledPanel() {
        IntakeDesk desk;
        desk.defaults.setText("gpsDir", "/before");
        desk.intake.getGPSFile();
        desk.intake.panel.answer({});
        QVERIFY(!desk.intake.panel.sheet().isUp() && !desk.progress.progressWindow.isUp());
        QCOMPARE(desk.loads, 0);
        QCOMPARE(desk.defaults.text("gpsDir"), "/before");
    }

    /// The readers close the sheet at the end of the first log; the load goes on unseen.
    void logsAreReadOneAfterTheOther() {
        IntakeDesk desk;
        const Words logs{desk.write("a.txt", gpxLog), desk.write("b.log", "no log"),
                         desk.write("c.gpx", nmeaLog)};
        Words shown;
        const Connection drawn = desk.progress.progressWindow.displayed.connect([&] {
            const ProgressBar &bar = desk.progress.progressIndic;
            shown.push_back(desk.progress.progressTextMain.text.get() + "|" +
                            desk.progress.progressTextSub.text.get() + "|" +
                            std::to_string(static_cast<int>(bar.value.get())) + "/" +
                            std::to_string(static_cast<int>(bar.maximum.get())) +
                            (desk.progress.progressWindow.isUp() ? "" : " closed"));
        });
        desk.progress.progressIndic.value.set(9); // of a load before
        desk.intake.getGPSFile();
        desk.intake.panel.answer(logs);
        QVERIFY(!desk.intake.panel.sheet().isUp() && !desk.progress.progressWindow.isUp());
        const std::string head = "Loading GPS data|";
        QCOMPARE(shown,
                 (Words{head + "|0/3", head + "Loading 1 of 3|0/3", head + "Loading 1 of 3|1/3",
                        head + "Loading 1 of 3|2/3 closed", head + "Loading 2 of 3|2/3 closed",
                        head + "Loading 2 of 3|3/3 closed", head + "Loading 2 of 3|4/3 closed",
                        head + "Loading 3 of 3|4/3 closed", head + "Loading 3 of 3|5/3 closed",
                        head + "Loading 3 of 3|6/3 closed"}));
        QCOMPARE(desk.loads, 1);
        QCOMPARE(desk.reports.size(), 3U);
        QCOMPARE(desk.reports[1].error, LogError::NotALog);
        QCOMPARE(desk.context.count<track>(), 2U);
        QCOMPARE(desk.messages.size(), 1U);
        QCOMPARE(desk.defaults.text("gpsDir"), logs.front());

        QCOMPARE(desk.undo.undoActionName(), "Load GPS Data");
        desk.undo.undo();
        QCOMPARE(desk.context.count<track>(), 0U);
        QVERIFY(!desk.undo.canUndo());
    }

    void noLoadBeginsWithinAnother() {
        IntakeDesk desk;
        desk.intake.getGPSFile();
        desk.loadRunning = true;
        desk.intake.panel.answer({desk.write("a.gpx", gpxLog)});
        QVERIFY(!desk.intake.panel.sheet().isUp());
        desk.gps.setActiveLog(true);
        desk.intake.getGPSFile();
        QVERIFY(!desk.intake.panel.sheet().isUp() && desk.gps.activeLog());
        QCOMPARE(desk.loads, 0);
        QCOMPARE(desk.context.count<track>(), 0U);
    }
};

QTEST_GUILESS_MAIN(GpsIntakeTest)
#include "gps_intake_test.moc"
