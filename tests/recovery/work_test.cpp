#include "recovery/script.h"
#include "recovery/test_files.h"
#include "rows.h"

#include <QTemporaryDir>

using namespace pinmora;
using namespace pinmora::test;

using Lines = std::vector<std::string>;

/// Work at random, cut off at random: what is brought back is what there was.
class WorkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void workComesBackAsItWas_data() {
        const auto row = rowsByValue<unsigned, bool>();
        for (unsigned seed = 1; seed <= 40; ++seed) {
            row(seed, seed % 2 == 0);
        }
    }

    void workComesBackAsItWas() {
        const auto parameters = fetch<unsigned, bool>();
        const bool inOrder = std::get<1>(parameters);
        const QTemporaryDir folder;
        qputenv("XDG_DATA_HOME", folder.path().toUtf8());
        FailingFiles files;
        Script script(std::get<0>(parameters), folder.path().toStdString());
        if (inOrder) {
            script.forgetAtSaves();
        }
        const auto library = [inOrder](ProgramRun &program) {
            Lines lines = described(program.context());
            if (!inOrder) { // a photo that was deleted in the store file comes back as the last
                std::sort(lines.begin(), lines.end());
            }
            return lines;
        };
        Lines before; // when the run before ended
        for (int run = 0; run < 10; ++run) {
            ProgramRun program(files);
            const std::vector<RecoveryOffer> offers = program.offers();
            QVERIFY(offers.size() <= 1);
            const Lines atStart = library(program);
            if (offers.empty() && run > 0) {
                QCOMPARE(difference(withoutZoom(atStart), withoutZoom(before)), QString());
            } else if (!offers.empty()) {
                QCOMPARE(program.recovered().bringBack(offers.front()).value_or(""), "");
                QCOMPARE(difference(library(program), before), QString());
                program.undoManager().undo();
                QCOMPARE(difference(library(program), atStart), QString());
                program.undoManager().redo();
                QCOMPARE(difference(library(program), before), QString());
                QVERIFY(program.offers().empty());
            }
            for (unsigned steps = script.number(30); steps > 0; --steps) {
                script.act(program);
            }
            before = library(program);
        }
    }
};

QTEST_GUILESS_MAIN(WorkTest)
#include "work_test.moc"
