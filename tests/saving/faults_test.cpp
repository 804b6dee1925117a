// What can go wrong in a run, in both lanes. However it ends: originals stay as they are, no half
// copy stands under a real name, nothing is overwritten, and neither temporary files nor processes
// are left.
#include "saving/descendants.h"
#include "saving/mounts.h"
#include "saving/scene.h"

#include <QCoreApplication>
#include <QTest>

#include <sys/wait.h>
#include <thread>

using namespace pinmora;

namespace fs = std::filesystem;
using Status = SavedPhoto::Status;

namespace {

std::string whyNoMounts; ///< "" where the tests can mount file systems

const std::string tag = "printf tagged >> \"$copy\"";
/// Leaves a part of the copy, as a tool does that ends while writing into it.
const std::string halve = "head -c 100 \"$copy\" > \"$HALF\"; cat \"$HALF\" > \"$copy\"; ";
const std::string fillDisk = "cat /dev/zero > \"${copy%/*}/filler\" 2> /dev/null; ";

} // namespace

class FaultsTest : public QObject {
    Q_OBJECT

    static std::string column(const char *text) { return text; }
    template <typename Value>
    static const Value &column(const Value &value) {
        return value;
    }

    template <typename... Columns>
    static void row(const char *what, const Columns &...columns) {
        for (const ToolLane lane : lanes) {
            ((QTest::addRow("%s, %s", what, laneName(lane).data()) << lane)
             << ... << column(columns));
        }
    }

    static void verifyNobodyIsLeft() {
        QTRY_VERIFY2(runningChildren().empty(), runningChildren().c_str());
    }

private Q_SLOTS:
    void initTestCase() { adoptOrphans(); }

    void aToolGoesWrong_data() {
        QTest::addColumn<ToolLane>("lane");
        QTest::addColumn<std::string>("script"); // for the second photo
        QTest::addColumn<Status>("status");
        QTest::addColumn<std::string>("words");
        const auto fails = [](const char *what, const std::string &script,
                              const std::string &words) {
            row(what, script, Status::Failed, "Copied, but not tagged: " + words);
        };
        const std::string late = "ExifTool took too long and was ended";
        fails("failing", "echo 'Error: Not a JPG' >&2; exit 1", "Not a JPG");
        row("warning", tag + "; echo 'Warning: Odd' >&2", Status::Saved, "Odd");
        fails("hanging", ": > \"${copy}_exiftool_tmp\"; sleep 60", late);
        fails("hanging in its work", halve + "sleep 60", late);
        fails("refusing to end", "trap '' TERM; while :; do sleep 60; done", late);
        fails("flooding", "yes & yes >&2", "y; y; y");
        fails("flooding when done", tag + "; yes >&2", "y; y; y");
        fails("killed", "kill -9 $$", "ExifTool was ended by signal 9");
        fails("killed in its work", halve + ": > \"${copy}_exiftool_tmp\"; kill -9 $$",
              "ExifTool was ended by signal 9");
        fails("leaving a part", halve + "exit 2", "ExifTool ended with status 2");
        fails("its copy taken away", "rm \"$copy\"; exit 1", "ExifTool ended with status 1");
    }
    void aToolGoesWrong() {
        QFETCH(ToolLane, lane);
        QFETCH(std::string, script);
        QFETCH(Status, status);
        QFETCH(std::string, words);
        Scene scene;
        scene.putOlderFile();
        scene.standIn("case $copy in */p1.jpg) " + script + ";; *) " + tag + ";; esac");
        const SaveOutcome outcome = scene.save(lane);
        QCOMPARE(scene.wrongs(), "");
        for (const SavedPhoto &photo : outcome.photos) {
            const bool isIt = photo.index == 1;
            QCOMPARE(photo.status, isIt ? status : Status::Saved);
            QVERIFY2(photo.message.starts_with(isIt ? words : ""), photo.message.c_str());
            QVERIFY(photo.savedAs);
            QCOMPARE(bytesOf(*photo.savedAs).ends_with("tagged"), photo.status == Status::Saved);
        }
        QCOMPARE(bytesOf(scene.copies / "p0.jpg"), older);
        QCOMPARE(scene.copyNames().size(), photoCount + 1);
        verifyNobodyIsLeft();
    }

