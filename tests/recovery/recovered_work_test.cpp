#include "recovery/program_run.h"
#include "recovery/test_files.h"

#include "persistence/xml_store.h"

#include <QTemporaryDir>
#include <QTest>

using namespace pinmora;
using namespace pinmora::test;
namespace fs = std::filesystem;

/// What becomes of unsaved work from one run of the program to the next.
class RecoveredWorkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void withoutWorkNothingIsKept();
    void whatWasSavedIsNotOffered();
    void aSaveThatFailedKeepsTheWork();
    void workOnTheStoreFileJoinsWhatHasBeenDoneSince();
    void workOnAnotherLibraryTakesThePlaceOfTheLoadedOne();
    void workOutlivesManyStartsAndSaves_data();
    void workOutlivesManyStartsAndSaves();
    void aStoreFileOfBeforeMayComeBack();
    void twoPiecesOfWorkAreBothKept();
    void recordsThatCameAndWentBeforeASave();
    void thereIsOneOffset();

private:
    std::optional<QTemporaryDir> folder_;
};

void RecoveredWorkTest::init() {
    folder_.emplace();
    qputenv("XDG_DATA_HOME", folder_->path().toUtf8());
}

void RecoveredWorkTest::withoutWorkNothingIsKept() {
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
    QCOMPARE(filesIn(libraryFolder() / "recovery"), std::size_t(0));
}

void RecoveredWorkTest::whatWasSavedIsNotOffered() {
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
        QCOMPARE(photos(program), QString::fromUtf8("a"));
        program.keeper.willSave("4567");
        program.comment(photo(program, "a"), "later");
        program.addPhoto("b");
        program.keeper.willSave("89ab");
        XmlStore store(libraryFolder() / "Pinmora.xml");
        QVERIFY(!store.write(program.context(), "89ab"));
        program.comment(photo(program, "b"), "after the save");
    }
    ProgramRun program;
    QCOMPARE(photos(program), QString::fromUtf8("a=later b"));
    QCOMPARE(program.offers().size(), std::size_t(1));
    QCOMPARE(program.offers().front().photos, std::size_t(1));
    QCOMPARE(bringBackAll(program), QString());
    QCOMPARE(photos(program), QString::fromUtf8("a=later b=after the save"));
}

void RecoveredWorkTest::aSaveThatFailedKeepsTheWork() {
    {
        ProgramRun program;
        program.addPhoto("a");
        program.keeper.willSave("0123");
        program.addPhoto("b");
    }
    ProgramRun program;
    QCOMPARE(photos(program), QString::fromUtf8(""));
    QCOMPARE(bringBackAll(program), QString());
    QCOMPARE(photos(program), QString::fromUtf8("a b"));
    QVERIFY(photo(program, "a").getHasChanges());
    QCOMPARE(program.undoManager().undoActionName(), std::string("Bring Back Unsaved Work"));
}

void RecoveredWorkTest::workOnTheStoreFileJoinsWhatHasBeenDoneSince() {
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
    QCOMPARE(photos(program), QString::fromUtf8("a b c d"));
    program.comment(photo(program, "a"), "of today");
    program.step([&] { program.context().deleteObject(photo(program, "b")); });
    program.comment(photo(program, "d"), "of today");
    program.addPhoto("newer");
    QVERIFY(program.library.saveAction()); // the records are the same as before
    const RecoveryOffer offer = program.offers().front();
    QCOMPARE(offer.photos, std::size_t(3));
    QVERIFY(std::chrono::system_clock::now() - offer.time < std::chrono::minutes(10));
    QCOMPARE(bringBackAll(program), QString());
    QCOMPARE(photos(program), QString::fromUtf8("a=recovered d=of today newer new"));
    program.undoManager().undo();
    QCOMPARE(photos(program), QString::fromUtf8("a=of today c d=of today newer"));
}

void RecoveredWorkTest::workOnAnotherLibraryTakesThePlaceOfTheLoadedOne() {
    {
        ProgramRun program;
        program.addPhoto("a");
        program.import(writeFile(libraryFolder() / "log", logText(1, 3)));
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
    QCOMPARE(photos(program), QString::fromUtf8("saved since"));
    QCOMPARE(program.offers().size(), std::size_t(1));
    QCOMPARE(program.offers().front().photos, std::size_t(1));
    QCOMPARE(program.offers().front().points, std::size_t(3));
    QCOMPARE(bringBackAll(program), QString());
    QCOMPARE(photos(program), QString::fromUtf8("since a=on the base"));
    QCOMPARE(program.context().count<track_part>(), std::size_t(3));
    program.undoManager().undo();
    QCOMPARE(photos(program), QString::fromUtf8("saved since"));
}

void RecoveredWorkTest::workOutlivesManyStartsAndSaves_data() {
    QTest::addColumn<bool>("hasLinks");
    QTest::addColumn<bool>("storeIsLink");
    QTest::newRow("a second name for the store file") << true << false;
    QTest::newRow("a copy of it") << false << false;
    QTest::newRow("the store file is elsewhere") << true << true;
}

void RecoveredWorkTest::workOutlivesManyStartsAndSaves() {
    QFETCH(bool, hasLinks);
    QFETCH(bool, storeIsLink);
    FailingFiles files;
    files.hasLinks = hasLinks;
    if (storeIsLink) {
        fs::create_directory(libraryFolder());
        fs::create_symlink(writeFile(libraryFolder().parent_path() / "elsewhere.xml", ""),
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
        QCOMPARE(program.offers().size(), std::size_t(1));
        program.addPhoto(name);
        QVERIFY(program.library.saveAction());
    }
    {
        ProgramRun program(files);
        QCOMPARE(photos(program), QString::fromUtf8("first second third"));
        QCOMPARE(bringBackAll(program), QString());
        QCOMPARE(photos(program), QString::fromUtf8("first=unsaved unsaved"));
    }
    ProgramRun program(files); // what was brought back is unsaved work of that run
    QCOMPARE(program.offers().size(), std::size_t(1));
    QVERIFY(!program.recovered().discard(program.offers().front()));
    QVERIFY(program.offers().empty());
    QCOMPARE(photos(program), QString::fromUtf8("first second third"));
}

void RecoveredWorkTest::aStoreFileOfBeforeMayComeBack() {
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
    QCOMPARE(photos(program), QString::fromUtf8("a"));
    QCOMPARE(bringBackAll(program), QString());
    QCOMPARE(photos(program), QString::fromUtf8("a=unsaved b"));
}

void RecoveredWorkTest::twoPiecesOfWorkAreBothKept() {
    for (const char *name : {"a", "b"}) {
        ProgramRun program;
        program.addPhoto(name);
    }
    ProgramRun program;
    QCOMPARE(program.offers().size(), std::size_t(2));
    QVERIFY(program.offers()[0].time <= program.offers()[1].time);
    QCOMPARE(bringBackAll(program), QString());
    QCOMPARE(photos(program), QString::fromUtf8("a b"));
}

void RecoveredWorkTest::recordsThatCameAndWentBeforeASave() {
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
    QCOMPARE(photos(program), QString());
    QCOMPARE(bringBackAll(program), QString());
    QCOMPARE(photos(program), QString::fromUtf8("kept"));
}

void RecoveredWorkTest::thereIsOneOffset() {
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
    QCOMPARE(hours(program), std::string("-1 "));
    QCOMPARE(bringBackAll(program), QString());
    QCOMPARE(hours(program), std::string("2 "));
    program.undoManager().undo();
    QCOMPARE(hours(program), std::string("-1 "));
}

QTEST_GUILESS_MAIN(RecoveredWorkTest)
#include "recovered_work_test.moc"
