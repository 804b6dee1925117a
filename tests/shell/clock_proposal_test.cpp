#include "shell/clock_proposal.h"

#include "persistence/undo_manager.h"
#include "shell/desk.h"

#include <QTest>

using namespace pinmora;

namespace {

/// A log of two hours, and photos of one camera or two, all by a clock that is off by hours.
struct OutingDesk : Desk {
    OutingDesk() {
        start();
        for (int minute = 0; minute < 120; minute += 4) {
            addPoint(clock("2024-05-01T%1:%2:00Z", minute).c_str(), "47", "8");
        }
        endTurn();
    }

    void addPhotos(int hoursFast, const char *camera) {
        for (int minute = 1; minute < 120; minute += 7) {
            addAt(minute + 60 * hoursFast, camera);
        }
        endTurn();
        parts().clockProposal.finish();
    }
    /// Of the beginning and the end of the log, so that the photos fit it closely.
    void addPhotosOfTheEnds(int minutesFast, const char *camera) {
        for (int i = 0; i < 8; ++i) {
            addAt(minutesFast, camera);
            addAt(116 + minutesFast, camera);
        }
        endTurn();
        parts().clockProposal.finish();
    }
    std::string said() {
        const auto &message = interface().quietBar.message();
        return message ? message->head : "";
    }
    std::string offsetOf(const char *camera) {
        return std::to_string(parts().clockOffset.clock(camera).count());
    }

private:
    void addAt(int minute, const char *camera) {
        addPhoto("P", clock("2024:05:01 %1:%2:00", minute).c_str()).setCamera(camera);
    }
    static std::string clock(const char *format, int minute) {
        return QString::fromLatin1(format)
            .arg(10 + minute / 60, 2, 10, QLatin1Char('0'))
            .arg(minute % 60, 2, 10, QLatin1Char('0'))
            .toStdString();
    }
};

} // namespace

class ClockProposalTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void isTakenByAClick() {
        OutingDesk desk;
        desk.addPhotos(2, "Maker, One");
        QCOMPARE(desk.said(), "With −2 h 00 min, 17 of 17 photos lie on the track.");
        desk.interface().quietBar.choose(0);
        QCOMPARE(desk.offsetOf(""), "-7200");
        QCOMPARE(desk.said(), "The camera was 2 h fast.");
        QVERIFY(desk.context().fetch<image>().front()->lat().view().empty());
        desk.interface().quietBar.choose(0);
        QVERIFY(!desk.context().fetch<image>().front()->lat().view().empty());
        desk.parts().clockProposal.finish();
        QCOMPARE(desk.said(), "17 photos have got their positions.");
        desk.interface().quietBar.dismiss();
        QCOMPARE(desk.said(), "");
    }

    void saysWhatIsKnownToSomeMinutesOnly() {
        OutingDesk desk;
        desk.addPhotosOfTheEnds(37, "Maker, One");
        QCOMPARE(desk.said(), "With about −37 min, 16 of 16 photos lie on the track.");
        desk.interface().quietBar.choose(0);
        QCOMPARE(desk.said(), "The camera was about 37 min fast.");
        const auto &taken = desk.interface().quietBar.message();
        QVERIFY(taken && taken->text.find("To make it exact, put one photo") != std::string::npos);
    }

    void oneStepTakesItBack() {
        OutingDesk desk;
        desk.addPhotos(2, "Maker, One");
        desk.context().undoManager()->closeStep();
        desk.interface().quietBar.choose(0);
        QCOMPARE(desk.offsetOf(""), "-7200");
        desk.context().undoManager()->closeStep();
        desk.context().undoManager()->undo();
        QCOMPARE(desk.offsetOf(""), "0");
        desk.parts().clockProposal.finish();
        QVERIFY(desk.said().starts_with("With −2 h")); // no longer that it is corrected
    }

    void camerasCanBeOffByDifferentAmounts() {
        OutingDesk desk;
        desk.addPhotos(0, "Maker, One");
        QCOMPARE(desk.said(), "");
        desk.addPhotos(3, "Maker, Two");
        QCOMPARE(desk.said(), "With −3 h 00 min, 17 of 17 photos of Maker Two lie on the track.");
        desk.interface().quietBar.choose(0);
        QCOMPARE(desk.offsetOf("Maker, One"), "0");
        QCOMPARE(desk.offsetOf("Maker, Two"), "-10800");
        desk.parts().clockProposal.finish();
        desk.interface().quietBar.dismiss();
        QCOMPARE(desk.said(), "");
    }

    void anAnswerIsAnAnswer() {
        OutingDesk desk;
        desk.addPhotos(2, "Maker, One");
        QVERIFY(!desk.said().empty());
        desk.interface().quietBar.dismiss();
        desk.addPhoto("late", "2024:05:01 13:00:00");
        desk.endTurn();
        desk.parts().clockProposal.finish();
        QCOMPARE(desk.said(), "");
    }

    /// By whatever it has been set right in the meantime.
    void goesWhenItIsNoneAnyMore() {
        OutingDesk desk;
        desk.addPhotos(2, "Maker, One");
        QVERIFY(!desk.said().empty());
        desk.parts().clockOffset.setClock("", std::chrono::hours(-2));
        desk.parts().clockProposal.finish();
        QCOMPARE(desk.said(), "");
    }
};

QTEST_GUILESS_MAIN(ClockProposalTest)
#include "clock_proposal_test.moc"
