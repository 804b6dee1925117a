#include "recovery/program_run.h"
#include "recovery/test_files.h"

#include "persistence/xml_store.h"
#include "rows.h"

#include <QTemporaryDir>

using namespace pinmora;
using namespace pinmora::test;
namespace fs = std::filesystem;

/// What becomes of unsaved work from one run of the program to the next.
class RecoveredWorkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        folder_.emplace();
        qputenv("XDG_DATA_HOME", folder_->path().toUtf8());
    }

    void withoutWorkNothingIsKept() {
        {
            ProgramRun program;
            const UnregisteredChanges isThePrograms(program.context());
            program.context().insert<image>().setZoom(3);
        }
        QVERIFY(!fs::exists(currentJournal()));
        {
            ProgramRun program;
            program.addPhoto("a");
            QVERIFY(program.keeper.recorder().flush());
            QVERIFY(fs::exists(currentJournal()));
            program.keeper.forget();
            QVERIFY(!fs::exists(currentJournal()));
        }
        ProgramRun program;
        QVERIFY(program.offers().empty());
        QCOMPARE(entries(libraryFolder() / "recovery"), 0U);
    }

    void whatWasSavedIsNotOffered() {
        {
            ProgramRun program;
            program.addPhoto("a");
            // The program is killed between the renaming of the store file and the end of the save.
            program.keeper.willSave("0123");
            XmlStore store(libraryFolder() / "Pinmora.xml");
            QVERIFY(!store.write(program.context(), "0123"));
        }
        {
            ProgramRun program;
            QVERIFY(program.offers().empty());
            QCOMPARE(photos(program), "a");
            program.keeper.willSave("4567");
            program.comment(photo(program, "a"), "later");
            program.addPhoto("b");
            program.keeper.willSave("89ab");
            XmlStore store(libraryFolder() / "Pinmora.xml");
            QVERIFY(!store.write(program.context(), "89ab"));
            program.comment(photo(program, "b"), "after the save");
        }
        ProgramRun program;
        QCOMPARE(photos(program), "a=later b");
        QCOMPARE(program.offers().size(), 1U);
        QCOMPARE(program.offers().front().photos, 1U);
        QCOMPARE(bringBackAll(program), "");
        QCOMPARE(photos(program), "a=later b=after the save");
    }

    void aSaveThatFailedKeepsTheWork() {
        {
            ProgramRun program;
            program.addPhoto("a");
            program.keeper.willSave("0123");
            program.addPhoto("b");
        }
        ProgramRun program;
        QCOMPARE(photos(program), "");
        QCOMPARE(bringBackAll(program), "");
        QCOMPARE(photos(program), "a b");
        QVERIFY(photo(program, "a").getHasChanges());
        QCOMPARE(program.undoManager().undoActionName(), "Bring Back Unsaved Work");
    }

    void workOnTheStoreFileJoinsWhatHasBeenDoneSince() {
        {
            ProgramRun program;
            for (const char *name : {"a", "b", "c", "d"}) {
                program.addPhoto(name);
            }
            QVERIFY(program.library.saveAction());
            program.comment(photo(program, "a"), "recovered");
            program.comment(photo(program, "b"), "recovered");
            program.step([&] { program.context().deleteObject(photo(program, "c")); });
            program.addPhoto("new");
        }
        ProgramRun program;
        QCOMPARE(photos(program), "a b c d");
        program.comment(photo(program, "a"), "of today");
        program.step([&] { program.context().deleteObject(photo(program, "b")); });
        program.comment(photo(program, "d"), "of today");
        program.addPhoto("newer");
        QVERIFY(program.library.saveAction()); // the records are the same as before
        const RecoveryOffer offer = program.offers().front();
        QCOMPARE(offer.photos, 3U);
        QVERIFY(std::chrono::system_clock::now() - offer.time < std::chrono::minutes(10));
        QCOMPARE(bringBackAll(program), "");
        QCOMPARE(photos(program), "a=recovered d=of today newer new");
        program.undoManager().undo();
        QCOMPARE(photos(program), "a=of today c d=of today newer");
    }

    void workOnAnotherLibraryTakesThePlaceOfTheLoadedOne() {
        {
            ProgramRun program;
            program.addPhoto("a");
            program.import(put(libraryFolder() / "log", logText(1, 3)));
            program.library.deleteTempStore();
            program.comment(photo(program, "a"), "on the base");
        }
        QCOMPARE(fs::file_size(libraryFolder() / "Pinmora.xml"), std::uintmax_t(0));
        {
            ProgramRun program; // the offer is not answered
            program.addPhoto("saved");
            QVERIFY(program.library.saveAction());
        }
        ProgramRun program;
        program.addPhoto("since");
        QCOMPARE(photos(program), "saved since");
        QCOMPARE(program.offers().size(), 1U);
        QCOMPARE(program.offers().front().photos, 1U);
        QCOMPARE(program.offers().front().points, 3U);
        QCOMPARE(bringBackAll(program), "");
        QCOMPARE(photos(program), "since a=on the base");
        QCOMPARE(program.context().count<track_part>(), 3U);
        program.undoManager().undo();
        QCOMPARE(photos(program), "saved since");
    }

    void workOutlivesManyStartsAndSaves_data() {
        const auto row = test::rows<bool, bool>();
        row("a second name for the store file", true, false);
        row("a copy of it", false, false);
        row("the store file is elsewhere", true, true);
    }

    void workOutlivesManyStartsAndSaves() {
        const auto [hasLinks, storeIsLink] = test::fetch<bool, bool>();
        FailingFiles files;
        files.hasLinks = hasLinks;
        if (storeIsLink) {
            fs::create_directory(libraryFolder());
            fs::create_symlink(put(libraryFolder().parent_path() / "elsewhere.xml", ""),
                               libraryFolder() / "Pinmora.xml");
        }
        {
            ProgramRun program(files);
            program.addPhoto("first");
            QVERIFY(program.library.saveAction());
            program.comment(photo(program, "first"), "unsaved");
            program.addPhoto("unsaved");
        }
        for (const char *name : {"second", "third"}) {
            ProgramRun program(files);
            QCOMPARE(program.offers().size(), 1U);
            program.addPhoto(name);
            QVERIFY(program.library.saveAction());
        }
        {
            ProgramRun program(files);
            QCOMPARE(photos(program), "first second third");
            QCOMPARE(bringBackAll(program), "");
            QCOMPARE(photos(program), "first=unsaved unsaved");
        }
        ProgramRun program(files); // what was brought back is unsaved work of that run
        QCOMPARE(program.offers().size(), 1U);
        QVERIFY(!program.recovered().discard(program.offers().front()));
        QVERIFY(program.offers().empty());
        QCOMPARE(photos(program), "first second third");
    }

    void aStoreFileOfBeforeMayComeBack() {
        const fs::path store = libraryFolder() / "Pinmora.xml";
        const fs::path backup = libraryFolder() / "backup.xml";
        {
            ProgramRun program;
            program.addPhoto("a");
            QVERIFY(program.library.saveAction());
            fs::copy(store, backup);
            program.addPhoto("b");
            program.keeper.willSave("0123");
            QVERIFY(!XmlStore(store).write(program.context(), "0123"));
            program.comment(photo(program, "a"), "unsaved");
        }
        { ProgramRun program; } // the work is set aside, on the later file
        fs::rename(backup, store);
        ProgramRun program;
        QCOMPARE(photos(program), "a");
        QCOMPARE(bringBackAll(program), "");
        QCOMPARE(photos(program), "a=unsaved b");
    }

    void twoPiecesOfWorkAreBothKept() {
        for (const char *name : {"a", "b"}) {
            ProgramRun program;
            program.addPhoto(name);
        }
        ProgramRun program;
        QCOMPARE(program.offers().size(), 2U);
        QVERIFY(program.offers()[0].time <= program.offers()[1].time);
        QCOMPARE(bringBackAll(program), "");
        QCOMPARE(photos(program), "a b");
    }

    void recordsThatCameAndWentBeforeASave() {
        {
            ProgramRun program;
            {
                const UndoGroup group(program.context(), "Come and go");
                image &passing = program.context().insert<image>();
                program.undoManager().closePart();
                passing.setComments("changed");
                program.context().deleteObject(passing);
            }
            image &kept = program.addPhoto("kept");
            program.step([&] { program.context().deleteObject(kept); });
            QVERIFY(program.library.saveAction());
            program.undoManager().undo(); // the file has never had the photo
            program.undoManager().undo();
            program.undoManager().undo();
            program.undoManager().redo();
            program.undoManager().redo();
        }
        ProgramRun program;
        QCOMPARE(photos(program), "");
        QCOMPARE(bringBackAll(program), "");
        QCOMPARE(photos(program), "kept");
    }

    void thereIsOneOffset() {
        const auto hours = [](ProgramRun &program) {
            std::string all;
            for (const offset *one : program.context().records<offset>()) {
                all += std::to_string(one->hours().value_or(-1)) + " ";
            }
            return all;
        };
        {
            ProgramRun program;
            program.step([&] { program.context().fetch<offset>().front()->setHours(2); });
            program.library.deleteTempStore();
        }
        ProgramRun program;
        QCOMPARE(hours(program), "-1 ");
        QCOMPARE(bringBackAll(program), "");
        QCOMPARE(hours(program), "2 ");
        program.undoManager().undo();
        QCOMPARE(hours(program), "-1 ");
    }

private:
    std::optional<QTemporaryDir> folder_;
};

QTEST_GUILESS_MAIN(RecoveredWorkTest)
#include "recovered_work_test.moc"
