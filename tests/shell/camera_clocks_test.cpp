#include "shell/desk.h"
#include "shell/offset_words.h"

#include <QTest>

using namespace pinmora;
using namespace std::chrono_literals;
using std::chrono::seconds;

namespace {

constexpr const char *canon = "Canon, Canon EOS 5D, 123";
constexpr const char *nikon = "NIKON CORPORATION, NIKON D70";

struct ClockDesk : Desk {
    ClockDesk() { start(); }

    image &addPhotoOf(const char *camera, const char *time = "2026:05:08 10:00:00") {
        image &photo = addPhoto("a", time);
        photo.setCamera(camera);
        endTurn();
        return photo;
    }
    void giveOwnClock(const char *camera, seconds apart) {
        parts().clockOffset.setHasOwnClock(camera, true);
        parts().clockOffset.setClock(camera, apart);
        endTurn();
    }
    void takeOwnClock(const char *camera) {
        parts().clockOffset.setHasOwnClock(camera, false);
        endTurn();
    }
    void undo() {
        parts().undoCommands.undoItem.press();
        endTurn();
    }
    void redo() {
        parts().undoCommands.redoItem.press();
        endTurn();
    }
    QString remembered() {
        return QString::fromStdString(delegate.defaults.text(cameraOffsetsKey).value_or(""));
    }
    seconds clock(const char *camera) { return parts().clockOffset.clock(camera); }
    QString saysBelow() { return QString::fromStdString(parts().clockLine.words.text.get()); }
    QString says() { return QString::fromStdString(parts().clockSaying.words.text.get()); }
};

} // namespace

class CameraClocksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void inWords_data() {
        QTest::addColumn<qint64>("apart");
        QTest::addColumn<QString>("sentence");
        QTest::addColumn<QString>("shortly");
        const auto row = [](seconds apart, const char *sentence, const char *shortly) {
            QTest::newRow(shortly) << qint64(apart.count()) << QString::fromUtf8(sentence)
                                   << QString::fromUtf8(shortly);
        };
        row(0s, "The camera’s clock was right.", "+0 s");
        row(12s, "The camera was 12 s slow.", "+12 s");
        row(3min + 12s, "The camera was 3 min 12 s slow.", "+3 min 12 s");
        row(-2h, "The camera was 2 h fast.", "−2 h 00 min");
        row(2h + 5s, "The camera was 2 h 5 s slow.", "+2 h 00 min 05 s");
        row(48h, "The camera was 48 h slow.", "+48 h 00 min");
        row(74h, "The camera was 3 d 2 h slow.", "+3 d 2 h 00 min");
        row(-(48h + 1s), "The camera was 2 d 1 s fast.", "−2 d 0 h 00 min 01 s");
    }

    void inWords() {
        QFETCH(const qint64, apart);
        QTEST(QString::fromStdString(offsetSentence(seconds(apart))), "sentence");
        QTEST(QString::fromStdString(shortOffset(seconds(apart))), "shortly");
    }

    void camerasAreCalledWhatTheyAre_data() {
        QTest::addColumn<QString>("camera");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("model");
        const auto row = [](const char *camera, const char *name, const char *model) {
            QTest::newRow(camera) << QString::fromLatin1(camera) << QString::fromLatin1(name)
                                  << QString::fromLatin1(model);
        };
        row(canon, "Canon EOS 5D", "EOS 5D");
        row(nikon, "NIKON D70", "D70");
        row("SONY, ILCE-7M3", "SONY ILCE-7M3", "ILCE-7M3");
        row("Pixel 7", "Pixel 7", "Pixel 7");
        row("Canon, Canonet", "Canon Canonet", "Canonet");
        row("", "", "");
    }

    void camerasAreCalledWhatTheyAre() {
        QFETCH(const QString, camera);
        QTEST(QString::fromStdString(cameraName(camera.toStdString())), "name");
        QTEST(QString::fromStdString(modelName(camera.toStdString())), "model");
    }

    void theClockInHandIsSaid() {
        ClockDesk desk;
        image &photo = desk.addPhotoOf(canon);
        desk.parts().clockOffset.setClock("", -90s);
        QCOMPARE(desk.says(), QStringLiteral("The camera was 1 min 30 s fast."));
        desk.giveOwnClock(canon, 2h);
        desk.select({&photo});
        QCOMPARE(desk.says(), QStringLiteral("Canon EOS 5D: 2 h slow"));
        QCOMPARE(desk.parts().clockSaying.heading.text.get(), std::string("Camera clock · EOS 5D"));
        desk.parts().clockOffset.turning.set(ClockTurn{.by = 60s, .camera = canon});
        QCOMPARE(desk.says(), QStringLiteral("Canon EOS 5D: 2 h 1 min slow"));
        desk.parts().clockOffset.cancelTurn();
        desk.undo();
        desk.undo();
        QCOMPARE(desk.says(), QStringLiteral("The camera was 1 min 30 s fast."));
    }

    void aTrueTimeSetsTheClock() {
        ClockDesk desk;
        TrueTime &trueTime = desk.parts().trueTime;
        image &photo = desk.addPhotoOf("", "2026:05:08 10:00:35");
        image &other = desk.addPhotoOf("");
        image &untimed = desk.addPhotoOf("");
        untimed.setNo_capture_time(true);
        for (const std::vector<image *> &unfit :
             {std::vector<image *>(), {&photo, &other}, {&untimed}}) {
            desk.select(unfit);
            desk.endTurn();
            QVERIFY(!trueTime.openButton.enabled.get());
            trueTime.open();
            QVERIFY(!trueTime.sheet.isUp());
        }
        desk.parts().clockOffset.setClock("", -30s);
        desk.select({&photo});
        desk.endTurn();
        trueTime.openButton.press();
        QVERIFY(trueTime.sheet.isUp());
        QCOMPARE(trueTime.cameraSays.text.get(), std::string("8 May 2026 10:00:35"));
        QCOMPARE(textFromWallClock(trueTime.taken.get(), "%H:%M:%S"), std::string("10:00:05"));
        trueTime.taken.set(trueTime.taken.get() + 10min);
        QCOMPARE(trueTime.words.text.get(), std::string("The camera was 9 min 30 s slow."));
        QCOMPARE(desk.clock(""), seconds(-30s)); // until it is said to be so
        trueTime.setButton.press();
        QVERIFY(!trueTime.sheet.isUp());
        QCOMPARE(desk.clock(""), seconds(9min + 30s));
        desk.undo();
        QCOMPARE(desk.clock(""), seconds(-30s));
    }

    void theCamerasAreListed() {
        ClockDesk desk;
        desk.addPhotoOf("");
        desk.addPhotoOf(nikon, "2026:05:09 10:00:00");
        desk.addPhotoOf(nikon, "2026:05:08 10:00:00");
        desk.addPhotoOf(canon);
        desk.addPhotoOf("Canon, Canon EOS 5D, 77");
        Cameras &cameras = desk.parts().cameras;
        cameras.open();
        QStringList names;
        for (const CameraInUse &one : cameras.cameras.get()) {
            names << QString::fromStdString(one.name);
        }
        QCOMPARE(names.join(u'|'), QStringLiteral("Canon EOS 5D, 123|Canon EOS 5D, 77|NIKON D70|"));
        const CameraInUse before = cameras.cameras.get().at(2);
        QCOMPARE(before.photos, std::size_t(2));
        QCOMPARE(*before.last - *before.first, std::chrono::microseconds(24h));
        QVERIFY(!before.hasOwnClock);
        cameras.setHasOwnClock(nikon, true);
        cameras.setClock(nikon, {.plus = false, .hours = 1});
        desk.endTurn();
        QVERIFY(cameras.cameras.get().at(2).hasOwnClock);
        QCOMPARE(cameras.cameras.get().at(2).clock.signedOffset(), seconds(-1h));
        desk.undo();
        QCOMPARE(cameras.cameras.get().at(2).clock.signedOffset(), seconds(0));
    }

    void aClockIsRememberedForTheNextOuting() {
        {
            ClockDesk desk;
            desk.addPhotoOf(canon);
            desk.giveOwnClock(canon, 192s);
            QCOMPARE(desk.remembered(),
                     QStringLiteral("+0:3:12 %1\n").arg(QLatin1StringView(canon)));
            desk.giveOwnClock(nikon, -1h); // no photo of it is here
        }
        std::filesystem::remove_all(qEnvironmentVariable("XDG_DATA_HOME").toStdString());
        ClockDesk desk;
        QCOMPARE(desk.clock(canon), seconds(0));
        desk.addPhotoOf(canon);
        QCOMPARE(desk.clock(canon), seconds(192s));
        QCOMPARE(desk.clock(nikon), seconds(0));
        QCOMPARE(desk.saysBelow(),
                 QStringLiteral("Cameras have clocks of their own: GPS > Cameras"));
        QuietBar &bar = desk.delegate.interface.quietBar;
        QCOMPARE(bar.message()->text,
                 std::string("Canon EOS 5D: 3 min 12 s slow, as you set it last time."));
        bar.choose(0);
        QVERIFY(desk.parts().cameras.sheet.isUp());
        desk.addPhotoOf(nikon);
        QCOMPARE(desk.clock(nikon), seconds(-1h));
        desk.undo(); // nothing but the photo
        QCOMPARE(desk.clock(nikon), seconds(-1h));
        QVERIFY(desk.remembered().contains(QStringLiteral("-1:0:0 NIKON")));
    }

    void aClockThatIsTakenAwayIsForgotten() {
        ClockDesk desk;
        desk.addPhotoOf(canon);
        desk.giveOwnClock(canon, 192s);
        desk.takeOwnClock(canon);
        QCOMPARE(desk.remembered(), QString());
        QCOMPARE(desk.clock(canon), seconds(0)); // nor does it come back by itself
        desk.undo();
        QVERIFY(desk.remembered().startsWith(QStringLiteral("+0:3:12 ")));
        QCOMPARE(desk.clock(canon), seconds(192s));
        desk.redo();
        QCOMPARE(desk.remembered(), QString());
    }

    /// Undo brings back a text that does not name a camera that has come since.
    void undoForgetsNoCameraThatItDoesNotConcern() {
        ClockDesk desk;
        desk.addPhotoOf(nikon);
        desk.addPhotoOf(canon);
        desk.delegate.defaults.setText(cameraOffsetsKey, std::string("-1:0:0 ") + nikon + "\n");
        desk.giveOwnClock(canon, 192s);
        QCOMPARE(desk.clock(nikon), seconds(-1h));
        desk.undo();
        desk.undo();
        QCOMPARE(desk.clock(canon), seconds(0));
        QCOMPARE(desk.clock(nikon), seconds(-1h));
        QCOMPARE(desk.remembered(), QStringLiteral("-1:0:0 %1\n").arg(QLatin1StringView(nikon)));
    }
};

QTEST_MAIN(CameraClocksTest)
#include "camera_clocks_test.moc"
