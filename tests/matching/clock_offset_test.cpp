#include "matching/clock_offset.h"

#include "matching/desk.h"
#include "rows.h"

using namespace pinmora;
using namespace std::chrono_literals;

using Spoil = std::function<void(Desk &)>;

class ClockOffsetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void deriving_data() {
        // later: from the photo to the point
        const auto row = test::rows<std::chrono::milliseconds, std::string, std::string>();
        row("earlier, fraction dropped", -89'400ms, "-0:1:29", "12 May 2008 11:58:31");
        row("later", 2h + 30min + 5s, "+2:30:5", "12 May 2008 14:30:05");
        row("the same instant", 0ms, "+0:0:0", "12 May 2008 12:00:00");
        row("a little earlier", -900ms, "-0:0:0", "12 May 2008 12:00:00");
        row("a little later", 900ms, "+0:0:0", "12 May 2008 12:00:00");
        row("to the last second", 59min + 59s + 999ms, "+0:59:59", "12 May 2008 12:59:59");
        row("days", -(75h + 1s), "-75:0:1", "9 May 2008 08:59:59");
        row("weeks", 504h, "+504:0:0", "2 Jun 2008 12:00:00");
    }

    void deriving() {
        const auto [later, derived, shown] =
            test::fetch<std::chrono::milliseconds, std::string, std::string>();
        Desk desk;
        desk.outlets.bestGPS.setContent(&desk.addPoint(desk.noon + later));
        desk.clockOffset.setNewOffset(true);
        QCOMPARE(desk.storedOffset(), derived);
        QCOMPARE(desk.steppedOffset(), derived);
        QCOMPARE(desk.outlets.offsetText.text.get(), shown);
        QCOMPARE(desk.outlets.offsetText2.text.get(), shown);
        QCOMPARE(desk.stored.offset_set(), std::optional(1));
    }

    void derivingPlacesThePhoto() {
        Desk desk;
        desk.photo.setAlt("5");
        desk.photo.setZoom(14);
        desk.outlets.offsetButton.enabled.set(false);
        desk.outlets.bestGPS.setContent(&desk.addPoint(desk.noon, "-33.85670", "151.2", "410"));
        desk.clockOffset.setNewOffset(true);
        QCOMPARE(desk.placeOf(desk.photo), "-33.85670 151.2 5 10");
        QVERIFY(desk.photo.lat_ref() == "S");
        QVERIFY(desk.photo.position_source() == PositionSource::log);
        QCOMPARE(desk.scripts, "1:movePointer(-33.85670,151.2,14,'')");
        QCOMPARE(desk.shownDegrees.degree_lat(), std::optional(-33.8567));
        QCOMPARE(desk.shownDegrees.degree_lon(), std::optional(151.2));
        QCOMPARE(desk.addRemoveMarker.title.get(), "Remove Marker");
        QCOMPARE(desk.addRemoveMarker.tag, 1);
        QVERIFY(desk.outlets.offsetButton.enabled.get());
    }

    void derivingCanKeepTheFields() {
        Desk desk;
        desk.setOffset(1, 1, 75, 3);
        desk.inWizard = true;
        desk.outlets.bestGPS.setContent(&desk.addPoint(desk.noon - 20s));
        desk.clockOffset.setNewOffset(false);
        QCOMPARE(desk.storedOffset(), "-1:75:3");
        QCOMPARE(desk.stored.offset_set(), std::optional(1));
        QCOMPARE(desk.outlets.offsetText.text.get(), "12 May 2008 11:59:40");
        QCOMPARE(desk.placeOf(desk.photo), "47.1 8.2 - 10");
        QCOMPARE(desk.scripts, "2:movePointer(47.1,8.2,0,'')");
        QCOMPARE(desk.addRemoveMarker.title.get(), std::string());
    }

    void derivingNeedsAllThatItStandsOn_data() {
        const auto row = test::rows<Spoil>();
        row("no photo", [](Desk &desk) { desk.pictureArray.setSelectedObjects({}); });
        row("no date", [](Desk &desk) { desk.photo.setDate("12/05/2008"); });
        row("no point", [](Desk &desk) { desk.outlets.bestGPS.setContent(nullptr); });
        row("no time", [](Desk &desk) { desk.outlets.bestGPS.content()->setTimeWithDate({}); });
        row("point deleted",
            [](Desk &desk) { desk.context.deleteObject(*desk.outlets.bestGPS.content()); });
        row("no offset", [](Desk &desk) { desk.context.deleteObject(desk.stored); });
    }

    void derivingNeedsAllThatItStandsOn() {
        const auto [spoil] = test::fetch<Spoil>();
        Desk desk;
        desk.outlets.bestGPS.setContent(&desk.addPoint(desk.noon + 1h));
        spoil(desk);
        desk.context.commitChanges();
        desk.clockOffset.setNewOffset(true);
        QVERIFY(!desk.context.hasChanges());
        QCOMPARE(desk.scripts + desk.outlets.offsetText.text.get(), std::string());
    }

    void steppersReachAsFarAsTheyShould() {
        Desk desk;
        desk.pictureArray.setSelectedObjects({}); // a step is a step also when nothing is matched
        desk.outlets.plusMinus2.choose(1);
        desk.outlets.stepperMin.stepBy(-1);
        desk.outlets.stepperSec.stepBy(61);
        desk.outlets.stepperHour.stepBy(-1);
        QCOMPARE(desk.storedOffset(), "+0:59:1");
        desk.outlets.stepperHour.stepBy(2'000'000);
        QCOMPARE(desk.storedOffset(), "+999999:59:1");
        QCOMPARE(desk.steppedOffset(), desk.storedOffset());
    }

    void theSignAloneMovesNothing() {
        Desk desk;
        desk.addPoint(desk.noon + 1h, "1", "2");
        desk.addPoint(desk.noon - 1h, "3", "4");
        desk.outlets.plusMinus.choose(1);
        desk.outlets.stepperHour.stepBy(1);
        const std::string place = desk.placeOf(desk.photo);
        desk.outlets.plusMinus3.choose(0);
        desk.clockOffset.changeOffset();
        QCOMPARE(desk.storedOffset(), "-1:0:0");
        QCOMPARE(desk.steppedOffset(), "-1:0:0");
        QCOMPARE(desk.placeOf(desk.photo), place);
        QCOMPARE(desk.outlets.offsetText.text.get(), "12 May 2008 13:00:00");
    }

    void controlsShowTheRecord() {
        Desk desk;
        desk.setOffset(7, 1'000'000, 75, 3);
        QCOMPARE(desk.steppedOffset(), "+1000000:75:3");
        offset &another = desk.context.insert<offset>();
        another.setSeconds(9);
        desk.outlets.offsetObj.setContent(&another);
        QCOMPARE(desk.steppedOffset(), "-0:0:9");
        desk.stored.setHours(5);
        QCOMPARE(desk.steppedOffset(), "-0:0:9");
        desk.context.deleteObject(another);
        QCOMPARE(desk.steppedOffset(), "-0:0:0");
    }
};

QTEST_GUILESS_MAIN(ClockOffsetTest)
#include "clock_offset_test.moc"
