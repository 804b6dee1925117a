#include "outlets/progress_sheet.h"
#include "outlets/quiet_bar.h"
#include "outlets/status_line.h"
#include "persistence/context.h"
#include "persistence/undo_manager.h"
#include "photos/log_intake.h"
#include "photos/photo_intake.h"
#include "photos/photos.h"
#include "platform/defaults.h"
#include "shell/intake_notes.h"
#include "shell/intake_words.h"
#include "store/image.h"
#include "store/library_model.h"

#include <QImage>
#include <QTemporaryDir>
#include <QTest>

using namespace pinmora;
namespace fs = std::filesystem;

using Names = std::vector<std::string>;

namespace {

/// Takes "x.txt" for a log, and no other text.
struct Logs : LogIntake {
    bool isGPS(std::string_view path) const override { return path.ends_with(".txt"); }
    void readLog(const std::string &) override {}
    bool readLogFoundByScan(const std::string &path) override { return path.ends_with("/x.txt"); }
};

/// A library in memory, a folder with all sorts of files, and what loads them.
struct Desk {
    QTemporaryDir folder;
    Defaults defaults;
    NotificationCentre notifications;
    LibraryModel model{notifications};
    Context context{model};
    UndoManager undo{context};
    Window window;
    WorkingWindow workingWindow = [this]() -> Window & { return window; };
    ProgressSheet progress{workingWindow};
    StatusLine statusLine;
    bool loadRunning = false;
    Logs logs;
    PhotoTypes types;
    Photos photos{context, logs, types};
    PhotoIntake intake{context, photos, progress, statusLine, defaults, workingWindow, loadRunning};
    QuietBar bar;
    IntakeNotes notes{context, intake, types, defaults, bar};

    std::string in(const std::string &name) const {
        return folder.path().toStdString() + "/" + name;
    }
    void write(const std::string &name) const {
        fs::create_directories(fs::path(in(name)).parent_path());
        const bool isPhoto = name.ends_with(".jpg") || name.ends_with(".PNG");
        if (isPhoto) {
            QImage picture(4, 3, QImage::Format_RGB32);
            picture.fill(0);
            picture.save(QString::fromStdString(in(name)));
        } else {
            std::ofstream(in(name)) << "text\n";
        }
    }
    void load(const Names &names) {
        Names paths;
        for (const std::string &name : names) {
            paths.push_back(in(name));
        }
        intake.openFiles(paths);
    }
    /// All messages, first to last, with their choices; they are gone then.
    std::string said() {
        std::string words;
        while (bar.message()) {
            words += bar.message()->head + "|" + bar.message()->text;
            for (const BarMessage::Choice &choice : bar.message()->choices) {
                words += "|" + choice.title;
            }
            words += "\n";
            bar.dismiss();
        }
        return words;
    }
    std::string loadedNames() const {
        std::string names;
        for (const image *photo : context.records<image>()) {
            names += photo->image_name().string() + " ";
        }
        return names;
    }
};

} // namespace

/// What is said after a load, and what can be done about it.
class IntakeNotesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatIsSaid_data();
    void whatIsSaid();
    void moreTypesAreLoadedFromThenOn();
    void foldersInsideAreOpened();
    void onlyTheLastLoadIsToldOf();
    void doublesAreRemovedInOneStep();
    void photosThatHaveGoneAreNoDoubles();
    void lists_data();
    void lists();
};

void IntakeNotesTest::whatIsSaid_data() {
    QTest::addColumn<Names>("files");
    QTest::addColumn<Names>("given");
    QTest::addColumn<std::string>("said");
    const auto row = [](const char *name, Names files, Names given, const char *said) {
        QTest::newRow(name) << files << given << std::string(said);
    };
    row("all is well", {"f/a.jpg", "f/x.txt", "f/.DS_Store"}, {"f"}, "");
    row("other types", {"f/a.jpg", "f/b.heic", "f/c.HEIC", "f/d.PNG", "f/e.xmp", "f/f.xmp"}, {"f"},
        "Left out:|2 .heic, 1 .png, 2 .xmp|Load Them Too\n");
    row("one folder", {"f/a.jpg", "f/g/b.jpg"}, {"f"}, "Left out:|1 folder inside|Open Folder\n");
    row("folders and texts", {"f/no.txt", "f/README", "f/g/b.jpg", "f/h/b.jpg"}, {"f"},
        "Left out:|1 .txt, 1 other file, 2 folders inside|Open Folders\n");
    row("one named file", {"b.heic"}, {"b.heic"}, "Left out:|1 .heic|Load Them Too\n");
    row("not to be read", {"f/a.jpg", "n.md"}, {"f", "n.md", "gone.jpg"},
        "Not loaded:|n.md: neither a photo nor a GPS log by its name; gone.jpg: there is no such "
        "file\n");
    row("the same twice", {"a.jpg", "f/b.jpg"}, {"a.jpg", "f", "a.jpg"},
        "1 of 3 photos was there already.|It is in the list twice now.|Remove Doubles\n");
}

