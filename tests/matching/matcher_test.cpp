#include "matching/matcher.h"

#include "matching/desk.h"
#include "matching/placing.h"
#include "rows.h"

using namespace pinmora;
using namespace std::chrono_literals;

namespace {

/// Remembers in which order a photo's place was set.
struct SetKeys : ChangeObserver {
    void didChange(Record &, std::string_view key) override {
        keys += key == "lat" || key == "lon" || key == "alt" || key == "zoom"
                    ? std::string(key) + " "
                    : "";
    }
    std::string keys;
};

/// A desk with points an hour before the photo, five minutes after it and three days before it.
struct Outing : Desk {
    track_part &eleven = addPoint(noon - 1h, "-33.85670", "-070.1", " 12.50 ");
    track_part &fivePast = addPoint(noon + 5min, "47.3", "8.4", "");
    track_part &friday = addPoint(noon - 72h, "46.5", "9.5", "100");

    /// All that a batch, a match or a step may write.
    std::string everything() const {
        std::string all = storedOffset() + " " + steppedOffset() + " " +
                          std::to_string(stored.offset_set().value_or(0));
        for (const image *one : context.records<image>()) {
            all += " | " + placeOf(*one).substr(0, placeOf(*one).rfind(' ')) +
                   one->lat_ref().string() + one->lon_ref().string() +
                   one->position_source().string() + (one->getHasChanges() ? "!" : "");
        }
        return all;
    }
};

using Action = std::function<void(Outing &)>;
using Number = std::optional<int>;

} // namespace

class MatcherTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void correctedTimes_data() {
        const auto row = test::rows<Number, Number, Number, Number, qint64>();
        row("fresh record", {}, {}, {}, {}, 0);
        row("minutes beyond the hour", 1, 1, 75, 0, 8'100);
        row("subtracted", 0, 1, 75, 0, -8'100);
        row("no sign is subtracted", {}, 1, {}, 1, -3'601);
        row("any other sign is added", 7, {}, {}, 90, 90);
        row("more than 32 bits of seconds", 1, 2'147'483'647, 2'147'483'647, 2'147'483'647,
            7'861'937'631'667);
    }

    void correctedTimes() {
        const auto [plus, hours, minutes, seconds, added] =
            test::fetch<Number, Number, Number, Number, qint64>();
        Desk desk;
        desk.stored.setPlus(plus);
        desk.stored.setHours(hours);
        desk.stored.setMinutes(minutes);
        desk.stored.setSeconds(seconds);
        QVERIFY(correctedTime(desk.photo, desk.stored) == desk.noon + std::chrono::seconds(added));
        desk.photo.setDate("none");
        QVERIFY(!correctedTime(desk.photo, desk.stored));
    }

    void nearestToTheCorrectedTime() {
        Outing outing;
        QCOMPARE(outing.matcher.getLatLonAlt(outing.photo), &outing.fivePast);
        outing.setOffset(0, 1, 0, 0);
        QCOMPARE(outing.matcher.getLatLonAlt(outing.photo), &outing.eleven);
        outing.setOffset(0, 999'999, 59, 59);
        QCOMPARE(outing.matcher.getLatLonAlt(outing.photo), &outing.friday);
        image &undated = outing.context.insert<image>();
        QCOMPARE(outing.matcher.getLatLonAlt(undated), nullptr);
    }

    void aStepMatchesAndKeepsTheFields() {
        Outing outing;
        outing.outlets.stepperHour.stepBy(1);
        QCOMPARE(outing.outlets.bestGPS.content(), &outing.eleven);
        QCOMPARE(outing.storedOffset(), "-1:0:0");
        outing.outlets.stepperMin.stepBy(20); // nearer to nothing else
        QCOMPARE(outing.storedOffset(), "-1:20:0");
        QCOMPARE(outing.outlets.offsetText.text.get(), "12 May 2008 11:00:00");
        outing.outlets.stepperHour.stepBy(-1);
        outing.outlets.stepperMin.stepBy(-20);
        outing.outlets.stepperSec.stepBy(1);
        // The sign follows the point that was found.
        QCOMPARE(outing.outlets.bestGPS.content(), &outing.fivePast);
        QCOMPARE(outing.storedOffset(), "+0:0:1");
    }

    void matchingRewritesTheFields() {
        Outing outing;
        image &later = outing.addPhoto("12:30:00");
        outing.pictureArray.setSelectedObjects({&later, &outing.photo});
        outing.context.setEndEditing([&] {
            outing.stored.setHours(1); // typed, and only now taken over
            return true;
        });
        outing.outlets.matchButton.press();
        QCOMPARE(outing.outlets.bestGPS.content(), &outing.eleven);
        QCOMPARE(outing.storedOffset(), "-1:0:0");
        QCOMPARE(outing.placeOf(outing.photo), "-33.85670 -070.1 - 10");
        QCOMPARE(outing.scripts, "1:movePointer(-33.85670,-70.1,0,'')");
        QVERIFY(!later.lat().hasValue());
    }

    void withoutAPointOnlyTheTimeIsShown() {
        Desk desk;
        desk.addPoint({});
        desk.setOffset(1, 0, 0, 30);
        desk.context.commitChanges();
        desk.matcher.startGPSMatch();
        desk.matcher.applyToAllPictures();
        desk.outlets.knownLat.text.set("47");
        desk.outlets.knownLon.text.set("8");
        desk.matcher.guessFromLatLon();
        QVERIFY(!desk.context.hasChanges());
        desk.matcher.gpsMatcher(true);
        QCOMPARE(desk.outlets.offsetText2.text.get(), "12 May 2008 12:00:30");
    }

    void knownPositions_data() {
        const auto row = test::rows<std::string, std::string, std::string>();
        const std::string none = "-0:0:0";
        row("near", "47", "8.3", "+0:5:0");
        row("blanks", " -40 ", "-70\t", "-1:0:0");
        row("the rest is 0", "46", "9.9999", "-72:0:0");
        row("empty", {}, "8", none);
        row("words", "47", "east", none);
        row("comma", "47,3", "8", none);
        row("letter", "47", "70 W", none);
        row("beyond", "90.1", "8", none);
    }

    void knownPositions() {
        const auto [lat, lon, derived] = test::fetch<std::string, std::string, std::string>();
        Outing outing;
        outing.context.setEndEditing([&, &lon = lon] {
            outing.outlets.knownLon.text.set(lon);
            return true;
        });
        outing.outlets.knownLat.text.set(lat);
        outing.matcher.guessFromLatLon();
        QCOMPARE(outing.storedOffset(), derived);
        const auto &known = outing.outlets;
        QCOMPARE(known.knownLat.problem.get() + known.knownLon.problem.get() != "",
                 derived == "-0:0:0");
    }

    void thePhotosOwnPositionCanBeTheKnownOne() {
        Outing outing;
        outing.outlets.knownLat.text.set("1");
        outing.outlets.offsetButton.press(); // the photo has none
        QCOMPARE(outing.outlets.knownLat.text.get(), "1");
        outing.photo.updateLatAndLon({"46.6", "9.4"});
        outing.outlets.offsetButton2.press();
        QCOMPARE(outing.outlets.knownLat.text.get(), "46.6");
        QCOMPARE(outing.outlets.knownLon.text.get(), "9.4");
        QCOMPARE(outing.storedOffset(), "-72:0:0");
        QCOMPARE(outing.placeOf(outing.photo), "46.5 9.5 - 10");
    }

    void applying() {
        Outing outing;
        image &early = outing.addPhoto("10:50:00");
        early.updateLatAndLon({"1", "2"});
        early.setAlt("3");
        image &undated = outing.context.insert<image>();
        outing.outlets.nextButtonAppliedAll.enabled.set(false);
        outing.outlets.congrats2.visible.set(false);
        outing.outlets.offsetText.text.set("old");

        std::string heard;
        const Connection texts =
            outing.progress.progressTextSub.text.onChange([&](const std::string &text) {
                heard += text + (outing.progress.progressWindow.isUp() &&
                                         outing.matcher.runningApplyToAll()
                                     ? "; "
                                     : "?");
            });
        const auto positions = outing.notifications.addObserver(locationChange, [&](const auto &) {
            heard += outing.matcher.runningApplyToAll() ? "" : "moved";
        });
        outing.context.setEndEditing([&] { return heard += "edited ", true; });
        std::vector<ApplyOutcome> outcomes;
        const Connection applied = outing.matcher.applied.connect(
            [&](const ApplyOutcome &outcome) { outcomes.push_back(outcome); });
        SetKeys keys;
        outing.context.addObserver(keys);
        outing.matcher.applyToAllPictures();
        outing.context.removeObserver(keys);

        QCOMPARE(heard, "edited Processing 1 of 3; Processing 2 of 3; Processing 3 of 3; "
                        "edited moved");
        QCOMPARE(keys.keys, "lat lon alt zoom lat lon alt zoom ");
        QCOMPARE(outing.placeOf(outing.photo), "47.3 8.4  10");
        QCOMPARE(outing.placeOf(early), "-33.85670 -070.1  12.50  10");
        QVERIFY(early.lat_ref() == "S" && early.lon_ref() == "W");
        QVERIFY(early.position_source() == PositionSource::log);
        QCOMPARE(outing.placeOf(undated), "- - - -");
        QVERIFY(!undated.getHasChanges());
        QCOMPARE(outing.progress.progressTextMain.text.get(), "Applying to GPS data to photos");
        QCOMPARE(outing.progress.progressIndic.value.get(), 3);
        QVERIFY(!outing.progress.progressWindow.isUp());
        QVERIFY(outing.outlets.offsetText.text.get().empty());
        QVERIFY(outing.outlets.nextButtonAppliedAll.enabled.get());
        QVERIFY(outing.outlets.congrats2.visible.get());
        QVERIFY(outcomes.back().placed == 2 && outcomes.back().moved == 1);
        outing.matcher.applyToAllPictures();
        QVERIFY(outcomes.back().placed == 2 && outcomes.back().moved == 0);
    }

    void theMapIsToldOfOneSelectedPhotoOnly() {
        Outing outing;
        image &another = outing.addPhoto("10:50:00");
        int told = 0;
        const auto positions = outing.notifications.addObserver(locationChange, [&](const auto &) {
            told += outing.matcher.runningApplyToAll() ? 0 : 1;
        });
        outing.pictureArray.setSelectedObjects({&outing.photo, &another});
        outing.matcher.applyToAllPictures();
        QCOMPARE(told, 0);
        outing.pictureArray.select(&another);
        outing.matcher.applyToAllPictures();
        QCOMPARE(told, 1);
    }

    void unfitInputStopsEachAction() {
        Outing outing;
        outing.photo.updateLatAndLon({"46", "9.4"});
        outing.context.setEndEditing([] { return false; });
        const std::string before = outing.everything();
        outing.outlets.matchButton.press();
        outing.outlets.offsetButton.press();
        outing.matcher.guessFromLatLon();
        outing.matcher.applyToAllPictures();
        QCOMPARE(outing.everything(), before);
    }

    void eachActionIsOneStepOfUndo_data() {
        const auto row = test::rows<std::string, Action>();
        row("batch", "Apply GPS Data to Photos",
            [](Outing &outing) { outing.matcher.applyToAllPictures(); });
        row("match", "Match Photo", [](Outing &outing) { outing.outlets.matchButton.press(); });
        row("by place", "Match Photo", [](Outing &outing) { outing.outlets.offsetButton.press(); });
        row("step", "Step Clock Offset",
            [](Outing &outing) { outing.outlets.stepperMin.stepBy(-1); });
        row("sign", "Change Sign of Clock Offset",
            [](Outing &outing) { outing.outlets.plusMinus1.choose(1); });
    }

    void eachActionIsOneStepOfUndo() {
        const auto [name, act] = test::fetch<std::string, Action>();
        Outing outing;
        outing.photo.updateLatAndLon({"46", "9.4"}); // in the hemispheres of the points
        outing.photo.setHasChangesFalse();
        outing.addPhoto("10:50:00").updateLatAndLon({"1", "2"});
        outing.setOffset(0, 0, 0, 30);
        outing.undoManager.closeStep();
        const std::string before = outing.everything();
        act(outing);
        const std::string after = outing.everything();
        QVERIFY(after != before);
        QCOMPARE(outing.undoManager.undoActionName(), name);
        const auto zoom = outing.photo.zoom();
        outing.undoManager.undo();
        QCOMPARE(outing.everything(), before);
        QCOMPARE(outing.photo.zoom(), zoom); // the map's own
        QCOMPARE(outing.outlets.offsetText.text.get(), "12 May 2008 11:59:30");
        outing.undoManager.redo();
        QCOMPARE(outing.everything(), after);
    }
};

QTEST_GUILESS_MAIN(MatcherTest)
#include "matcher_test.moc"
