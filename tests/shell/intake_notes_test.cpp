#include "gps/gps_intake.h"
#include "gps/log_desk.h"
#include "outlets/quiet_bar.h"
#include "outlets/status_line.h"
#include "persistence/undo_manager.h"
#include "photos/photo_intake.h"
#include "photos/photos.h"
#include "platform/defaults.h"
#include "shell/intake_notes.h"
#include "shell/intake_words.h"
#include "shell/log_intake_adapter.h"
#include "store/image.h"

#include <QImage>

using namespace pinmora;
using namespace pinmora::test;
namespace fs = std::filesystem;

using Names = std::vector<std::string>;

namespace {

/// A folder with all sorts of files, and what loads them.
struct Desk : LogDesk {
    Defaults defaults;
    UndoManager undo{context};
    WorkingWindow workingWindow = [this]() -> Window & { return window; };
    StatusLine statusLine;
    bool loadRunning = false;
    LogIntakeAdapter logs{gps};
    PhotoTypes types;
    Photos photos{context, logs, types};
    GpsIntake gpsIntake{context, gps, progress, defaults, workingWindow, loadRunning};
    PhotoIntake intake{context, photos, progress, statusLine, defaults, workingWindow, loadRunning};
    Connection begins = intake.beginning.connect([this] { logs.beginLoad(); });
    QuietBar bar;
    IntakeNotes notes{context, gpsIntake, intake, logs, types, defaults, bar};

