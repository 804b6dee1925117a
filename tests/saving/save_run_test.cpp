#include "saving/save_run.h"

#include "saving/folders.h"

#include <QTest>
#include <QThread>

#include <sys/xattr.h>

using namespace pinmora;

namespace fs = std::filesystem;
using Status = SavedPhoto::Status;
using Names = std::set<std::string>;

/// Folders with a tool that is content with everything.
struct Desk : Folders {
    ToolLane lane = ToolLane::Process;

    Desk() { standIn(":"); }

    SaveOutcome save(const std::vector<PhotoSnapshot> &photos, SaveObserver observer = {}) const {
        const MetadataTool tool{resources, {.lane = lane, .patience = std::chrono::seconds{10}}};
        return SaveRun{tool, copies, std::move(observer)}.run(photos);
    }
    SavedPhoto saveOne(const PhotoSnapshot &photo) const { return save({photo}).photos.at(0); }
    std::string nameOf(const SavedPhoto &photo) const {
        return photo.savedAs ? photo.savedAs->lexically_relative(copies).string() : "";
    }
};

class SaveRunTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void neverReplacesAnything() {
        Desk desk;
        PhotoSnapshot photo = desk.photo("a", "first");
        PhotoSnapshot namesake = desk.photo("b", "second");
        namesake.imageName = "a";
        writeBytes(desk.copies / "a.jpg", "older");
        fs::create_directory(desk.copies / "a_1.jpg");
        fs::create_symlink("nowhere", desk.copies / "a_3.jpg");

        const SaveOutcome outcome = desk.save({photo, namesake, photo});

