#include "photos/file_browser.h"

#include "outlets/workspace.h"
#include "photos/folder_entries.h"
#include "photos/fs_node_info.h"
#include "photos/photo_files.h"

#include <QTemporaryDir>
#include <QTest>

#include <fstream>
#include <sys/stat.h>

using namespace pinmora;
namespace fs = std::filesystem;

namespace {

QByteArray plain(const AttributedText &text) {
    QByteArray all;
    for (const TextRun &run : text) {
        all += QByteArray::fromStdString(run.bold ? "[" + run.text + "]" : run.text);
    }
    return all;
}

QByteArray namesOf(const std::vector<FSNodeInfo> &nodes) {
    std::string names;
    for (const FSNodeInfo &node : nodes) {
        names += (names.empty() ? "" : " ") + node.lastPathComponent();
    }
    return QByteArray::fromStdString(names);
}

} // namespace

/// Entries of the file system, and what a person is told of the selected one.
class BrowserTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nodes_data();
    void nodes();
    void pathsOfNodes_data();
    void pathsOfNodes();
    void listsForPeople();
    void listsNothingOfWhatCannotBeRead();
    void tellsOfTheSelection_data();
    void tellsOfTheSelection();
    void columnsFollowTheSelection_data();
    void columnsFollowTheSelection();
    void theLastPictureAskedForCounts();
    void picturesStandUpright_data();
    void picturesStandUpright();
    void aColumnThatComesLateLeavesTheChoice();
    void opensWithTheDesktop();

private:
    fs::path in(const std::string &name) const {
        return fs::path(folder_->path().toStdString()) / name;
    }
    void select(std::vector<std::string> paths) {
        outlets_.fsBrowser.selection.set(std::move(paths));
    }
    bool waitForPicture() {
        return QTest::qWaitFor([this] { return !outlets_.pictureLoading.get(); });
    }

    std::unique_ptr<QTemporaryDir> folder_;
    FileBrowserOutlets outlets_;
    Workspace workspace_;
    std::unique_ptr<FileBrowser> browser_;
};

void BrowserTest::init() {
    folder_ = std::make_unique<QTemporaryDir>();
    for (const char *folder : {"Pictures/2026 Coast", ".cache", "quiet/.git"}) {
        fs::create_directories(in(folder));
    }
    writePhoto(in("Pictures/IMG_9.JPG"));
    writePhoto(in("Pictures/IMG_10.jpg"));
    for (const char *file : {"Pictures/photo.jpeg", "Pictures/broken.jpg", "Pictures/b.txt",
                             "Pictures/.hidden.jpg", "Pictures/\xff.jpg"}) {
        std::ofstream(in(file)) << "some text\n";
    }
    fs::create_symlink("Pictures", in("link"));
    fs::create_symlink("..", in("Pictures/up"));
    fs::create_symlink("round", in("round"));
    fs::create_symlink("gone", in("nowhere"));
    ::mkfifo(in("pipe").c_str(), 0600);
    browser_ = std::make_unique<FileBrowser>(outlets_, workspace_, folder_->path().toStdString());
    browser_->setUp();
}

void BrowserTest::cleanup() {
    select({});
    browser_.reset();
    fs::remove_all(folder_->path().toStdString()); // Qt leaves names that are not UTF-8
}

void BrowserTest::nodes_data() {
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("traits");
    const auto row = [](const char *name, const char *traits) {
        QTest::newRow(*name ? name : "home") << QByteArray(name) << QByteArray(traits);
    };
    row("Pictures", "Directory visible readable");
    row("Pictures/b.txt", "Non-Directory visible readable");
    row("Pictures/\xff.jpg", "Non-Directory visible readable");
    row(".cache", "Directory readable");
    row("link", "Directory visible readable link");
    row("link/up/link", "Directory visible readable link");
    row("round", "Non-Directory visible link");
    row("nowhere", "Non-Directory visible link");
    row("pipe", "Non-Directory visible readable");
    row("not there", "Non-Directory visible");
    row("", "Directory readable");
}

void BrowserTest::nodes() {
    QFETCH(const QByteArray, name);
    const FSNodeInfo home = FSNodeInfo::nodeWithParent(nullptr, folder_->path().toStdString());
    const FSNodeInfo node = FSNodeInfo::nodeWithParent(&home, name.toStdString());
    std::string traits = node.fsType();
    traits += node.isVisible() ? " visible" : "";
    traits += node.isReadable() ? " readable" : "";
    traits += node.isLink() ? " link" : "";
    QTEST(QByteArray::fromStdString(traits), "traits");
    QCOMPARE(node.fsType() == "Directory", node.isDirectory());
}

void BrowserTest::pathsOfNodes_data() {
    QTest::addColumn<QByteArray>("parent");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("last");
    const auto row = [](const char *parent, const char *name, const char *path, const char *last) {
        QTest::addRow("%s %s", parent, name)
            << QByteArray(parent) << QByteArray(name) << QByteArray(path) << QByteArray(last);
    };
    row("/", "home", "/home", "home");
    row("/home/me", "a b.jpg", "/home/me/a b.jpg", "a b.jpg");
    row("", "/home/me/", "/home/me/", "me");
    row("", "/", "/", "/");
    row("/home", "\xe9.jpg", "/home/\xe9.jpg", "\xe9.jpg");
}

