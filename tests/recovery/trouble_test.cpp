#include "recovery/program_run.h"
#include "recovery/test_files.h"
#include "rows.h"

#include <QTemporaryDir>

using namespace pinmora;
using namespace pinmora::test;
namespace fs = std::filesystem;

/// Unsaved work when files are damaged, and when they cannot be written.
class TroubleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        folder_.emplace();
        qputenv("XDG_DATA_HOME", folder_->path().toUtf8());
    }

    void aJournalCutAnywhereGivesTheStepsBefore() {
        const auto state = [](ProgramRun &program) {
            return photos(program) + std::to_string(program.context().count<track_part>());
        };
        std::vector<std::string> states;
        {
            ProgramRun program;
            const auto note = [&] { states.push_back(state(program)); };
            note();
            image &first = program.addPhoto("a");
            note();
            program.step([&] {
                first.setComments("1");
                program.context().insert<image>().setImage_name("b");
            });
            note();
            {
                const UndoGroup group(program.context(), "Everything");
                program.context().insert<image>().setImage_name("c");
                note();
                program.import(put(libraryFolder() / "log", logText(1, 2)));
                note();
                {
                    const UnregisteredChanges isThePrograms(program.context());
                    program.context().insert<image>().setImage_name("d");
                }
                note();
                program.context().insert<image>().setImage_name("e");
            }
            note();
            program.undoManager().undo();
            note();
            program.undoManager().undo();
            note();
        }
        const std::string whole = contents(currentJournal());
        fs::remove_all(libraryFolder() / "recovery");
        FailingFiles files;
        std::size_t reached = 0;
        for (std::size_t size = 0; size <= whole.size(); size += size + 3 < whole.size() ? 3 : 1) {
            fs::create_directories(currentJournal().parent_path());
            put(currentJournal(), whole.substr(0, size));
            ProgramRun program(files);
            for (const RecoveryOffer &offer : program.offers()) {
                if (offer.fault.empty()) {
                    QCOMPARE(program.recovered().bringBack(offer).value_or(""), std::string());
                }
                program.recovered().discard(offer);
            }
            // Each comes in its turn, and none is left out.
            reached += reached + 1 < states.size() && state(program) == states[reached + 1] ? 1 : 0;
            QCOMPARE(state(program), states[reached]);
            program.keeper.forget();
        }
        QCOMPARE(reached, states.size() - 1);
    }

    void whatCannotBeBroughtBackStays_data() {
        // damaged: a file of the work
        // words: of what is said
        const auto row = test::rows<std::string, std::string>();
        row("no base", "", "not there any more");
        row("damaged base", "base", "line 1");
        row("damaged journal", "journal", "journal");
    }

    void whatCannotBeBroughtBackStays() {
        const auto [damaged, words] = test::fetch<std::string, std::string>();
        {
            ProgramRun program;
            program.addPhoto("a");
            program.library.deleteTempStore();
            program.addPhoto("b");
        }
        for (const auto &entry : fs::directory_iterator(currentJournal().parent_path())) {
            const bool isBase = entry.path().extension() == ".xml";
            if (damaged == (isBase ? "base" : "journal")) {
                put(entry.path(), "damaged");
            } else if (damaged.empty() && isBase) {
                fs::remove(entry.path());
            }
        }
        ProgramRun program;
        const RecoveryOffer offer = program.offers().front();
        QCOMPARE(offer.fault.empty(), damaged == "base");
        const std::string error = program.recovered().bringBack(offer).value_or("");
        QVERIFY2(error.find(words) != std::string::npos, error.c_str());
        QCOMPARE(photos(program), "");
        QVERIFY(!program.undoManager().canUndo());
        QCOMPARE(program.offers().size(), 1U);
    }

    void aDiskThatIsFullIsToldOnceAndTriedAgain() {
        FailingFiles files;
        {
            ProgramRun program(files);
            RecoveryRecorder &recorder = program.keeper.recorder();
            recorder.setRetryInterval(std::chrono::milliseconds(0));
            std::vector<std::string> told;
            const Connection heard =
                recorder.failed.connect([&](const std::string &reason) { told.push_back(reason); });
            program.addPhoto("a");
            QVERIFY(recorder.flush());
            files.callsLeft = 0;
            program.addPhoto("b");
            QVERIFY(!recorder.flush());
            program.addPhoto("c");
            program.addPhoto("d");
            QCOMPARE(told.size(), 1U);
            QVERIFY2(told.front().find("No space left") != std::string::npos, told.front().c_str());
            files.callsLeft = 1'000'000;
            program.addPhoto("e");
            QVERIFY(recorder.flush());
            program.addPhoto("f");
            QCOMPARE(told.size(), 1U);
        }
        ProgramRun program;
        QCOMPARE(bringBackAll(program), "");
        QCOMPARE(photos(program), "a b c d e f");
    }

    void workThatCannotBeKeptAgainStays() {
        {
            ProgramRun program;
            program.addPhoto("a");
        }
        FailingFiles files;
        bool isKept = false;
        for (int calls = 0; !isKept; ++calls) {
            QVERIFY(calls < 100);
            files.callsLeft = 1'000'000;
            ProgramRun program(files);
            QCOMPARE(program.offers().size(), 1U);
            files.callsLeft = calls;
            isKept = bringBackAll(program).empty();
            QCOMPARE(photos(program), "a");
            if (!isKept) {
                QVERIFY(program.undoManager().canUndo());
                files.callsLeft = 1'000'000;
                program.keeper.forget();
            }
        }
        ProgramRun program;
        QCOMPARE(program.offers().size(), 1U);
        QCOMPARE(bringBackAll(program), "");
        QCOMPARE(photos(program), "a");
    }

    void theStoreFileStaysWhenNoBaseCanBeWritten() {
        FailingFiles files;
        {
            ProgramRun program(files);
            program.addPhoto("a");
            QVERIFY(program.library.saveAction());
            program.addPhoto("b");
            QVERIFY(program.keeper.recorder().flush());
            files.callsLeft = 0;
            program.library.deleteTempStore();
            files.callsLeft = 1'000'000;
            program.addPhoto("c");
        }
        ProgramRun program;
        QCOMPARE(photos(program), "a");
        QCOMPARE(bringBackAll(program), "");
        QCOMPARE(photos(program), "a b c");
    }

    void aBaseThatCannotBeReplacedStays() {
        FailingFiles files;
        bool isReplaced = false;
        for (int calls = 0; !isReplaced; ++calls) {
            QVERIFY(calls < 100);
            {
                ProgramRun program(files);
                program.addPhoto("a");
                QVERIFY(!program.keeper.recorder().writeBase());
                program.addPhoto("b");
                QVERIFY(program.keeper.recorder().flush());
                files.callsLeft = calls;
                isReplaced = !program.keeper.recorder().writeBase();
                files.callsLeft = 1'000'000;
            }
            ProgramRun program(files);
            QCOMPARE(bringBackAll(program), "");
            QCOMPARE(photos(program), "a b");
            program.keeper.forget();
        }
    }

    void workThatCannotBeSetAsideStays() {
        {
            ProgramRun program;
            program.addPhoto("a");
        }
        FailingFiles files;
        {
            files.callsLeft = 0;
            ProgramRun program(files);
            QVERIFY(program.offers().empty());
            files.callsLeft = 1'000'000;
            program.addPhoto("b");
        }
        ProgramRun program;
        QCOMPARE(bringBackAll(program), "");
        QCOMPARE(photos(program), "a b");
    }

    void whatIsDiscardedGoesAsAWhole() {
        FailingFiles files;
        {
            ProgramRun program(files);
            program.addPhoto("a");
            program.library.deleteTempStore();
        }
        ProgramRun program(files);
        bool isGone = false;
        for (int calls = 0; !isGone; ++calls) {
            QVERIFY(calls < 10);
            const RecoveryOffer offer = program.offers().front();
            QVERIFY(offer.fault.empty());
            files.callsLeft = calls;
            isGone = !program.recovered().discard(offer);
            files.callsLeft = 1'000'000;
        }
        QVERIFY(program.offers().empty());
        QCOMPARE(entries(libraryFolder() / "recovery"), 0U);
    }

private:
    std::optional<QTemporaryDir> folder_;
};

QTEST_GUILESS_MAIN(TroubleTest)
#include "trouble_test.moc"