    /// Its copy may be half written while there is nothing, or no room, to make it anew from.
    void aDoubtfulCopy_data() {
        QTest::addColumn<ToolLane>("lane");
        QTest::addColumn<std::string>("script");
        QTest::addColumn<bool>("stays");
        QTest::addColumn<std::string>("words");
        const std::string full = "; Not copied: No space left on device";
        row("whole, the disk full", fillDisk + "kill -9 $$", true, "");
        row("half, the disk full", halve + fillDisk + "kill -9 $$", false, full);
        row("half, room once it is gone",
            "head -c 40000 \"$copy\" > \"$HALF\"; cat \"$HALF\" > \"$copy\"; "
            "head -c 60000 /dev/zero > \"${copy%/*}/filler\"; kill -9 $$",
            true, "");
        row("the original gone", "rm \"$ORIGINAL\"; kill -9 $$", true,
            "; the copy may be damaged, and the original is missing");
        row("somebody else's file", "rm \"$copy\"; printf older > \"$copy\"; kill -9 $$", true, "");
    }
    void aDoubtfulCopy() {
        QFETCH(ToolLane, lane);
        QFETCH(std::string, script);
        QFETCH(bool, stays);
        QFETCH(std::string, words);
        if (!whyNoMounts.empty()) {
            QSKIP(whyNoMounts.c_str());
        }
        Scene scene;
        const SmallDisk disk{scene.copies, 128};
        QVERIFY(disk.isMounted());
        scene.photos.resize(1);
        qputenv("ORIGINAL", scene.photos[0].source.c_str());
        scene.standIn(script);
        const SavedPhoto saved = scene.save(lane).photos.at(0);
        QCOMPARE(QByteArray::fromStdString(saved.message),
                 QByteArray::fromStdString(
                     "Copied, but not tagged: ExifTool was ended by signal 9" + words));
        QCOMPARE(saved.status, Status::Failed);
        QCOMPARE(saved.savedAs.has_value(), stays);
        if (fs::exists(scene.photos[0].source)) {
            QCOMPARE(scene.wrongs(), "");
        }
        QVERIFY(!stays || bytesOf(*saved.savedAs).ends_with("ending"));
        if (script.find(older) != std::string::npos) {
            QCOMPARE(bytesOf(scene.copies / "p0.jpg"), older);
        }
        verifyNobodyIsLeft();
    }

    void aPlaceGoesWrong_data() {
        QTest::addColumn<ToolLane>("lane");
        QTest::addColumn<int>("kibibytes");
        QTest::addColumn<std::string>("message");
        row("full", 4 * 60 + 40, "Not copied: No space left on device");
        row("read-only", 1000, "Not copied: Read-only file system");
    }
    void aPlaceGoesWrong() {
        QFETCH(ToolLane, lane);
        QFETCH(int, kibibytes);
        QFETCH(std::string, message);
        if (!whyNoMounts.empty()) {
            QSKIP(whyNoMounts.c_str());
        }
        Scene scene;
        SmallDisk disk{scene.copies, static_cast<std::size_t>(kibibytes)};
        QVERIFY(disk.isMounted());
        scene.putOlderFile();
        const bool isReadOnly = kibibytes == 1000;
        QVERIFY(!isReadOnly || disk.makeReadOnly());
        scene.standIn(tag);
        std::size_t failed = 0;
        for (const SavedPhoto &photo : scene.save(lane).photos) {
            const bool isTagged = photo.savedAs && bytesOf(*photo.savedAs).ends_with("tagged");
            QCOMPARE(photo.status, isTagged ? Status::Saved : Status::Failed);
            if (!photo.savedAs) {
                QCOMPARE(photo.message, message);
                ++failed;
            }
        }
        QVERIFY(isReadOnly ? failed == photoCount : failed > 0 && failed < photoCount);
        QCOMPARE(scene.wrongs(), "");
        QCOMPARE(bytesOf(scene.copies / "p0.jpg"), older);
        verifyNobodyIsLeft();
    }