void BrowserTest::pathsOfNodes() {
    QFETCH(const QByteArray, parent);
    QFETCH(const QByteArray, name);
    const FSNodeInfo above = FSNodeInfo::nodeWithParent(nullptr, parent.toStdString());
    const FSNodeInfo node =
        FSNodeInfo::nodeWithParent(parent.isEmpty() ? nullptr : &above, name.toStdString());
    QTEST(QByteArray::fromStdString(node.absolutePath()), "path");
    QTEST(QByteArray::fromStdString(node.lastPathComponent()), "last");
}

void BrowserTest::listsForPeople() {
    const FSNodeInfo pictures = FSNodeInfo::nodeWithParent(nullptr, in("Pictures").native());
    QCOMPARE(namesOf(pictures.visibleSubNodes()),
             QByteArray("2026 Coast b.txt broken.jpg IMG_9.JPG IMG_10.jpg photo.jpeg up \xff.jpg"));
    QCOMPARE(pictures.subNodes().size(), pictures.visibleSubNodes().size() + 1);
    const std::vector<FSNodeInfo> nodes = pictures.visibleSubNodes();
    QCOMPARE(nodes.front().parentNode(), &pictures);
    QCOMPARE(nodes.back().absolutePath(), in("Pictures/\xff.jpg").native());

    std::string kinds;
    for (const FolderEntry &entry :
         folderEntries(folder_->path().toStdString(), HiddenEntries::LeftOut).entries) {
        kinds += entry.name + (entry.isLink ? "@" : "") + (entry.isFolder ? "/ " : " ");
    }
    QCOMPARE(QByteArray::fromStdString(kinds),
             QByteArray("link@/ nowhere@ Pictures/ pipe quiet/ round@ "));
}

void BrowserTest::listsNothingOfWhatCannotBeRead() {
    for (const char *name : {"gone", "round", "pipe", "Pictures/b.txt"}) {
        QVERIFY(FSNodeInfo::nodeWithParent(nullptr, in(name).native()).subNodes().empty());
        QVERIFY(folderEntries(in(name).native(), HiddenEntries::Listed).error);
    }
    QVERIFY(!folderEntries(in("quiet").native(), HiddenEntries::LeftOut).error);
}

void BrowserTest::tellsOfTheSelection_data() {
    QTest::addColumn<std::vector<std::string>>("selection");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("mayBeTaken");
    QTest::addColumn<bool>("hasPicture");
    using Paths = std::vector<std::string>;
    const auto one = [](const char *path, const char *name, bool mayBeTaken, bool hasPicture) {
        QTest::newRow(path) << Paths{path}
                            << QByteArray("[Name: ]") + name + "\n[Type: ]Non-Directory\n"
                            << mayBeTaken << hasPicture;
    };
    QTest::newRow("none") << Paths{} << QByteArray("No Selection") << false << false;
    QTest::newRow("two") << Paths{"/Pictures/IMG_9.JPG", "/Pictures/IMG_10.jpg"}
                         << QByteArray("Multiple Selection") << false << false;
    QTest::newRow("folder") << Paths{"/Pictures"}
                            << QByteArray("[Name: ]Pictures\n[Type: ]Directory\n") << false
                            << false;
    one("/Pictures/IMG_9.JPG", "IMG_9.JPG", true, true);
    one("/link/IMG_10.jpg", "IMG_10.jpg", true, true);
    one("/Pictures/photo.jpeg", "photo.jpeg", false, false);
    one("/Pictures/b.txt", "b.txt", false, false);
    one("/Pictures/broken.jpg", "broken.jpg", true, false);
    one("/Pictures/\xff.jpg", "\xc3\xbf.jpg", true, false);
    one("/Pictures/gone.jpg", "gone.jpg", true, false);
}

void BrowserTest::tellsOfTheSelection() {
    QFETCH(const std::vector<std::string>, selection);
    QCOMPARE(plain(outlets_.nodeInspector.text.get()), QByteArray("No Selection"));
    QVERIFY(!outlets_.updateFileLink.enabled.get());
    select({"/Pictures/IMG_10.jpg"}); // what stood there goes
    QVERIFY(waitForPicture());
    QVERIFY(outlets_.selectedNewFileImage.image.get());
    select(selection);
    QTEST(plain(outlets_.nodeInspector.text.get()), "text");
    QTEST(outlets_.updateFileLink.enabled.get(), "mayBeTaken");
    QVERIFY(waitForPicture());
    QTEST(outlets_.selectedNewFileImage.image.get() != nullptr, "hasPicture");
    browser_->reloadData();
    QVERIFY(!outlets_.updateFileLink.enabled.get());
    QVERIFY(browser_->selectedPath().empty());
    QVERIFY(!outlets_.selectedNewFileImage.image.get());
}

