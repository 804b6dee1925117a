#include "recovery/program_run.h"
#include "recovery/test_files.h"

#include "persistence/xml_store.h"

#include <QTemporaryDir>
#include <QTest>

using namespace pinmora;
using namespace pinmora::test;
namespace fs = std::filesystem;

namespace {

/// The names of the photos, with their comments.
QString photos(ProgramRun &program) {
    std::string names;
    for (const image *photo : program.context().records<image>()) {
        names += (names.empty() ? "" : " ") + photo->image_name().string();
        names += photo->comments().hasValue() ? "=" + photo->comments().string() : "";
    }
    return QString::fromStdString(names);
}

image &photo(ProgramRun &program, std::string_view name) {
    for (image *one : program.context().records<image>()) {
        if (one->image_name() == name) {
            return *one;
        }
    }
    throw std::runtime_error("no photo " + std::string(name));
}

QString bringBackAll(ProgramRun &program) {
    std::string errors;
    for (const RecoveryOffer &offer : program.offers()) {
        errors += program.recovered().bringBack(offer).value_or("");
    }
    return QString::fromStdString(errors);
}

std::size_t filesIn(const fs::path &folder) {
    std::error_code none;
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder, none), {}));
}

} // namespace

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
    void workThatCannotBeSetAsideStays();
    void twoPiecesOfWorkAreBothKept();
    void thereIsOneOffset();
    void aJournalCutAnywhereGivesTheStepsBefore();
    void whatCannotBeBroughtBackStays_data();
    void whatCannotBeBroughtBackStays();
    void aDiskThatIsFullIsToldOnceAndTriedAgain();
    void workThatCannotBeKeptAgainStays();
    void theStoreFileStaysWhenNoBaseCanBeWritten();
    void aBaseThatCannotBeReplacedStays();
    void whatIsDiscardedGoesAsAWhole();

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

void RecoveredWorkTest::workThatCannotBeSetAsideStays() {
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
    QCOMPARE(bringBackAll(program), QString());
    QCOMPARE(photos(program), QString::fromUtf8("a b"));
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

void RecoveredWorkTest::aJournalCutAnywhereGivesTheStepsBefore() {
    const auto state = [](ProgramRun &program) {
        return photos(program) +
               QString::fromUtf8(", %1").arg(program.context().count<track_part>());
    };
    std::vector<QString> states;
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
            program.import(writeFile(libraryFolder() / "log", logText(1, 2)));
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
    const std::string whole = readFile(currentJournal());
    fs::remove_all(libraryFolder() / "recovery");
    QuickFiles files;
    std::size_t reached = 0;
    for (std::size_t size = 0; size <= whole.size(); size += size + 3 < whole.size() ? 3 : 1) {
        fs::create_directories(currentJournal().parent_path());
        writeFile(currentJournal(), whole.substr(0, size));
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

void RecoveredWorkTest::whatCannotBeBroughtBackStays_data() {
    QTest::addColumn<std::string>("damaged"); // a file of the work
    QTest::addColumn<std::string>("words");   // of what is said
    const auto row = [](const char *name, std::string damaged, std::string words) {
        QTest::newRow(name) << std::move(damaged) << std::move(words);
    };
    row("no base", "", "not there any more");
    row("damaged base", "base", "line 1");
    row("damaged journal", "journal", "journal");
}

void RecoveredWorkTest::whatCannotBeBroughtBackStays() {
    QFETCH(std::string, damaged);
    QFETCH(std::string, words);
    {
        ProgramRun program;
        program.addPhoto("a");
        program.library.deleteTempStore();
        program.addPhoto("b");
    }
    for (const auto &entry : fs::directory_iterator(currentJournal().parent_path())) {
        const bool isBase = entry.path().extension() == ".xml";
        if (damaged == (isBase ? "base" : "journal")) {
            writeFile(entry.path(), "damaged");
        } else if (damaged.empty() && isBase) {
            fs::remove(entry.path());
        }
    }
    ProgramRun program;
    const RecoveryOffer offer = program.offers().front();
    QCOMPARE(offer.fault.empty(), damaged == "base");
    const std::string error = program.recovered().bringBack(offer).value_or("");
    QVERIFY2(error.find(words) != std::string::npos, error.c_str());
    QCOMPARE(photos(program), QString::fromUtf8(""));
    QVERIFY(!program.undoManager().canUndo());
    QCOMPARE(program.offers().size(), std::size_t(1));
}

void RecoveredWorkTest::aDiskThatIsFullIsToldOnceAndTriedAgain() {
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
        QCOMPARE(told.size(), std::size_t(1));
        QVERIFY2(told.front().find("No space left") != std::string::npos, told.front().c_str());
        files.callsLeft = 1'000'000;
        program.addPhoto("e");
        QVERIFY(recorder.flush());
        program.addPhoto("f");
        QCOMPARE(told.size(), std::size_t(1));
    }
    ProgramRun program;
    QCOMPARE(bringBackAll(program), QString());
    QCOMPARE(photos(program), QString::fromUtf8("a b c d e f"));
}

void RecoveredWorkTest::workThatCannotBeKeptAgainStays() {
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
        QCOMPARE(program.offers().size(), std::size_t(1));
        files.callsLeft = calls;
        isKept = bringBackAll(program).isEmpty();
        QCOMPARE(photos(program), QString::fromUtf8("a"));
        if (!isKept) {
            QVERIFY(program.undoManager().canUndo());
            files.callsLeft = 1'000'000;
            program.keeper.forget();
        }
    }
    ProgramRun program;
    QCOMPARE(program.offers().size(), std::size_t(1));
    QCOMPARE(bringBackAll(program), QString());
    QCOMPARE(photos(program), QString::fromUtf8("a"));
}

void RecoveredWorkTest::theStoreFileStaysWhenNoBaseCanBeWritten() {
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
    QCOMPARE(photos(program), QString::fromUtf8("a"));
    QCOMPARE(bringBackAll(program), QString());
    QCOMPARE(photos(program), QString::fromUtf8("a b c"));
}

void RecoveredWorkTest::aBaseThatCannotBeReplacedStays() {
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
        QCOMPARE(bringBackAll(program), QString());
        QCOMPARE(photos(program), QString::fromUtf8("a b"));
        program.keeper.forget();
    }
}

void RecoveredWorkTest::whatIsDiscardedGoesAsAWhole() {
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
    QCOMPARE(filesIn(libraryFolder() / "recovery"), std::size_t(0));
}

QTEST_GUILESS_MAIN(RecoveredWorkTest)
#include "recovered_work_test.moc"