    void somethingIsTakenAway_data() {
        QTest::addColumn<ToolLane>("lane");
        QTest::addColumn<bool>("destination");
        QTest::addColumn<std::string>("message"); // of the last photo
        row("the destination", true, "Not copied: No such file or directory");
        row("an original", false, "Not copied: the original is missing");
    }
    void somethingIsTakenAway() {
        QFETCH(ToolLane, lane);
        QFETCH(bool, destination);
        QFETCH(std::string, message);
        Scene scene;
        scene.standIn(tag);
        const fs::path last = scene.photos.back().source;
        const auto begins = [&](std::size_t index, std::size_t) {
            if (index == 3) {
                fs::rename(destination ? scene.copies : last, scene.root / "away");
            }
        };
        const SaveOutcome outcome = scene.save(lane, {.begins = begins});
        fs::rename(scene.root / "away", destination ? scene.copies : last);
        for (const SavedPhoto &photo : outcome.photos) {
            if (photo.index == photoCount - 1) {
                QCOMPARE(photo.message, message);
                QCOMPARE(photo.status, Status::Failed);
            } else if (!destination) {
                QCOMPARE(photo.message, "");
            }
        }
        QCOMPARE(scene.wrongs(), "");
        verifyNobodyIsLeft();
    }

    void twoRunsIntoOneFolderLoseNothing_data() {
        QTest::addColumn<ToolLane>("lane");
        row("two runs");
    }
    void twoRunsIntoOneFolderLoseNothing() {
        QFETCH(ToolLane, lane);
        Scene scene;
        scene.standIn(tag);
        for (PhotoSnapshot &photo : scene.photos) {
            photo.imageName = "same" + std::to_string(photo.imageName.back() % 2);
        }
        std::array<SaveOutcome, 2> outcomes;
        std::thread other{[&] { outcomes[1] = scene.save(lane); }};
        outcomes[0] = scene.save(lane);
        other.join();
        QCOMPARE(scene.copyNames().size(), 2 * photoCount);
        for (const SaveOutcome &outcome : outcomes) {
            for (const SavedPhoto &photo : outcome.photos) {
                QCOMPARE(photo.message, "");
                QCOMPARE(bytesOf(*photo.savedAs),
                         bytesOf(scene.photos[photo.index].source) + "tagged");
            }
        }
        QCOMPARE(scene.wrongs(), "");
        verifyNobodyIsLeft();
    }

    /// The tools end the photo they are at, and then themselves.
    void aRunIsKilled_data() {
        QTest::addColumn<ToolLane>("lane");
        row("killed");
    }
    void aRunIsKilled() {
        QFETCH(ToolLane, lane);
        Scene scene;
        scene.standIn("sleep 0.1; " + tag);
        const pid_t child = ::fork();
        if (child == 0) {
            scene.save(lane, {.ended = [](const SavedPhoto &) { ::raise(SIGKILL); }});
            ::_exit(0);
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status));
        verifyNobodyIsLeft();
        QVERIFY(!scene.copyNames().empty());
        QCOMPARE(scene.wrongs(), "");

        scene.standIn(tag);
        for (const SavedPhoto &photo : scene.save(lane).photos) {
            QCOMPARE(photo.status, Status::Saved);
        }
        QCOMPARE(scene.wrongs(), "");
    }
};

int main(int argc, char **argv) {
    whyNoMounts = enterOwnMounts();
    const QCoreApplication application(argc, argv);
    FaultsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "faults_test.moc"
