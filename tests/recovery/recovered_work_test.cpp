#include "recovery/session.h"
#include "recovery/test_files.h"

#include "persistence/xml_store.h"

#include <QTemporaryDir>
#include <QTest>

using namespace pinmora;
using namespace pinmora::test;
namespace fs = std::filesystem;

namespace {

/// The names of the photos, with their comments.
QString photos(Session &session) {
    std::string names;
    for (const image *photo : session.context().records<image>()) {
        names += (names.empty() ? "" : " ") + photo->image_name().string();
        names += photo->comments().hasValue() ? "=" + photo->comments().string() : "";
    }
    return QString::fromStdString(names);
}

image &photo(Session &session, std::string_view name) {
    for (image *one : session.context().records<image>()) {
        if (one->image_name() == name) {
            return *one;
        }
    }
    throw std::runtime_error("no photo " + std::string(name));
}

QString bringBackAll(Session &session) {
    std::string errors;
    for (const RecoveryOffer &offer : session.offers()) {
        errors += session.recovered().bringBack(offer).value_or("");
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
        Session session;
        const UnregisteredChanges isThePrograms(session.context());
        session.context().insert<image>().setZoom(3);
    }
    QVERIFY(!fs::exists(currentJournal()));
    {
        Session session;
        session.addPhoto("a");
        QVERIFY(session.keeper.recorder().flush());
        QVERIFY(fs::exists(currentJournal()));
        session.keeper.forget();
        QVERIFY(!fs::exists(currentJournal()));
    }
    Session session;
    QVERIFY(session.offers().empty());
    QCOMPARE(filesIn(libraryFolder() / "recovery"), std::size_t(0));
}

void RecoveredWorkTest::whatWasSavedIsNotOffered() {
    {
        Session session;
        session.addPhoto("a");
        // The program is killed between the renaming of the store file and the end of the save.
        session.keeper.willSave("0123");
        XmlStore store(libraryFolder() / "Pinmora.xml");
        QVERIFY(!store.write(session.context(), "0123"));
    }
    {
        Session session;
        QVERIFY(session.offers().empty());
        QCOMPARE(photos(session), QString::fromUtf8("a"));
        session.keeper.willSave("4567");
        session.comment(photo(session, "a"), "later");
        session.addPhoto("b");
        session.keeper.willSave("89ab");
        XmlStore store(libraryFolder() / "Pinmora.xml");
        QVERIFY(!store.write(session.context(), "89ab"));
        session.comment(photo(session, "b"), "after the save");
    }
    Session session;
    QCOMPARE(photos(session), QString::fromUtf8("a=later b"));
    QCOMPARE(session.offers().size(), std::size_t(1));
    QCOMPARE(session.offers().front().photos, std::size_t(1));
    QCOMPARE(bringBackAll(session), QString());
    QCOMPARE(photos(session), QString::fromUtf8("a=later b=after the save"));
}

void RecoveredWorkTest::aSaveThatFailedKeepsTheWork() {
    {
        Session session;
        session.addPhoto("a");
        session.keeper.willSave("0123");
        session.addPhoto("b");
    }
    Session session;
    QCOMPARE(photos(session), QString::fromUtf8(""));
    QCOMPARE(bringBackAll(session), QString());
    QCOMPARE(photos(session), QString::fromUtf8("a b"));
    QVERIFY(photo(session, "a").getHasChanges());
    QCOMPARE(session.undoManager().undoActionName(), std::string("Bring Back Unsaved Work"));
}

void RecoveredWorkTest::workOnTheStoreFileJoinsWhatHasBeenDoneSince() {
    {
        Session session;
        for (const char *name : {"a", "b", "c", "d"}) {
            session.addPhoto(name);
        }
        QVERIFY(session.library.saveAction());
        session.comment(photo(session, "a"), "recovered");
        session.comment(photo(session, "b"), "recovered");
        session.step([&] { session.context().deleteObject(photo(session, "c")); });
        session.addPhoto("new");
    }
    Session session;
    QCOMPARE(photos(session), QString::fromUtf8("a b c d"));
    session.comment(photo(session, "a"), "of today");
    session.step([&] { session.context().deleteObject(photo(session, "b")); });
    session.comment(photo(session, "d"), "of today");
    session.addPhoto("newer");
    QVERIFY(session.library.saveAction()); // the records are the same as before
    const RecoveryOffer offer = session.offers().front();
    QCOMPARE(offer.photos, std::size_t(3));
    QVERIFY(std::chrono::system_clock::now() - offer.time < std::chrono::minutes(10));
    QCOMPARE(bringBackAll(session), QString());
    QCOMPARE(photos(session), QString::fromUtf8("a=recovered d=of today newer new"));
    session.undoManager().undo();
    QCOMPARE(photos(session), QString::fromUtf8("a=of today c d=of today newer"));
}

void RecoveredWorkTest::workOnAnotherLibraryTakesThePlaceOfTheLoadedOne() {
    {
        Session session;
        session.addPhoto("a");
        session.import(writeFile(libraryFolder() / "log", logText(1, 3)));
        session.library.deleteTempStore();
        session.comment(photo(session, "a"), "on the base");
    }
    QCOMPARE(fs::file_size(libraryFolder() / "Pinmora.xml"), std::uintmax_t(0));
    {
        Session session; // the offer is not answered
        session.addPhoto("saved");
        QVERIFY(session.library.saveAction());
    }
    Session session;
    session.addPhoto("since");
    QCOMPARE(photos(session), QString::fromUtf8("saved since"));
    QCOMPARE(session.offers().size(), std::size_t(1));
    QCOMPARE(session.offers().front().photos, std::size_t(1));
    QCOMPARE(session.offers().front().points, std::size_t(3));
    QCOMPARE(bringBackAll(session), QString());
    QCOMPARE(photos(session), QString::fromUtf8("since a=on the base"));
    QCOMPARE(session.context().count<track_part>(), std::size_t(3));
    session.undoManager().undo();
    QCOMPARE(photos(session), QString::fromUtf8("saved since"));
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
        fs::create_symlink(libraryFolder().parent_path() / "elsewhere.xml",
                           libraryFolder() / "Pinmora.xml");
    }
    {
        Session session(files);
        session.addPhoto("first");
        const bool saved = session.library.saveAction(); for(auto&m:session.messages) qDebug()<<m.c_str();
        QVERIFY(saved);
        session.comment(photo(session, "first"), "unsaved");
        session.addPhoto("unsaved");
    }
    for (const char *name : {"second", "third"}) {
        Session session(files);
        QCOMPARE(session.offers().size(), std::size_t(1));
        session.addPhoto(name);
        QVERIFY(session.library.saveAction());
    }
    {
        Session session(files);
        QCOMPARE(photos(session), QString::fromUtf8("first second third"));
        QCOMPARE(bringBackAll(session), QString());
        QCOMPARE(photos(session), QString::fromUtf8("first=unsaved unsaved"));
    }
    Session session(files); // what was brought back is unsaved work of that run
    QCOMPARE(session.offers().size(), std::size_t(1));
    QVERIFY(!session.recovered().discard(session.offers().front()));
    QVERIFY(session.offers().empty());
    QCOMPARE(photos(session), QString::fromUtf8("first second third"));
}

