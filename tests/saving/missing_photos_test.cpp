#include "saving/missing_photos.h"

#include "outlets/workspace.h"
#include "persistence/undo_manager.h"
#include "platform/notification_centre.h"
#include "store/library_arrays.h"
#include "store/library_model.h"

#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <fstream>

using namespace pinmora;

namespace {

namespace fs = std::filesystem;

/// A home folder, and photos of which some have files in it.
struct MissingDesk {
    image &addPhoto(const std::string &relative, bool there) {
        auto &photo = context.insert<image>();
        photo.setFull_file_path((home / relative).string());
        photo.setHasChangesFalse();
        if (there) {
            makeFile(relative);
        }
        undo.closeStep();
        return photo;
    }
    void makeFile(const std::string &relative, const std::string &bytes = "picture") const {
        fs::create_directories((home / relative).parent_path());
        std::ofstream(home / relative) << bytes;
    }
    void choose(const std::string &below) { browserOutlets.fsBrowser.selection.set({below}); }
    std::string listed() const {
        std::string names;
        for (const image *photo : missing.missingImages.arrangedObjects()) {
            names += fs::path(photo->full_file_path().string()).filename().string() + " ";
        }
        return names;
    }
    /// What a person can do, and what the sheet says.
    std::string offers() const {
        std::string words;
        const auto add = [&words](const Button &button, const char *name) {
            words += button.visible.get() && button.enabled.get() ? name : "";
        };
        add(outlets.saveAnyWayButton, "anyway ");
        add(outlets.saveFromErrorWindow, "save ");
        add(outlets.errorOK, "ok ");
        add(outlets.findInFolderButton, "find ");
        add(outlets.deleteMissingButton, "remove ");
        add(outlets.deleteAllMissingButton, "all ");
        add(browserOutlets.updateFileLink, "use ");
        return words;
    }
    void search(const std::string &below) {
        outlets.findInFolderButton.press();
        outlets.findInFolderPanel.answer({(home / below).string()});
    }
    bool searchEnds() const {
        return QTest::qWaitFor([this] { return !missing.isSearching(); });
    }

    QTemporaryDir folder;
    const fs::path home{folder.path().toStdString()};
    NotificationCentre notifications;
    LibraryModel model{notifications};
    Context context{model};
    UndoManager undo{context};
    LibraryArrays arrays{context};
    Workspace workspace;
    Window window;
    SaveFlags flags;
    std::string done; ///< by others, in order
    FileBrowserOutlets browserOutlets;
    FileBrowser browser{browserOutlets, workspace, home.string()};
    MissingPhotosOutlets outlets{.browser = browserOutlets};
    MissingPhotos missing{
        context,
        arrays.pictureArray,
        outlets,
        browser,
        flags,
        [this]() -> Window & { return window; },
        {.updatePicts = [this] { done += flags.saveAnyWay ? "save anyway " : "save "; },
         .selectionChanged = [this] { done += "selection "; },
         .dealWithPict = [this](const std::string &path) { done += path; }}};
};

} // namespace

class MissingPhotosTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theCheckOnlyEverMarks();
    void whatCountsAsThere_data();
    void whatCountsAsThere();
    void relinkingIsOneStep();
    void withoutChoiceNothingIsRelinked_data();
    void withoutChoiceNothingIsRelinked();
    void removedPhotosComeBack();
    void eachWayOut_data();
    void eachWayOut();
    void lookingAtAMissingPhoto();
    void findsInAFolder();
    void aSearchKeepsTheRestWaiting();
    void closingEndsTheSearch();
};

void MissingPhotosTest::theCheckOnlyEverMarks() {
    MissingDesk desk;
    const image &there = desk.addPhoto("there.jpg", true);
    QVERIFY(desk.missing.validateSavedDataZem());
    QVERIFY(there.valid_file() != std::optional(false));
    const image &gone = desk.addPhoto("gone.jpg", false);
    QVERIFY(!desk.missing.validateSavedDataZem());
    QCOMPARE(desk.listed(), std::string("gone.jpg "));
    QVERIFY(there.valid_file() != std::optional(false));
    QVERIFY(!gone.getHasChanges());
    desk.missing.openForSaving();
    QCOMPARE(desk.offers(), std::string("anyway find remove all "));

    desk.makeFile("gone.jpg"); // put back: it passes, and stays listed
    QVERIFY(desk.missing.validateSavedDataZem());
    QCOMPARE(desk.listed(), std::string("gone.jpg "));
    QCOMPARE(desk.offers(), std::string("save find remove all "));
    while (desk.undo.canUndo()) {
        desk.undo.undo();
        QVERIFY(desk.undo.undoActionName().empty()); // the check was no step
    }
}