void IntakeNotesTest::whatIsSaid() {
    QFETCH(Names, files);
    QFETCH(Names, given);
    Desk desk;
    for (const std::string &file : files) {
        desk.write(file);
    }
    desk.load(given);
    QTEST(desk.said(), "said");
}

void IntakeNotesTest::moreTypesAreLoadedFromThenOn() {
    Desk desk;
    for (const char *file : {"f/a.jpg", "f/b.PNG", "f/c.xmp", "f/bad.webp", "f/g/d.jpg"}) {
        desk.write(file);
    }
    desk.defaults.setText("morePhotoTypes", "0");
    desk.load({"f"});
    QCOMPARE(desk.loadedNames(), "a ");
    desk.bar.choose(0);
    QCOMPARE(desk.loadedNames(), "a b ");
    QVERIFY(desk.types.morePhotoTypes());
    QCOMPARE(desk.defaults.text("morePhotoTypes"), "1");
    QCOMPARE(desk.said(), "Left out:|1 .xmp, 1 folder inside|Open Folder\n"
                          "Not loaded:|bad.webp: not readable as an image\n");
    desk.undo.undo();
    QCOMPARE(desk.loadedNames(), "a ");
    desk.load({"f"});
    QCOMPARE(desk.loadedNames(), "a a b ");
}

void IntakeNotesTest::foldersInsideAreOpened() {
    Desk desk;
    for (const char *file : {"f/a.jpg", "f/b.heic", "f/g/c.jpg", "f/h/d.jpg", "f/h/i/e.jpg"}) {
        desk.write(file);
    }
    desk.load({"f"});
    desk.bar.choose(1);
    QCOMPARE(desk.loadedNames(), "a c d ");
    QCOMPARE(desk.bar.message()->text, "1 .heic, 1 folder inside");
    desk.bar.choose(1);
    QCOMPARE(desk.loadedNames(), "a c d e ");
    QCOMPARE(desk.said(), "Left out:|1 .heic|Load Them Too\n");
}

void IntakeNotesTest::onlyTheLastLoadIsToldOf() {
    Desk desk;
    desk.write("f/a.jpg");
    desk.write("f/b.heic");
    desk.write("c.jpg");
    desk.load({"f", "f", "n.md"});
    QVERIFY(desk.bar.message());
    desk.load({"c.jpg"});
    QCOMPARE(desk.said(), "");
}

void IntakeNotesTest::doublesAreRemovedInOneStep() {
    Desk desk;
    for (const char *file : {"a.jpg", "b.jpg", "c.jpg"}) {
        desk.write(file);
    }
    desk.load({"a.jpg", "b.jpg"});
    desk.load({"b.jpg", "c.jpg", "a.jpg"});
    QCOMPARE(desk.bar.message()->head, "2 of 3 photos were there already.");
    desk.bar.choose(0);
    QCOMPARE(desk.loadedNames(), "a b c ");
    QCOMPARE(desk.undo.undoActionName(), "Remove Doubles");
    desk.undo.undo();
    QCOMPARE(desk.loadedNames(), "a b b c a ");
}

void IntakeNotesTest::photosThatHaveGoneAreNoDoubles() {
    Desk desk;
    desk.write("a.jpg");
    desk.write("b.jpg");
    desk.load({"a.jpg", "b.jpg"});
    desk.load({"a.jpg", "b.jpg"});
    const std::vector<image *> photos = desk.context.fetch<image>();
    desk.context.deleteObject(*photos[0]); // its double is the only one now
    desk.context.deleteObject(*photos[3]);
    desk.context.commitChanges();
    desk.bar.choose(0);
    QCOMPARE(desk.loadedNames(), "b a ");
}

void IntakeNotesTest::lists_data() {
    QTest::addColumn<std::string>("text");
    QTest::addColumn<std::string>("expected");
    const auto first = [](const std::string &file) { return file.ends_with(".z"); };
    const auto row = [](const std::string &text, const char *expected) {
        QTest::newRow(expected) << text << std::string(expected);
    };
    row(kindsText({"/a/b"}, 0, first), "1 file");
    row(kindsText({"/a.b/c", "/a.b/d."}, 1, first), "2 files, 1 folder inside");
    row(kindsText({"1.a", "2.a", "1.b", "1.c", "1.d", "1.e", "1.f", "1.z", "g"}, 0, first),
        "1 .z, 2 .a, 1 .b, 1 .c, 1 .d, 3 other files");
    IntakeReport report;
    for (const char *name : {"/p/1", "/p/2", "/p/3", "/p/4"}) {
        report.leftOut.push_back({name, WhyLeftOut::Missing});
    }
    report.unreadFolders.push_back({"/p/q", std::make_error_code(std::errc::permission_denied)});
    const auto isTold = [](const LeftOutFile &file) { return file.path != "/p/1"; };
    row(unreadText(report, isTold), "q: Permission denied; 2: there is no such file; and 2 more");
    row(doublesText(1, 1), "The photo was there already.");
    row(doublesText(5, 5), "All 5 photos were there already.");
}

void IntakeNotesTest::lists() {
    QFETCH(std::string, text);
    QTEST(text, "expected");
}

QTEST_GUILESS_MAIN(IntakeNotesTest)
#include "intake_notes_test.moc"