void RecoveredWorkTest::aStoreFileOfBeforeMayComeBack() {
    const fs::path store = libraryFolder() / "Pinmora.xml";
    const fs::path backup = libraryFolder() / "backup.xml";
    {
        Session session;
        session.addPhoto("a");
        QVERIFY(session.library.saveAction());
        fs::copy(store, backup);
        session.addPhoto("b");
        session.keeper.willSave("0123");
        QVERIFY(!XmlStore(store).write(session.context(), "0123"));
        session.comment(photo(session, "a"), "unsaved");
    }
    { Session session; } // the work is set aside, on the later file
    fs::rename(backup, store);
    Session session;
    QCOMPARE(photos(session), QString::fromUtf8("a"));
    QCOMPARE(bringBackAll(session), QString());
    QCOMPARE(photos(session), QString::fromUtf8("a=unsaved b"));
}

void RecoveredWorkTest::workThatCannotBeSetAsideStays() {
    {
        Session session;
        session.addPhoto("a");
    }
    FailingFiles files;
    {
        files.callsLeft = 0;
        Session session(files);
        QVERIFY(session.offers().empty());
        files.callsLeft = 1'000'000;
        session.addPhoto("b");
    }
    Session session;
    QCOMPARE(bringBackAll(session), QString());
    QCOMPARE(photos(session), QString::fromUtf8("a b"));
}

