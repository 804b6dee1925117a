#include "gps/gps_intake.h"
#include "gps/log_desk.h"
#include "outlets/quiet_bar.h"
#include "outlets/status_line.h"
#include "persistence/undo_manager.h"
#include "photos/photo_intake.h"
#include "photos/photos.h"
#include "platform/defaults.h"
#include "platform/zone_scope.h"
#include "shell/log_intake_adapter.h"
#include "shell/reading_offer.h"
#include "shell/reading_trial.h"
#include "shell/track_words.h"
#include "store/image.h"
#include "store/offset.h"

#include <QImage>

#include <thread>

using namespace pinmora;
using namespace pinmora::test;
namespace fs = std::filesystem;

using Words = std::vector<std::string>;

namespace {

std::string gpx(const Words &times) {
    std::string text = "<?xml version=\"1.0\"?><gpx><trk><trkseg>";
    for (const std::string &time : times) {
        text += "<trkpt lat=\"47\" lon=\"8\"><time>" + time + "</time></trkpt>";
    }
    return text + "</trkseg></trk></gpx>";
}

const std::string tenToEleven = gpx({"2024-05-01T10:00:00Z", "2024-05-01T11:00:00Z"});

/// All that brings logs and photos in, and the offer that watches over it.
struct OfferDesk : LogDesk {
    UndoManager undo{context};
    Defaults defaults;
    bool loadRunning = false;
    WorkingWindow workingWindow = [this]() -> Window & { return window; };
    GpsIntake gpsIntake{context, gps, progress, defaults, workingWindow, loadRunning};
    LogIntakeAdapter logs{gps};
    PhotoTypes types;
    Photos photos{context, logs, types};
    StatusLine statusLine;
    PhotoIntake photoIntake{context,  photos,        progress,   statusLine,
                            defaults, workingWindow, loadRunning};
    std::string clock; ///< when photos that come were taken, on the first of May 2024
    Connection dated = photoIntake.loaded.connect([this](auto &, const std::vector<image *> &came) {
        for (image *photo : came) {
            photo->setDate(Text("2024:05:01 " + clock));
            photo->setNo_capture_time(false);
        }
    });
    ObjectController<offset> offsetObj;
    QuietBar bar;
    std::optional<ReadingOffer> offer{std::in_place, context, gps,        gpsIntake,
                                      photoIntake,   logs,    offsetObj,  defaults,
                                      progress,      bar,     loadRunning};
    int timesRead = 0;
    Connection read = offer->readAgain.connect([this] { timesRead += loadRunning ? 100 : 1; });

    void loadLog(std::string_view name, std::string_view text) {
        gpsIntake.getGPSFile();
        gpsIntake.panel.answer({write(name, text)});
    }
    void writePhoto(const std::string &name) const {
        QImage picture(4, 3, QImage::Format_RGB32);
        picture.fill(0);
        picture.save(QString::fromStdString(pathOf(name)));
    }
    void loadPhoto(const std::string &name, const std::string &taken) {
        clock = taken;
        writePhoto(name);
        photoIntake.applicationOpenFile(pathOf(name));
    }
    std::string said() {
        offer->waitForTrial();
        if (!bar.message()) {
            return {};
        }
        std::string words = bar.message()->head + "|" + bar.message()->text;
        for (const BarMessage::Choice &choice : bar.message()->choices) {
            words += "|" + choice.title;
        }
        return words;
    }
};

const std::string universal =
    "a.gpx gives its times in universal time.|Read as clock time they miss your photos by 2 h.|"
    "Use Universal Time|Keep";

} // namespace

/// The offer to read logs in another way, from the load to the reading.
class ReadingOfferTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useCentralEuropeanTime(); }
    void theOtherReadingIsOfferedAndUsed();
    void itComesInTheOrderOfLoading_data();
    void itComesInTheOrderOfLoading();
    void theTrueClockBringsIt();
    void theWayBackIsOffered();
    void theOfferIsUsedWhileAnotherLogIsOnTrial();
    void unfitTextComesFirst();
    void anOfferGoesWithTheReadingItWasMadeOf();
    void whatIsKeptIsNotOfferedAgain();
    void logsThatHaveGoneAreNotOffered();
    void theEventLoopBringsIt();
    void aTrialMayEndInTheMiddleOfALoad();
    void goingMidwayIsSafe();
    void anotherZoneIsNotTheTrials();
};