void MissingPhotosTest::whatCountsAsThere_data() {
    QTest::addColumn<bool>("there");
    QTest::newRow("folder") << true;
    QTest::newRow("link to a file") << true;
    QTest::newRow("link to nowhere") << false;
    QTest::newRow("below a file") << false;
    QTest::newRow("no path") << false;
}

void MissingPhotosTest::whatCountsAsThere() {
    QFETCH(bool, there);
    const std::string kind = QTest::currentDataTag();
    MissingDesk desk;
    desk.makeFile("file");
    fs::create_directory(desk.home / "folder");
    fs::create_symlink("file", desk.home / "link to a file");
    fs::create_symlink("gone", desk.home / "link to nowhere");
    image &photo = desk.addPhoto(kind == "below a file" ? "file/photo.jpg" : kind, false);
    if (kind == "no path") {
        photo.setFull_file_path({});
    }
    QCOMPARE(desk.missing.validateSavedDataZem(), there);
}

void MissingPhotosTest::relinkingIsOneStep() {
    MissingDesk desk;
    const image &first = desk.addPhoto("a.jpg", false);
    desk.addPhoto("b.jpg", false);
    desk.makeFile("moved/new.JPG", "eleven bytes");
    desk.missing.validateSavedDataZem();
    desk.missing.openForSaving();
    QCOMPARE(desk.missing.missingImages.firstSelectedObject(), &first);
    desk.choose("/moved/new.JPG");
    desk.missing.updatePict();
    QCOMPARE(first.full_file_path().string(), desk.home.string() + "/moved/new.JPG");
    QCOMPARE(first.valid_file(), std::optional(true));
    QCOMPARE(first.file_size(), std::optional(12.0));
    QCOMPARE(desk.listed(), std::string("b.jpg "));
    QVERIFY(desk.missing.missingImages.firstSelectedObject()); // the next one
    QCOMPARE(desk.offers(), std::string("anyway find remove all "));

    QCOMPARE(desk.undo.undoActionName(), std::string("Relink Photo"));
    desk.undo.undo();
    QCOMPARE(first.full_file_path().string(), desk.home.string() + "/a.jpg");
    QCOMPARE(desk.listed(), std::string("a.jpg b.jpg "));
    desk.undo.redo();
    QCOMPARE(desk.listed(), std::string("b.jpg "));
    desk.missing.updatePict();
    QCOMPARE(desk.offers(), std::string("save "));
}

void MissingPhotosTest::withoutChoiceNothingIsRelinked_data() {
    QTest::addColumn<bool>("photoSelected");
    QTest::addColumn<int>("entries");
    QTest::newRow("no photo") << false << 1;
    QTest::newRow("no entry") << true << 0;
    QTest::newRow("two entries") << true << 2;
}

void MissingPhotosTest::withoutChoiceNothingIsRelinked() {
    QFETCH(bool, photoSelected);
    QFETCH(int, entries);
    MissingDesk desk;
    const image &photo = desk.addPhoto("a.jpg", false);
    desk.makeFile("b.jpg");
    desk.missing.validateSavedDataZem();
    desk.missing.openForSaving();
    if (!photoSelected) {
        desk.missing.missingImages.setSelectedObjects({});
    }
    desk.browserOutlets.fsBrowser.selection.set(
        std::vector<std::string>(static_cast<std::size_t>(entries), "/b.jpg"));
    desk.missing.updatePict();
    QCOMPARE(photo.full_file_path().string(), desk.home.string() + "/a.jpg");
    QCOMPARE(photo.valid_file(), std::optional(false));
}

void MissingPhotosTest::removedPhotosComeBack() {
    MissingDesk desk;
    desk.addPhoto("kept.jpg", true);
    for (const char *name : {"a.jpg", "b.jpg", "c.jpg"}) {
        desk.addPhoto(name, false);
    }
    desk.missing.validateSavedDataZem();
    desk.missing.openForSaving();
    desk.outlets.deleteMissingButton.press();
    QCOMPARE(desk.listed(), std::string("b.jpg c.jpg "));
    QCOMPARE(desk.undo.undoActionName(), std::string("Remove Picture"));
    QCOMPARE(desk.offers(), std::string("anyway find remove all "));
    desk.outlets.deleteAllMissingButton.press();
    QCOMPARE(desk.undo.undoActionName(), std::string("Remove Pictures"));
    QCOMPARE(desk.offers(), std::string("save "));
    QCOMPARE(desk.done, std::string("selection selection "));
    QCOMPARE(desk.context.count<image>(), 1U);
    desk.undo.undo();
    QCOMPARE(desk.listed(), std::string("b.jpg c.jpg "));
    desk.undo.undo();
    QCOMPARE(desk.listed(), std::string("a.jpg b.jpg c.jpg "));
}