void RecoveredWorkTest::twoPiecesOfWorkAreBothKept() {
    for (const char *name : {"a", "b"}) {
        Session session;
        session.addPhoto(name);
    }
    Session session;
    QCOMPARE(session.offers().size(), std::size_t(2));
    QVERIFY(session.offers()[0].time <= session.offers()[1].time);
    QCOMPARE(bringBackAll(session), QString());
    QCOMPARE(photos(session), QString::fromUtf8("a b"));
}

void RecoveredWorkTest::thereIsOneOffset() {
    const auto hours = [](Session &session) {
        std::string all;
        for (const offset *one : session.context().records<offset>()) {
            all += std::to_string(one->hours().value_or(-1)) + " ";
        }
        return all;
    };
    {
        Session session;
        session.step([&] { session.context().fetch<offset>().front()->setHours(2); });
        session.library.deleteTempStore();
    }
    Session session;
    QCOMPARE(hours(session), std::string("-1 "));
    QCOMPARE(bringBackAll(session), QString());
    QCOMPARE(hours(session), std::string("2 "));
    session.undoManager().undo();
    QCOMPARE(hours(session), std::string("-1 "));
}

void RecoveredWorkTest::aJournalCutAnywhereGivesTheStepsBefore() {
    const auto state = [](Session &session) {
        return photos(session) +
               QString::fromUtf8(", %1").arg(session.context().count<track_part>());
    };
    std::vector<QString> states;
    {
        Session session;
        const auto note = [&] { states.push_back(state(session)); };
        note();
        image &first = session.addPhoto("a");
        note();
        session.step([&] {
            first.setComments("1");
            session.context().insert<image>().setImage_name("b");
        });
        note();
        {
            const UndoGroup group(session.context(), "Everything");
            session.context().insert<image>().setImage_name("c");
            note();
            session.import(writeFile(libraryFolder() / "log", logText(1, 2)));
            note();
            {
                const UnregisteredChanges isThePrograms(session.context());
                session.context().insert<image>().setImage_name("d");
            }
            note();
            session.context().insert<image>().setImage_name("e");
        }
        note();
        session.undoManager().undo();
        note();
        session.undoManager().undo();
        note();
    }
    const std::string whole = readFile(currentJournal());
    fs::remove_all(libraryFolder() / "recovery");
    QuickFiles files;
    std::size_t reached = 0;
    for (std::size_t size = 0; size <= whole.size(); size += size + 3 < whole.size() ? 3 : 1) {
        fs::create_directories(currentJournal().parent_path());
        writeFile(currentJournal(), whole.substr(0, size));
        Session session(files);
        for (const RecoveryOffer &offer : session.offers()) {
            if (offer.fault.empty()) {
                QCOMPARE(session.recovered().bringBack(offer).value_or(""), std::string());
            }
            session.recovered().discard(offer);
        }
        // Each comes in its turn, and none is left out.
        reached += reached + 1 < states.size() && state(session) == states[reached + 1] ? 1 : 0;
        QCOMPARE(state(session), states[reached]);
        session.keeper.forget();
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
        Session session;
        session.addPhoto("a");
        session.library.deleteTempStore();
        session.addPhoto("b");
    }
    for (const auto &entry : fs::directory_iterator(currentJournal().parent_path())) {
        const bool isBase = entry.path().extension() == ".xml";
        if (damaged == (isBase ? "base" : "journal")) {
            writeFile(entry.path(), "damaged");
        } else if (damaged.empty() && isBase) {
            fs::remove(entry.path());
        }
    }
    Session session;
    const RecoveryOffer offer = session.offers().front();
    QCOMPARE(offer.fault.empty(), damaged == "base");
    const std::string error = session.recovered().bringBack(offer).value_or("");
    QVERIFY2(error.find(words) != std::string::npos, error.c_str());
    QCOMPARE(photos(session), QString::fromUtf8(""));
    QVERIFY(!session.undoManager().canUndo());
    QCOMPARE(session.offers().size(), std::size_t(1));
}

