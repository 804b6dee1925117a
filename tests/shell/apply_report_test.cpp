#include "shell/apply_report.h"

#include "persistence/undo_manager.h"
#include "rows.h"
#include "shell/desk.h"

using namespace pinmora;

class ApplyReportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void words_data() {
        const auto row = test::rows<std::size_t, std::size_t, std::string>();
        row("nothing", 0u, 0u, "");
        row("one far", 1u, 0u, "1 was taken more than 5 minutes from any point of the log.");
        row("untimed", 0u, 2u, "2 do not say when they were taken.");
        row("both", 2u, 1u,
            "2 were taken more than 5 minutes from any point of the log; 1 does not say when it "
            "was "
            "taken.");
    }

    void words() {
        const auto [far, untimed, text] = test::fetch<std::size_t, std::size_t, std::string>();
        const ApplyOutcome outcome{.placed = 5,
                                   .far = std::vector<std::uint32_t>(far, 1),
                                   .untimed = std::vector<std::uint32_t>(untimed, 2)};
        QCOMPARE(wordsOf(outcome), text);
    }

    /// The bar says at once what was done, leads to the photos that need a look, and goes with what
    /// it speaks of.
    void showsWhatNeedsALook() {
        Desk desk;
        desk.start();
        desk.addPhoto("near", "2024:05:01 10:00:10");
        image &far = desk.addPhoto("far", "2024:05:01 12:00:00");
        image &untimed = desk.addPhoto("untimed", "2024:05:01 10:00:00");
        untimed.setNo_capture_time(true);
        desk.addPoint("2024-05-01T10:00:00Z", "47", "8");
        desk.endTurn();
        QuietBar &bar = desk.interface().quietBar;
        for (const BarWeight weight : {BarWeight::Note, BarWeight::Offer}) {
            bar.post({.subject = weight == BarWeight::Note ? "note" : "offer",
                      .head = {},
                      .text = "waits",
                      .choices = {},
                      .weight = weight});
        }
        desk.parts().matcher.applyToAllPictures();
        QVERIFY(bar.message());
        QCOMPARE(bar.message()->head, "3 photos have got their positions.");
        bar.choose(0);
        QVERIFY(desk.parts().arrays.pictureArray.selectedObjects() ==
                (std::vector<image *>{&far, &untimed}));
        QCOMPARE(bar.message()->subject, "offer"); // it has waited for the answer
        bar.dismiss();
        QCOMPARE(bar.message()->subject, "note");
        bar.dismiss();
        QVERIFY(!bar.message());

        desk.parts().matcher.applyToSelected();
        QCOMPARE(bar.message()->head, "1 photo has got its position.");
        desk.context().undoManager()->closeStep();
        desk.context().undoManager()->undo();
        QVERIFY(!bar.message());
    }
};

QTEST_GUILESS_MAIN(ApplyReportTest)
#include "apply_report_test.moc"
