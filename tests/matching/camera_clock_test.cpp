#include "matching/desk.h"
#include "matching/placing.h"
#include "rows.h"

using namespace pinmora;
using namespace std::chrono_literals;

/// Clocks that cameras have of their own, clocks that are being turned, and what is applied to
/// some of the photos only.
class CameraClockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offsetsAsText_data() {
        const auto row = test::rows<std::string, std::string>();
        row("two", "-0:3:12 A, B\n+26:75:0 C", "-0:3:12 A, B\n+26:75:0 C\n");
        row("a sign of nothing", "+0:0:0 A\n", "+0:0:0 A\n");
        row("the last one counts", "+1:0:0 A\n-2:0:0 A\n", "-2:0:0 A\n");
        row("rubbish", "1:0:0 A\n+1:0 A\n+1:-2:0 A\n+9999999999:0:0 A\n+1:0:0 \n+1:0:0A\n\n", "");
    }

    void offsetsAsText() {
        const auto [text, kept] = test::fetch<std::string, std::string>();
        QCOMPARE(CameraOffsets(text).text(), kept);
    }

    void aNameWithALineBreakStaysOneLine() {
        CameraOffsets offsets;
        offsets.set("A\nB", {.plus = true, .hours = 1});
        const CameraOffsets read(offsets.text());
        QVERIFY(read.find("A\nB"));
        QCOMPARE(read.find("A\nB")->signedOffset(), std::chrono::seconds(1h));
    }

    void aCameraCanHaveItsOwnClock() {
        Desk desk;
        image &other = desk.addPhoto("12:00:00");
        desk.photo.setCamera("Maker, One");
        other.setCamera("Maker, Two");
        desk.setOffset(1, 1, 0, 0);
        desk.clockOffset.setHasOwnClock("Maker, One", true);
        QCOMPARE(desk.clockOffset.clock("Maker, One"), std::chrono::seconds(1h));

        desk.outlets.stepperMin.stepBy(5); // its photo is the selected one
        desk.outlets.plusMinus.choose(0);
        QCOMPARE(desk.storedOffset(), "+1:0:0");
        QCOMPARE(desk.steppedOffset(), "-1:5:0");
        QVERIFY(correctedTime(desk.photo, desk.stored) == desk.noon - 65min);
        QVERIFY(correctedTime(other, desk.stored) == desk.noon + 1h);

        desk.pictureArray.select(&other);
        QCOMPARE(desk.steppedOffset(), "+1:0:0");
        desk.outlets.stepperHour.stepBy(1);
        QVERIFY(correctedTime(desk.photo, desk.stored) == desk.noon - 65min);

        desk.clockOffset.setHasOwnClock("Maker, One", false);
        QVERIFY(correctedTime(desk.photo, desk.stored) == desk.noon + 2h);
        desk.undoManager.closeStep();
        desk.undoManager.undo();
        QVERIFY(correctedTime(desk.photo, desk.stored) == desk.noon - 65min);
    }

    void aDerivedOffsetGoesToTheClockInHand() {
        Desk desk;
        desk.photo.setCamera("Maker, One");
        desk.setOffset(1, 7, 0, 0);
        desk.clockOffset.setHasOwnClock("Maker, One", true);
        desk.matcher.setFromPoint(desk.addPoint(desk.noon - 89s, "47.5", "8.5"));
        QCOMPARE(desk.storedOffset(), "+7:0:0");
        QCOMPARE(desk.steppedOffset(), "-0:1:29");
        QCOMPARE(desk.placeOf(desk.photo), "47.5 8.5 - 10");
        desk.matcher.setFromTrueTime(desk.noon + 3h);
        QCOMPARE(desk.steppedOffset(), "+3:0:0");
    }

    void aTurnIsStoredWhenTheHandLetsGo() {
        Desk desk;
        image &other = desk.addPhoto("13:00:00");
        other.setCamera("Maker, Two");
        desk.clockOffset.setHasOwnClock("Maker, Two", true);
        desk.setOffset(0, 1, 0, 0);
        desk.undoManager.closeStep();
        desk.clockOffset.turning.set(ClockTurn{.by = 90min});
        QCOMPARE(desk.clockOffset.turnOf(desk.photo), std::chrono::seconds(90min));
        QCOMPARE(desk.clockOffset.turnOf(other), 0s);
        QCOMPARE(desk.storedOffset(), "-1:0:0");
        desk.clockOffset.endTurn();
        QCOMPARE(desk.storedOffset(), "+0:30:0");
        QVERIFY(!desk.clockOffset.turning.get());
        desk.undoManager.undo();
        QCOMPARE(desk.storedOffset(), "-1:0:0");

        desk.clockOffset.turning.set(ClockTurn{.by = 1h, .camera = "Maker, Two"});
        QCOMPARE(desk.clockOffset.turnOf(other), std::chrono::seconds(1h));
        desk.clockOffset.cancelTurn();
        QCOMPARE(desk.clockOffset.clock("Maker, Two"), 0s);
    }

    void applyingToSome_data() {
        const auto row = test::rows<std::string, std::string>();
        // photos: near, near with a position, an hour off (selected), without a time (selected)
        row("all", "4 placed, far 1, untimed 1", "log log log log");
        row("selected", "1 placed, far 1, untimed 1", "- map log -");
        row("without position", "2 placed, far 1, untimed 1", "log map log -");
    }

    void applyingToSome() {
        const auto [told, sources] = test::fetch<std::string, std::string>();
        Desk desk;
        image &placed = desk.addPhoto("12:00:05");
        placed.setLat("1");
        placed.setLon("2");
        placed.setPosition_source(PositionSource::map);
        image &far = desk.addPhoto("13:00:00");
        image &untimed = desk.addPhoto("12:00:00");
        untimed.setNo_capture_time(true);
        desk.addPoint(desk.noon + 3s);
        desk.pictureArray.setSelectedObjects({&far, &untimed});
        std::string outcome;
        const Connection listening =
            desk.matcher.applied.connect([&outcome](const ApplyOutcome &now) {
                outcome += std::to_string(now.placed) + " placed, far " +
                           std::to_string(now.far.size()) + ", untimed " +
                           std::to_string(now.untimed.size());
            });
        const std::string which = QTest::currentDataTag();
        if (which == "all") {
            desk.matcher.applyToAllPictures();
        } else if (which == "selected") {
            desk.matcher.applyToSelected();
        } else {
            desk.matcher.applyToPhotosWithoutPosition();
        }
        QCOMPARE(outcome, told);
        std::string found;
        for (const image *photo : {&desk.photo, &placed, &far, &untimed}) {
            const Text &source = photo->position_source();
            found += (found.empty() ? "" : " ") + (source.hasValue() ? source.string() : "-");
        }
        QCOMPARE(found, sources);
        QCOMPARE(far.position_gap(), std::optional(-3597.0));
        QVERIFY(!untimed.position_gap());
        far.setPosition_source(PositionSource::typed);
        QVERIFY(!far.position_gap());
    }
};

QTEST_GUILESS_MAIN(CameraClockTest)
#include "camera_clock_test.moc"