void RecoveredWorkTest::aDiskThatIsFullIsToldOnceAndTriedAgain() {
    FailingFiles files;
    {
        Session session(files);
        RecoveryRecorder &recorder = session.keeper.recorder();
        recorder.setRetryInterval(std::chrono::milliseconds(0));
        std::vector<std::string> told;
        const Connection heard =
            recorder.failed.connect([&](const std::string &reason) { told.push_back(reason); });
        session.addPhoto("a");
        QVERIFY(recorder.flush());
        files.callsLeft = 0;
        session.addPhoto("b");
        QVERIFY(!recorder.flush());
        session.addPhoto("c");
        session.addPhoto("d");
        QCOMPARE(told.size(), std::size_t(1));
        QVERIFY2(told.front().find("No space left") != std::string::npos, told.front().c_str());
        files.callsLeft = 1'000'000;
        session.addPhoto("e");
        QVERIFY(recorder.flush());
        session.addPhoto("f");
        QCOMPARE(told.size(), std::size_t(1));
    }
    Session session;
    QCOMPARE(bringBackAll(session), QString());
    QCOMPARE(photos(session), QString::fromUtf8("a b c d e f"));
}

void RecoveredWorkTest::workThatCannotBeKeptAgainStays() {
    {
        Session session;
        session.addPhoto("a");
    }
    FailingFiles files;
    bool isKept = false;
    for (int calls = 0; !isKept; ++calls) {
        QVERIFY(calls < 100);
        files.callsLeft = 1'000'000;
        Session session(files);
        QCOMPARE(session.offers().size(), std::size_t(1));
        files.callsLeft = calls;
        isKept = bringBackAll(session).isEmpty();
        QCOMPARE(photos(session), QString::fromUtf8("a"));
        if (!isKept) {
            QVERIFY(session.undoManager().canUndo());
            files.callsLeft = 1'000'000;
            session.keeper.forget();
        }
    }
    Session session;
    QCOMPARE(session.offers().size(), std::size_t(1));
    QCOMPARE(bringBackAll(session), QString());
    QCOMPARE(photos(session), QString::fromUtf8("a"));
}

void RecoveredWorkTest::theStoreFileStaysWhenNoBaseCanBeWritten() {
    FailingFiles files;
    {
        Session session(files);
        session.addPhoto("a");
        QVERIFY(session.library.saveAction());
        session.addPhoto("b");
        QVERIFY(session.keeper.recorder().flush());
        files.callsLeft = 0;
        session.library.deleteTempStore();
        files.callsLeft = 1'000'000;
        session.addPhoto("c");
    }
    Session session;
    QCOMPARE(photos(session), QString::fromUtf8("a"));
    QCOMPARE(bringBackAll(session), QString());
    QCOMPARE(photos(session), QString::fromUtf8("a b c"));
}

void RecoveredWorkTest::aBaseThatCannotBeReplacedStays() {
    FailingFiles files;
    bool isReplaced = false;
    for (int calls = 0; !isReplaced; ++calls) {
        QVERIFY(calls < 100);
        {
            Session session(files);
            session.addPhoto("a");
            QVERIFY(!session.keeper.recorder().writeBase());
            session.addPhoto("b");
            QVERIFY(session.keeper.recorder().flush());
            files.callsLeft = calls;
            isReplaced = !session.keeper.recorder().writeBase();
            files.callsLeft = 1'000'000;
        }
        Session session(files);
        QCOMPARE(bringBackAll(session), QString());
        QCOMPARE(photos(session), QString::fromUtf8("a b"));
        session.keeper.forget();
    }
}

void RecoveredWorkTest::whatIsDiscardedGoesAsAWhole() {
    FailingFiles files;
    {
        Session session(files);
        session.addPhoto("a");
        session.library.deleteTempStore();
    }
    Session session(files);
    bool isGone = false;
    for (int calls = 0; !isGone; ++calls) {
        QVERIFY(calls < 10);
        const RecoveryOffer offer = session.offers().front();
        QVERIFY(offer.fault.empty());
        files.callsLeft = calls;
        isGone = !session.recovered().discard(offer);
        files.callsLeft = 1'000'000;
    }
    QVERIFY(session.offers().empty());
    QCOMPARE(filesIn(libraryFolder() / "recovery"), std::size_t(0));
}

QTEST_GUILESS_MAIN(RecoveredWorkTest)
#include "recovered_work_test.moc"