void BrowserTest::columnsFollowTheSelection_data() {
    QTest::addColumn<std::vector<std::string>>("selection");
    QTest::addColumn<int>("column");
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<int>("rows");
    using Paths = std::vector<std::string>;
    const auto row = [](const char *name, const Paths &selection, int column, const char *path,
                        int rows) {
        QTest::newRow(name) << selection << column << QByteArray(path) << rows;
    };
    row("home", {}, 0, "", 6);
    row("home, something selected", {"/Pictures/up"}, 0, "", 6);
    row("first folder", {"/Pictures/up"}, 1, "/Pictures", 8);
    row("second folder", {"/Pictures/up"}, 2, "/Pictures/up", 6);
    row("past the end", {"/Pictures/up"}, 3, "/Pictures/up", 6);
    row("several", {"/Pictures/up", "/Pictures/b.txt"}, 1, "/Pictures", 8);
    row("several in the first", {"/link", "/Pictures"}, 1, "", 6);
    row("only hidden ones", {"/quiet"}, 1, "/quiet", 0);
}

void BrowserTest::columnsFollowTheSelection() {
    QFETCH(const std::vector<std::string>, selection);
    QFETCH(const int, column);
    QFETCH(const QByteArray, path);
    select(selection);
    QCOMPARE(browser_->fsPathToColumn(column), browser_->home() + path.toStdString());
    QTEST(static_cast<int>(browser_->numberOfRowsInColumn(column)), "rows");
}

void BrowserTest::theLastPictureAskedForCounts() {
    QImage wide(40, 10, QImage::Format_RGB32);
    wide.fill(Qt::red);
    QVERIFY(wide.save(folder_->filePath(QStringLiteral("wide.jpg"))));
    for (int i = 0; i < 20; ++i) {
        select({"/Pictures/IMG_9.JPG"});
        select({"/wide.jpg"});
    }
    QVERIFY(waitForPicture());
    QCOMPARE(outlets_.selectedNewFileImage.image.get()->size(), QSize(40, 10));
    select({"/Pictures/IMG_9.JPG"});
    select({});
    QVERIFY(!outlets_.pictureLoading.get());
    QCoreApplication::processEvents();
    QVERIFY(!outlets_.selectedNewFileImage.image.get());
}

void BrowserTest::picturesStandUpright_data() {
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QByteArray>("brightCorner");
    const char *const corners[] = {"top left", "top right", "bottom right", "bottom left",
                                   "top left", "top right", "bottom right", "bottom left"};
    for (int orientation = 1; orientation <= 8; ++orientation) {
        QTest::addRow("%d", orientation) << orientation << QByteArray(corners[orientation - 1]);
    }
}

/// By where the corner that is bright in the file comes to stand: the one at its start.
void BrowserTest::picturesStandUpright() {
    QFETCH(const int, orientation);
    QImage picture(64, 32, QImage::Format_RGB32);
    picture.fill(Qt::black);
    for (int x = 0; x < 16; ++x) {
        for (int y = 0; y < 16; ++y) {
            picture.setPixel(x, y, 0xffffffff);
        }
    }
    QVERIFY(picture.save(folder_->filePath(QStringLiteral("turned.jpg"))));
    addTags(in("turned.jpg"), {{"Exif.Image.Orientation", std::to_string(orientation)}});
    select({"/turned.jpg"});
    QVERIFY(waitForPicture());
    const QImage shown = *outlets_.selectedNewFileImage.image.get();
    QCOMPARE(shown.size(), orientation > 4 ? QSize(32, 64) : QSize(64, 32));
    const auto isBright = [&shown](int x, int y) { return qGray(shown.pixel(x, y)) > 128; };
    const int right = shown.width() - 3;
    const int bottom = shown.height() - 3;
    QByteArray corner;
    corner += isBright(2, 2) ? "top left" : "";
    corner += isBright(right, 2) ? "top right" : "";
    corner += isBright(right, bottom) ? "bottom right" : "";
    corner += isBright(2, bottom) ? "bottom left" : "";
    QTEST(corner, "brightCorner");
}

void BrowserTest::aColumnThatComesLateLeavesTheChoice() {
    std::vector<bool> states;
    const Connection seen =
        outlets_.updateFileLink.enabled.onChange([&states](bool on) { states.push_back(on); });
    select({"/Pictures/IMG_9.JPG"});
    browser_->willDisplayCells();
    QCOMPARE(states, (std::vector{true, false, true}));
    select({"/Pictures"});
    browser_->willDisplayCells();
    QVERIFY(!outlets_.updateFileLink.enabled.get());
}

void BrowserTest::opensWithTheDesktop() {
    std::vector<std::string> opened;
    const Connection seen =
        workspace_.opened.connect([&opened](const std::string &path) { opened.push_back(path); });
    outlets_.fsBrowser.doubleClicked.emit();
    QVERIFY(opened.empty());
    select({"/Pictures/\xff.jpg"});
    outlets_.fsBrowser.doubleClicked.emit();
    QCOMPARE(opened, std::vector{in("Pictures/\xff.jpg").native()});
}

QTEST_GUILESS_MAIN(BrowserTest)
#include "browser_test.moc"