        QCOMPARE(desk.copyNames(),
                 (Names{"a.jpg", "a_1.jpg", "a_2.jpg", "a_3.jpg", "a_4.jpg", "a_5.jpg"}));
        QCOMPARE(bytesOf(desk.copies / "a.jpg"), "older");
        QCOMPARE(bytesOf(desk.copies / "a_2.jpg"), "first");
        QCOMPARE(bytesOf(desk.copies / "a_4.jpg"), "second");
        QCOMPARE(desk.nameOf(outcome.photos[2]), "a_5.jpg");
    }

    void aCopyStaysInItsFolder_data() {
        QTest::addColumn<std::string>("name");
        QTest::addColumn<std::string>("extension");
        QTest::addColumn<std::string>("savedAs"); // "": not saved
        QTest::newRow("upwards") << std::string("../a") << std::string("jpg")
                                 << std::string("..-a.jpg");
        QTest::newRow("dot") << std::string(".") << std::string() << std::string("._1.");
        QTest::newRow("nothing") << std::string() << std::string() << std::string("_1.");
        QTest::newRow("control") << std::string("a\n\x01") << std::string("jpg")
                                 << std::string("a\n\x01.jpg");
        QTest::newRow("too long") << std::string(252, 'x') << std::string("jpg") << std::string();
    }
    void aCopyStaysInItsFolder() {
        QFETCH(std::string, name);
        QFETCH(std::string, extension);
        QFETCH(std::string, savedAs);
        Desk desk;
        PhotoSnapshot photo = desk.photo("a", "x");
        photo.imageName = name;
        photo.extension = extension;
        const SavedPhoto saved = desk.saveOne(photo);
        QCOMPARE(desk.nameOf(saved), savedAs);
        QCOMPARE(desk.copyNames(), savedAs.empty() ? Names{} : Names{savedAs});
        QCOMPARE(saved.message, savedAs.empty() ? "Not copied: File name too long" : "");
    }

    void whatFailsIsReportedAndTheOthersGoOn() {
        Desk desk;
        desk.standIn("case $copy in *c.jpg) echo 'Error: Cannot write' >&2; exit 1;; "
                     "*d.jpg) echo 'Warning: Odd' >&2;; esac");
        std::vector<PhotoSnapshot> photos{desk.photo("a", "1"), desk.photo("b", "2"),
                                          desk.photo("c", "3"), desk.photo("d", "4")};
        fs::remove(photos[0].source);
        fs::remove(photos[1].source);
        fs::create_directory(photos[1].source);

        const SaveOutcome outcome = desk.save(photos);

        QCOMPARE(desk.copyNames(), (Names{"c.jpg", "d.jpg"}));
        const std::array<std::string, 4> messages{"Not copied: the original is missing",
                                                  "Not copied: Is a directory",
                                                  "Copied, but not tagged: Cannot write", "Odd"};
        for (std::size_t i = 0; i < 4; ++i) {
            QCOMPARE(outcome.photos[i].index, i);
            QCOMPARE(outcome.photos[i].message, messages[i]);
            QCOMPARE(outcome.photos[i].status, i < 3 ? Status::Failed : Status::Saved);
            QCOMPARE(outcome.photos[i].savedAs.has_value(), i >= 2);
        }
    }

    void whatWasMissingBeforeIsPassedOver() {
        Desk desk;
        std::vector<PhotoSnapshot> photos{desk.photo("gone", "1"), desk.photo("back", "2")};
        photos[0].wasMissing = photos[1].wasMissing = true;
        fs::remove(photos[0].source);
        const SaveOutcome outcome = desk.save(photos);
        QCOMPARE(outcome.photos[0].status, Status::Skipped);
        QCOMPARE(outcome.photos[0].message, "");
        QVERIFY(!outcome.photos[0].savedAs);
        QCOMPARE(outcome.photos[1].status, Status::Saved);
        QCOMPARE(desk.copyNames(), Names{"back.jpg"});
    }

    void withoutToolNothingIsBegun() {
        Desk desk;
        fs::remove(desk.resources / "exiftool");
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", "/nowhere");
        const SaveOutcome outcome = desk.save({desk.photo("a", "x")});
        qputenv("PATH", path);
        QVERIFY(outcome.refusal.find("sudo apt install libimage-exiftool-perl") !=
                std::string::npos);
        QCOMPARE(desk.copyNames(), Names{});
    }

    void keepsTimesPermissionsAndAttributes() {
        Desk desk;
        desk.standIn("echo tagged >> \"$copy\"");
        const PhotoSnapshot photo = desk.photo("a", "photo\n");
        fs::permissions(photo.source, fs::perms{0440});
        const bool attributes =
            ::setxattr(photo.source.c_str(), "user.rating", "5", 1, 0) == 0 || errno != ENOTSUP;
        FileTimes old{{1'200'000'000, 0}, {1'000'000'000, 123'000}};
        QVERIFY(!writeFileTimes(photo.source, old));

        QCOMPARE(desk.saveOne(photo).status, Status::Saved);

        const fs::path copy = desk.copies / "a.jpg";
        QCOMPARE(bytesOf(copy), "photo\ntagged\n");
        QCOMPARE(bytesOf(photo.source), "photo\n");
        for (const fs::path &file : {copy, photo.source}) {
            FileTimes times;
            QVERIFY(!readFileTimes(file, times));
            QCOMPARE(times.modification.tv_sec, old.modification.tv_sec);
            QCOMPARE(times.modification.tv_nsec, old.modification.tv_nsec);
            QCOMPARE(fs::status(file).permissions(), fs::perms{0440});
            char rating = 0;
            QCOMPARE(::getxattr(file.c_str(), "user.rating", &rating, 1), attributes ? 1 : -1);
        }
    }

    void tellsHowFarItIsOnTheCallersThread() {
        Desk desk;
        std::vector<std::size_t> begun;
        std::vector<std::string> placed;
        Names ended;
        bool elsewhere = false;
        QThread *const here = QThread::currentThread();
        const auto look = [&] { elsewhere = elsewhere || QThread::currentThread() != here; };
        desk.save({desk.photo("a", "1"), desk.photo("b", "2"), desk.photo("c", "3")},
                  {.begins =
                       [&](std::size_t index, std::size_t count) {
                           look();
                           begun.push_back(10 * count + index);
                       },
                   .placed =
                       [&](const fs::path &copy) {
                           look();
                           placed.push_back(copy.filename());
                           QVERIFY(fs::exists(copy));
                       },
                   .copied =
                       [&] {
                           look();
                           placed.emplace_back("all");
                       },
                   .ended =
                       [&](const SavedPhoto &photo) {
                           look();
                           ended.insert(desk.nameOf(photo));
                       }});
        QCOMPARE(begun, (std::vector<std::size_t>{30, 31, 32}));
        QCOMPARE(placed, (std::vector<std::string>{"a.jpg", "b.jpg", "c.jpg", "all"}));
        QCOMPARE(ended, (Names{"a.jpg", "b.jpg", "c.jpg"}));
        QVERIFY(!elsewhere);
    }

    void aStoppedRunBeginsNoFurtherPhoto() {
        Desk desk;
        std::size_t begun = 0;
        const auto outcome =
            desk.save({desk.photo("a", "1"), desk.photo("b", "2"), desk.photo("c", "3")},
                      {.begins = [&](std::size_t, std::size_t) { ++begun; },
                       .stopped = [&] { return begun == 1; }});
        QCOMPARE(outcome.photos.at(0).status, SavedPhoto::Status::Saved);
        for (const std::size_t index : {1U, 2U}) {
            QCOMPARE(outcome.photos.at(index).status, SavedPhoto::Status::Stopped);
            QVERIFY(!outcome.photos.at(index).savedAs);
        }
        QCOMPARE(begun, 1U);
    }

    /// Each stand-in waits for the last photo's copy, which would never come if copying waited.
    void copyingDoesNotWaitForTheTool() {
        Desk desk;
        desk.standIn("until test -e \"${copy%/*}/last.jpg\"; do sleep 0.01; done");
        std::vector<PhotoSnapshot> photos;
        for (int i = 0; i < 2 * QThread::idealThreadCount(); ++i) {
            photos.push_back(desk.photo("photo" + std::to_string(i), "x"));
        }
        photos.push_back(desk.photo("last", "x"));
        for (const SavedPhoto &photo : desk.save(photos).photos) {
            QCOMPARE(photo.message, "");
        }
    }

    void noMoreToolsAtATimeThanCores_data() {
        QTest::addColumn<ToolLane>("lane");
        for (const ToolLane lane : lanes) {
            QTest::newRow(laneName(lane).data()) << lane;
        }
    }
    void noMoreToolsAtATimeThanCores() {
        QFETCH(ToolLane, lane);
        Desk desk;
        desk.lane = lane;
        fs::create_directory(desk.root / "running");
        desk.standIn("cd '" + desk.root.string() +
                     "'; mkdir running/$$; set -- running/*; "
                     "echo $# >> counts; echo $$ >> processes; sleep 0.03; rmdir running/$$");
        std::vector<PhotoSnapshot> photos;
        for (int i = 0; i < 3 * QThread::idealThreadCount() + 2; ++i) {
            photos.push_back(desk.photo("photo" + std::to_string(i), "x"));
        }
        desk.save(photos);
        std::ifstream counts(desk.root / "counts");
        std::size_t lines = 0;
        for (int count = 0; counts >> count; ++lines) {
            QVERIFY(count <= QThread::idealThreadCount());
        }
        QCOMPARE(lines, photos.size());
        std::ifstream processes(desk.root / "processes");
        Names different;
        for (std::string process; processes >> process;) {
            different.insert(process);
        }
        const auto cores = static_cast<std::size_t>(QThread::idealThreadCount());
        QVERIFY(lane == ToolLane::Shared ? different.size() <= cores
                                         : different.size() == photos.size());
    }
};

QTEST_GUILESS_MAIN(SaveRunTest)
#include "save_run_test.moc"