void ReadingOfferTest::theOtherReadingIsOfferedAndUsed() {
    OfferDesk desk;
    desk.offsetObj.setContent(&desk.context.insert<offset>());
    desk.offsetObj.content()->setPlus(1);
    desk.offsetObj.content()->setSeconds(1);
    desk.loadLog("old.gpx", gpx({"2023-01-01T10:00:00Z"}));
    fs::create_directory(desk.pathOf("outing"));
    desk.write("outing/a.gpx", tenToEleven);
    desk.writePhoto("outing/p.jpg");
    desk.clock = "13:01:00";
    desk.photoIntake.applicationOpenFile(desk.pathOf("outing"));
    QCOMPARE(desk.said(),
             "a.gpx gives its times in universal time.|Read as clock time they miss your photos by "
             "2 h. Then check the camera clock: it is corrected by an offset.|Use Universal Time|"
             "Keep");
    const std::string before = desk.points();
    desk.undo.closeStep();

    desk.bar.choose(0);
    QCOMPARE(tracksIn(desk.context), "1/old.gpx/tolerant/1 2/a.gpx/tolerant/2");
    QVERIFY(desk.points().find("47/8/-/2024-05-01T11:00:00/") != std::string::npos);
    QCOMPARE(desk.gps.reading(), LogReading::Tolerant);
    QCOMPARE(desk.defaults.text("logReading"), "tolerant");
    QCOMPARE(desk.timesRead, 1);
    QVERIFY(!desk.progress.progressWindow.isUp() && !desk.bar.message());
    QCOMPARE(desk.undo.undoActionName(), "Read Logs Again");
    desk.undo.undo();
    QCOMPARE(desk.points(), before);
    QCOMPARE(tracksIn(desk.context), "1/old.gpx/exact/1 2/a.gpx/exact/2");
}

void ReadingOfferTest::itComesInTheOrderOfLoading_data() {
    QTest::addColumn<bool>("waits"); // for the trial, before the photo comes
    QTest::newRow("before the trial ends") << false;
    QTest::newRow("after it") << true;
}

void ReadingOfferTest::itComesInTheOrderOfLoading() {
    QFETCH(bool, waits);
    OfferDesk desk;
    desk.loadLog("a.gpx", tenToEleven);
    if (waits) {
        QCOMPARE(desk.said(), "");
    }
    desk.loadPhoto("p.jpg", "12:59:00");
    QCOMPARE(desk.said(), universal);
    desk.loadPhoto("q.jpg", "11:01:00"); // fits the reading in force
    desk.loadPhoto("r.jpg", "10:01:00");
    QCOMPARE(desk.said(), "");
}

void ReadingOfferTest::theWayBackIsOffered() {
    OfferDesk desk;
    desk.loadLog("a.gpx", tenToEleven);
    desk.loadPhoto("p.jpg", "13:01:00");
    desk.said();
    desk.bar.choose(0);
    desk.loadPhoto("q.jpg", "10:01:00");
    desk.loadPhoto("r.jpg", "11:01:00");
    QCOMPARE(desk.said(), "a.gpx gives its times in clock time.|Read as universal time they miss "
                          "your photos by 2 h.|Use Clock Time|Keep");
    desk.bar.choose(0);
    QCOMPARE(tracksIn(desk.context), "1/a.gpx/exact/2");
    QCOMPARE(desk.defaults.text("logReading"), "exact");
}

/// A person has chosen the other reading in the settings.
void ReadingOfferTest::anOfferGoesWithTheReadingItWasMadeOf() {
    OfferDesk desk;
    desk.defaults.setText("logReading", "exact");
    desk.loadLog("a.gpx", tenToEleven);
    desk.loadPhoto("p.jpg", "13:01:00");
    QVERIFY(!desk.said().empty());
    desk.defaults.setText("logReading", "tolerant");
    QCOMPARE(desk.said(), "");
    QCOMPARE(tracksIn(desk.context), "1/a.gpx/exact/2");
    desk.loadLog("b.gpx", tenToEleven);
    QCOMPARE(tracksIn(desk.context), "1/a.gpx/exact/2 2/b.gpx/tolerant/2");
}

void ReadingOfferTest::theOfferIsUsedWhileAnotherLogIsOnTrial() {
    OfferDesk desk;
    desk.loadLog("b.gpx", tenToEleven);
    desk.loadPhoto("p.jpg", "13:01:00");
    desk.said();
    desk.loadLog("a.gpx", tenToEleven);
    desk.bar.choose(0);
    desk.loadLog("a.gpx", tenToEleven);
    desk.loadPhoto("q.jpg", "10:01:00");
    desk.loadPhoto("r.jpg", "11:01:00");
    QVERIFY(desk.said().starts_with("a.gpx and 1 other log give their times in clock time."));
}

