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
        const auto row = test::rows<ApplyOutcome, std::string>();
        const auto some = [](std::size_t count) { return std::vector<std::uint32_t>(count, 1); };
        row("nothing", {.placed = 5}, "");
        row("one far", {.placed = 5, .far = some(1)},
            "1 was taken more than 5 minutes from any point of the log.");
        row("untimed", {.placed = 5, .untimed = some(2)}, "2 do not say when they were taken.");
        row("both", {.placed = 5, .far = some(2), .untimed = some(1)},
            "2 were taken more than 5 minutes from any point of the log; 1 does not say when it "
            "was taken.");
        row("the only one moved", {.placed = 1, .moved = 1},
            "It had another position before; Undo brings it back.");
        row("one moved", {.placed = 5, .moved = 1},
            "1 had another position before; Undo brings it back.");
        row("moved, and one far", {.placed = 5, .moved = 3, .far = some(1)},
            "1 was taken more than 5 minutes from any point of the log. 3 had other positions "
            "before; "
            "Undo brings them back.");
    }

    void words() {
        const auto [outcome, text] = test::fetch<ApplyOutcome, std::string>();
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