void MissingPhotosTest::eachWayOut_data() {
    QTest::addColumn<int>("button");
    QTest::addColumn<std::string>("done");
    QTest::addColumn<bool>("marked");
    QTest::newRow("save") << 0 << std::string("save ") << false;
    QTest::newRow("save anyway") << 1 << std::string("save anyway ") << false;
    QTest::newRow("close") << 2 << std::string() << false;
    QTest::newRow("ok") << 3 << std::string("PATH") << true;
}

void MissingPhotosTest::eachWayOut() {
    QFETCH(int, button);
    QFETCH(std::string, done);
    QFETCH(bool, marked);
    MissingDesk desk;
    image &photo = desk.addPhoto("a.jpg", false);
    desk.arrays.pictureArray.select(&photo);
    desk.missing.validateSavedDataZem();
    desk.missing.openForSaving();
    desk.browserOutlets.updateFileLink.enabled.set(true);
    Button *const buttons[] = {&desk.outlets.saveFromErrorWindow, &desk.outlets.saveAnyWayButton,
                               &desk.outlets.closeErrorButton, &desk.outlets.errorOK};
    buttons[button]->pressed.emit();
    QVERIFY(!desk.outlets.pictErrorWindow.isUp());
    QCOMPARE(desk.done, done == "PATH" ? photo.full_file_path().string() : done);
    QCOMPARE(photo.getHasChanges(), marked);
    if (button >= 2) {
        QVERIFY(!desk.browserOutlets.updateFileLink.enabled.get());
    }
}

void MissingPhotosTest::lookingAtAMissingPhoto() {
    MissingDesk desk;
    desk.addPhoto("a.jpg", false);
    image &looked = desk.addPhoto("b.jpg", false);
    desk.arrays.pictureArray.select(&looked);
    desk.missing.openForLooking(); // which checks first
    QCOMPARE(desk.outlets.pictErrorWindow.host().get(), &desk.window);
    QCOMPARE(desk.offers(), std::string("ok find remove all "));
    QCOMPARE(desk.missing.missingImages.firstSelectedObject(), &looked);
}

void MissingPhotosTest::findsInAFolder() {
    MissingDesk desk;
    const image &raw = desk.addPhoto("card/a.NEF", false);
    image &sized = desk.addPhoto("card/b.jpg", false);
    desk.addPhoto("card/c.jpg", false);
    sized.setFile_size(3);
    desk.undo.closeStep();
    desk.makeFile("new/2026/a.NEF");
    desk.makeFile("new/2026/b.jpg", "another size");
    desk.makeFile("new/other/b.jpg", "3 b");
    desk.missing.validateSavedDataZem();
    desk.missing.openForSaving();
    desk.search("new");
    QVERIFY(desk.searchEnds());
    QCOMPARE(desk.outlets.findOutcome.text.get(), std::string("2 of 3 found."));
    QCOMPARE(raw.full_file_path().string(), desk.home.string() + "/new/2026/a.NEF");
    QCOMPARE(sized.full_file_path().string(), desk.home.string() + "/new/other/b.jpg");
    QCOMPARE(desk.listed(), std::string("c.jpg "));
    QCOMPARE(desk.offers(), std::string("anyway find remove all "));
    QCOMPARE(desk.undo.undoActionName(), std::string("Relink Photos"));
    desk.undo.undo();
    QCOMPARE(desk.listed(), std::string("a.NEF b.jpg c.jpg "));
}

void MissingPhotosTest::aSearchKeepsTheRestWaiting() {
    MissingDesk desk;
    desk.addPhoto("a.jpg", false);
    desk.makeFile("new/a.jpg");
    desk.missing.validateSavedDataZem();
    desk.missing.openForSaving();
    desk.choose("/new/a.jpg");
    desk.search("new");
    QCOMPARE(desk.offers(), std::string());
    QVERIFY(!desk.browserOutlets.fsBrowser.enabled.get());
    desk.missing.updatePict(); // also not by other ways
    desk.missing.deleteAllMissingPicts();
    QCOMPARE(desk.listed(), std::string("a.jpg "));
    QVERIFY(desk.searchEnds());
    QCOMPARE(desk.offers(), std::string("save "));
    QVERIFY(desk.browserOutlets.fsBrowser.enabled.get());
}

void MissingPhotosTest::closingEndsTheSearch() {
    MissingDesk desk;
    const image &photo = desk.addPhoto("a.jpg", false);
    desk.makeFile("new/a.jpg");
    desk.missing.validateSavedDataZem();
    desk.missing.openForSaving();
    desk.search("new");
    desk.outlets.closeErrorButton.press();
    desk.missing.openForSaving(); // and another one may begin at once
    desk.search("nothing");
    QVERIFY(desk.searchEnds());
    QCOMPARE(photo.valid_file(), std::optional(false));
    QCOMPARE(desk.outlets.findOutcome.text.get(), std::string("The photo was not found there."));
}

QTEST_MAIN(MissingPhotosTest)
#include "missing_photos_test.moc"