void ReadingOfferTest::theTrueClockBringsIt() {
    OfferDesk desk;
    desk.offsetObj.setContent(&desk.context.insert<offset>());
    desk.offsetObj.content()->setPlus(1);
    desk.loadLog("a.gpx", tenToEleven);
    desk.loadPhoto("p.jpg", "11:48:00");
    QCOMPARE(desk.said(), "");
    desk.offsetObj.content()->setHours(1);
    desk.offsetObj.content()->setMinutes(13);
    QVERIFY(QTest::qWaitFor([&] { return desk.said().starts_with("a.gpx gives its times"); }));
    desk.offsetObj.content()->setMinutes(0);
    QVERIFY(QTest::qWaitFor([&] { return desk.said().empty(); }));
}

void ReadingOfferTest::unfitTextComesFirst() {
    OfferDesk desk;
    desk.loadLog("a.gpx", tenToEleven);
    desk.loadPhoto("p.jpg", "13:01:00");
    desk.said();
    bool isFit = false;
    desk.context.setEndEditing([&isFit] { return isFit; });
    desk.bar.choose(0);
    QCOMPARE(desk.gps.reading(), LogReading::Exact);
    QCOMPARE(tracksIn(desk.context), "1/a.gpx/exact/2");
    QCOMPARE(desk.said(), universal);
    isFit = true;
    desk.bar.choose(0);
    QCOMPARE(tracksIn(desk.context), "1/a.gpx/tolerant/2");
}

void ReadingOfferTest::whatIsKeptIsNotOfferedAgain() {
    OfferDesk desk;
    desk.loadLog("a.gpx", tenToEleven);
    desk.loadPhoto("p.jpg", "13:01:00");
    QCOMPARE(desk.said(), universal);
    desk.bar.choose(1);
    desk.loadPhoto("q.jpg", "13:02:00");
    QCOMPARE(desk.said(), "");
    QCOMPARE(desk.gps.reading(), LogReading::Exact);
    desk.loadLog("a.gpx", tenToEleven); // by loading it anew, a person asks anew
    QCOMPARE(desk.said(), universal);
}

void ReadingOfferTest::logsThatHaveGoneAreNotOffered() {
    OfferDesk desk;
    desk.loadPhoto("p.jpg", "13:01:00");
    desk.loadLog("a.gpx", tenToEleven);
    desk.undo.undo();
    QCOMPARE(desk.said(), ""); // it went before the trial ended
    desk.loadLog("a.gpx", tenToEleven);
    QCOMPARE(desk.said(), universal);
    desk.undo.undo();
    QTRY_VERIFY(!desk.bar.message());
}

void ReadingOfferTest::theEventLoopBringsIt() {
    OfferDesk desk;
    desk.loadPhoto("p.jpg", "13:01:00");
    desk.loadLog("b.gpx", tenToEleven);
    desk.loadLog("a.gpx", tenToEleven); // the trial of both takes the place of the first
    QVERIFY(!desk.bar.message());
    QTRY_VERIFY(desk.bar.message());
    QCOMPARE(desk.bar.message()->head, "a.gpx and 1 other log give their times in universal time.");
}

void ReadingOfferTest::aTrialMayEndInTheMiddleOfALoad() {
    OfferDesk desk;
    desk.loadPhoto("p.jpg", "13:01:00");
    desk.loadLog("a.gpx", tenToEleven);
    bool ended = false;
    const Connection midway = desk.photos.photoLoaded.connect([&](std::size_t) {
        QCOMPARE(desk.said(), "");
        ended = true;
    });
    desk.loadPhoto("q.jpg", "13:01:00");
    QVERIFY(ended);
    QCOMPARE(desk.said(), universal);
}

void ReadingOfferTest::goingMidwayIsSafe() {
    OfferDesk desk;
    desk.loadPhoto("p.jpg", "13:01:00");
    for (int i = 0; i < 20; ++i) {
        desk.loadLog("log" + std::to_string(i), tenToEleven);
    }
    desk.offer.reset();
    QCoreApplication::processEvents();
    QVERIFY(!desk.bar.message());
}

void ReadingOfferTest::anotherZoneIsNotTheTrials() {
    LogDesk desk;
    const fs::path log = desk.write("a.gpx", tenToEleven);
    std::vector<LogTimes> results;
    ReadingTrial trial([&](std::vector<LogTimes> read) { results = std::move(read); });
    {
        const ZoneScope zone("JST-9");
        trial.begin({log, log}, LogReading::Exact);
        for (int i = 0; i < 10'000; ++i) {
            std::this_thread::yield();
        }
    }
    trial.wait();
    QCOMPARE(results.size(), 2U);
    for (const LogTimes &read : results) {
        QCOMPARE(read.times, readForTrial(log, LogReading::Exact).times);
    }
}

QTEST_GUILESS_MAIN(ReadingOfferTest)
#include "reading_offer_test.moc"