    std::string in(const std::string &name) const { return pathOf(name).native(); }
    /// A log under "x.txt" and "x.gpx", but broken off after its point under "cut.gpx"; a photo
    /// under ".jpg" and ".PNG"; and a text under all other names.
    void put(const std::string &name) const {
        const std::string log =
            "<?xml version=\"1.0\"?><gpx><trk><trkseg>"
            "<trkpt lat=\"47\" lon=\"8\"><time>2024-05-01T10:00:00Z</time></trkpt>";
        fs::create_directories(pathOf(name).parent_path());
        if (name.ends_with(".jpg") || name.ends_with(".PNG")) {
            QImage picture(4, 3, QImage::Format_RGB32);
            picture.fill(0);
            picture.save(QString::fromStdString(in(name)));
        } else if (name.ends_with("cut.gpx")) {
            write(name, log);
        } else {
            const bool isLog = name.ends_with("x.txt") || name.ends_with("x.gpx");
            write(name, isLog ? log + "</trkseg></trk></gpx>" : "text\n");
        }
    }
    void putAll(const Names &names) const {
        for (const std::string &name : names) {
            put(name);
        }
    }
    void loadByPanel(const Names &names) {
        intake.getFiles();
        intake.panel.answer(allIn(names));
    }
    void loadLogs(const Names &names) {
        gpsIntake.getGPSFile();
        gpsIntake.panel.answer(allIn(names));
    }
    Names allIn(const Names &names) const {
        Names paths;
        std::transform(names.begin(), names.end(), std::back_inserter(paths),
                       [this](const std::string &name) { return in(name); });
        return paths;
    }
    void load(const Names &names) { intake.openFiles(allIn(names)); }
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
    void whatIsNotAnsweredStays_data();
    void whatIsNotAnsweredStays();
    void doublesOfBothLoadsGo();
    void whatIsClosedDoesNotComeBack();
    void logsOfAChosenFolderAreOffered();
    void logsThatFail_data();
    void logsThatFail();
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
    row("spelled as no photo and no log",
        {"f/b.heic", "f/C.HEIC", "f/Odd.Jpg", "f/T.Gpx", "f/A.TXT"}, {"f"},
        "Left out:|2 .heic, 1 .Jpg, 1 .Gpx, 1 .txt|Load Them Too\n");
    row("logs not to be read", {"a.jpg", "f/a.cut.gpx", "b.cut.gpx", "f/x.gpx"},
        {"a.jpg", "f", "b.cut.gpx", "gone.gpx", "gone.jpg"},
        "Not loaded:|a.cut.gpx, b.cut.gpx, gone.gpx; gone.jpg: there is no such file\n");
    row("not to be read", {"f/a.jpg", "n.md"}, {"f", "n.md", "gone.jpg"},
        "Not loaded:|n.md: neither a photo nor a GPS log by its name; gone.jpg: there is no such "
        "file\n");
    row("an empty folder", {"f/.DS_Store", "a.jpg"}, {"f", "a.jpg"},
        "|There are no photos and no logs in “f”.\n");
    row("two empty folders", {"f/.DS_Store", "g/.x.jpg"}, {"f", "g"},
        "|There are no photos and no logs in 2 folders.\n");
    row("the same twice", {"a.jpg", "f/b.jpg"}, {"a.jpg", "f", "a.jpg"},
        "1 of 3 photos was there already.|It is in the list more than once now.|Remove Doubles\n");
}

void IntakeNotesTest::whatIsSaid() {
    QFETCH(Names, files);
    QFETCH(Names, given);
    Desk desk;
    desk.putAll(files);
    desk.load(given);
    QTEST(desk.said(), "said");
}

void IntakeNotesTest::moreTypesAreLoadedFromThenOn() {
    Desk desk;
    desk.putAll({"f/a.jpg", "f/b.PNG", "f/c.xmp", "f/bad.webp", "f/g/d.jpg"});
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
    desk.putAll({"f/a.jpg", "f/b.heic", "f/g/c.jpg", "f/h/d.jpg", "f/h/i/e.jpg"});
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
    desk.putAll({"f/a.jpg", "f/b.heic", "c.jpg"});
    desk.load({"f", "f", "n.md"});
    QVERIFY(desk.bar.message());
    desk.load({"c.jpg"});
    QCOMPARE(desk.said(), "");
}

void IntakeNotesTest::whatIsNotAnsweredStays_data() {
    QTest::addColumn<std::size_t>("choice");
    QTest::addColumn<std::string>("said");
    QTest::newRow("more types") << std::size_t{0}
                                << std::string("Not loaded:|gone.jpg: there is no such file; "
                                               "bad.webp: not readable as an image\n"
                                               "1 of 2 photos was there already.|It is in the list "
                                               "more than once now.|Remove Doubles\n"
                                               "Left out:|1 folder inside|Open Folder\n");
    QTest::newRow("folder") << std::size_t{1}
                            << std::string("Not loaded:|cut.gpx: damaged GPX; 1 point before the "
                                           "damage came in; gone.jpg: there is no such file\n"
                                           "1 of 3 photos was there already.|It is in the list "
                                           "more than once now.|Remove Doubles\n"
                                           "Left out:|1 .png, 1 .webp|Load Them Too\n");
}

/// The first of three messages is answered with a load, which has its own to add to the others.
void IntakeNotesTest::whatIsNotAnsweredStays() {
    QFETCH(std::size_t, choice);
    Desk desk;
    desk.putAll({"f/a.jpg", "f/b.PNG", "f/bad.webp", "f/g/c.jpg", "f/g/d.jpg", "f/g/cut.gpx"});
    desk.load({"f/a.jpg"});
    desk.load({"f", "gone.jpg"});
    desk.bar.choose(choice);
    QTEST(desk.said(), "said");
}

void IntakeNotesTest::doublesOfBothLoadsGo() {
    Desk desk;
    desk.putAll({"f/a.jpg", "f/g/b.jpg"});
    desk.load({"f/a.jpg", "f/g/b.jpg"});
    desk.load({"f"});
    desk.bar.choose(0);
    QCOMPARE(desk.loadedNames(), "a b a b ");
    desk.bar.choose(0);
    QCOMPARE(desk.loadedNames(), "a b ");
}

/// Messages that were closed are not said again by a load chosen on another one.
void IntakeNotesTest::whatIsClosedDoesNotComeBack() {
    Desk desk;
    desk.putAll({"f/a.jpg", "f/g/d.jpg"});
    desk.load({"f", "f/a.jpg", "gone.jpg"});
    const BarMessage leftOut = *desk.bar.message();
    desk.said();
    leftOut.choices.front().act();
    QCOMPARE(desk.said(), "");
}

void IntakeNotesTest::logsOfAChosenFolderAreOffered() {
    Desk desk;
    desk.putAll({"f/a.jpg", "f/b.PNG", "f/x.gpx", "f/no.txt", "f/g/x.txt"});
    desk.loadByPanel({"f"});
    QCOMPARE(desk.bar.message()->choices.size(), 2U); // for the photos and the folder
    desk.bar.choose(1);
    QCOMPARE(desk.context.count<track>(), 1U);
    QCOMPARE(desk.bar.message()->choices.back().title, "Load Logs");
    desk.bar.choose(1);
    QCOMPARE(desk.context.count<track>(), 2U);
    QCOMPARE(desk.messages, Names());
    QCOMPARE(desk.said(), "Left out:|1 .png, 1 .txt|Load Them Too\n");
}

void IntakeNotesTest::logsThatFail_data() {
    QTest::addColumn<Names>("logs");
    QTest::addColumn<std::string>("said");
    QTest::newRow("none") << Names{"x.gpx"} << std::string();
    QTest::newRow("the sheet has its name") << Names{"x.gpx", "gone.gpx"} << std::string();
    QTest::newRow("the sheet lacks its name")
        << Names{"cut.gpx"}
        << std::string("cut.gpx: damaged GPX; 1 point before the damage came in");
    QTest::newRow("two") << Names{"cut.gpx", "x.gpx", "gone.gpx"}
                         << std::string("cut.gpx, gone.gpx");
    QTest::newRow("many") << Names{"1.log", "2.log", "3.log", "4.log", "5.log", "6.log", "7.log"}
                          << std::string("1.log, 2.log, 3.log, 4.log, 5.log, and 2 more");
}

void IntakeNotesTest::logsThatFail() {
    QFETCH(Names, logs);
    QFETCH(std::string, said);
    Desk desk;
    desk.putAll({"f/b.heic", "cut.gpx", "x.gpx"});
    desk.load({"f", "gone.jpg"});
    desk.loadLogs({"cut.gpx", "gone.gpx"}); // an earlier load, which is no longer told of
    desk.loadLogs(logs);
    const std::string photo = "gone.jpg: there is no such file\n";
    QCOMPARE(desk.said(), "Left out:|1 .heic|Load Them Too\nNot loaded:|" +
                              (said.empty() ? photo : said + "; " + photo));
}

void IntakeNotesTest::doublesAreRemovedInOneStep() {
    Desk desk;
    desk.putAll({"a.jpg", "b.jpg", "c.jpg"});
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
    desk.putAll({"a.jpg", "b.jpg"});
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
    const auto row = [](const std::string &text, const char *expected) {
        QTest::newRow(expected) << text << std::string(expected);
    };
    const auto kinds = [](const Names &files, std::size_t folders) {
        return kindsText(
            files, folders, [](const std::string &file) { return file.ends_with(".z"); },
            [](std::string_view extension) { return extension == "y"; });
    };
    row(kinds({"/a/b"}, 0), "1 file");
    row(kinds({"/a.b/c", "/a.b/d."}, 1), "2 files, 1 folder inside");
    row(kinds({"1.a", "2.a", "1.b", "1.c", "1.d", "1.e", "1.f", "1.z", "g"}, 0),
        "1 .z, 2 .a, 1 .b, 1 .c, 1 .d, 3 other files");
    row(kinds({"1.Y", "1.y", "1.x", "1.X"}, 0), "2 .x, 1 .Y, 1 .y");
    NotLoaded notLoaded;
    for (const char *name : {"/p/2", "/p/3", "/p/4"}) {
        notLoaded.files.push_back({name, WhyLeftOut::Missing});
    }
    notLoaded.folders.push_back({"/p/q", std::make_error_code(std::errc::permission_denied)});
    row(notLoadedText(notLoaded), "q: Permission denied; 2: there is no such file; and 2 more");
    row(doublesText(1, 1), "The photo was there already.");
    row(doublesText(5, 5), "All 5 photos were there already.");
}

void IntakeNotesTest::lists() {
    QFETCH(std::string, text);
    QTEST(text, "expected");
}

QTEST_GUILESS_MAIN(IntakeNotesTest)
#include "intake_notes_test.moc"
