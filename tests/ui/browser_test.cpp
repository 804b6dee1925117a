#include "ui/column_browser.h"

#include "outlets/workspace.h"
#include "photos/file_browser.h"
#include "ui/browser_column.h"
#include "ui/browser_model.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>

using namespace pinmora;
namespace fs = std::filesystem;

/// The columns, driven with the mouse and the keyboard.
class ColumnsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keysWalk_data();
    void keysWalk();
    void clicksOpenAndCloseColumns();
    void severalMayBeSelected();
    void columnsAreQuartersOfTheWidth();
    void returnAndDoubleClickOpen();
    void entriesThatGoAreSurvived();
    void linksThatLeadRoundAreFolders();
    void manyEntriesHoldUpNothing();

private:
    std::string home() const { return folder_->path().toStdString(); }
    std::vector<BrowserColumn *> columns() const {
        std::vector<BrowserColumn *> found;
        for (auto *column : browser_->findChildren<BrowserColumn *>()) {
            if (column->isVisibleTo(browser_.get())) {
                found.push_back(column);
            }
        }
        return found;
    }
    /// Once all columns have their rows.
    bool settle() const {
        const auto *const model = browser_->findChild<BrowserModel *>();
        return QTest::qWaitFor([this, model] {
            const auto shown = columns();
            return std::all_of(shown.begin(), shown.end(), [model](const BrowserColumn *column) {
                return model->isListed(column->rootIndex());
            });
        });
    }
    void click(std::size_t column, int row, Qt::KeyboardModifiers modifiers = {}) {
        BrowserColumn &list = *columns().at(column);
        const QModelIndex index = list.model()->index(row, 0, list.rootIndex());
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
                          list.visualRect(index).center());
        QVERIFY(settle());
    }
    QByteArray selection() const {
        QByteArray all;
        for (const std::string &path : outlets_.fsBrowser.selection.get()) {
            all += (all.isEmpty() ? "" : " ") + QByteArray::fromStdString(path);
        }
        return all;
    }

    std::unique_ptr<QTemporaryDir> folder_;
    FileBrowserOutlets outlets_;
    Workspace workspace_;
    std::unique_ptr<FileBrowser> files_;
    std::unique_ptr<ColumnBrowser> browser_;
};

void ColumnsTest::init() {
    folder_ = std::make_unique<QTemporaryDir>();
    for (const char *folder : {"Desktop", "Pictures/coast/deep/deeper/deepest", ".cache"}) {
        fs::create_directories(home() + "/" + folder);
    }
    for (const char *file : {"Pictures/IMG_9.JPG", "Pictures/IMG_10.JPG", "Pictures/\xff.jpg",
                             "Pictures/coast/a.jpg", "notes.txt"}) {
        std::ofstream(home() + "/" + file) << "text";
    }
    fs::create_symlink(".", home() + "/around");
    files_ = std::make_unique<FileBrowser>(outlets_, workspace_, home());
    browser_ = std::make_unique<ColumnBrowser>(outlets_, *files_);
    browser_->resize(801, 240);
    browser_->show();
    files_->setUp();
    browser_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(browser_.get()));
    QVERIFY(settle());
    browser_->setFocus();
}

void ColumnsTest::cleanup() {
    browser_.reset();
    outlets_.fsBrowser.selection.set({});
    files_.reset();
    fs::remove_all(home());
}

void ColumnsTest::keysWalk_data() {
    QTest::addColumn<QByteArray>("keys"); ///< L, R, U, D: arrows; others are typed
    QTest::addColumn<QByteArray>("selected");
    QTest::addColumn<int>("columnCount");
    const auto row = [](const char *keys, const char *selected, int columnCount) {
        QTest::newRow(keys) << QByteArray(keys) << QByteArray(selected) << columnCount;
    };
    // The home folder lists: around, Desktop, notes.txt, Pictures.
    row("D", "/around", 2);
    row("DD", "/Desktop", 2);
    row("DDD", "/notes.txt", 1);
    row("DDDD", "/Pictures", 2);
    row("p", "/Pictures", 2);
    row("pR", "/Pictures/coast", 3);
    row("pRD", "/Pictures/IMG_9.JPG", 2);
    row("pRDD", "/Pictures/IMG_10.JPG", 2);
    row("pRDDD", "/Pictures/\xff.jpg", 2);
    row("pRL", "/Pictures", 2);
    row("pRRL", "/Pictures/coast", 3);
    row("pRRR", "/Pictures/coast/a.jpg", 3);
    row("pRRD", "/Pictures/coast/deep", 4);
    row("pRRDRRR", "/Pictures/coast/deep/deeper/deepest", 6);
    row("pRLU", "/notes.txt", 1);
    row("DDR", "/Desktop", 2); // an empty folder has nothing to be selected
    row("DDRL", "/Desktop", 2);
    row("L", "", 1);
}

void ColumnsTest::keysWalk() {
    QFETCH(const QByteArray, keys);
    for (const char key : keys) {
        QWidget *const at = QApplication::focusWidget();
        QVERIFY(at);
        switch (key) {
        case 'L':
            QTest::keyClick(at, Qt::Key_Left);
            break;
        case 'R':
            QTest::keyClick(at, Qt::Key_Right);
            break;
        case 'U':
            QTest::keyClick(at, Qt::Key_Up);
            break;
        case 'D':
            QTest::keyClick(at, Qt::Key_Down);
            break;
        default:
            QTest::keyClick(at, key);
        }
        QVERIFY(settle());
    }
    QTEST(selection(), "selected");
    QTEST(static_cast<int>(columns().size()), "columnCount");
}

void ColumnsTest::clicksOpenAndCloseColumns() {
    click(0, 3);
    QCOMPARE(selection(), QByteArray("/Pictures"));
    click(1, 0);
    QCOMPARE(selection(), QByteArray("/Pictures/coast"));
    QCOMPARE(columns().size(), 3U);
    click(2, 0);
    QVERIFY(outlets_.updateFileLink.enabled.get());
    click(0, 2);
    QCOMPARE(selection(), QByteArray("/notes.txt"));
    QCOMPARE(columns().size(), 1U);
    QVERIFY(!outlets_.updateFileLink.enabled.get());
    click(0, 3);
    files_->reloadData();
    QVERIFY(settle());
    QCOMPARE(selection(), QByteArray());
    QCOMPARE(columns().size(), 1U);
}

void ColumnsTest::severalMayBeSelected() {
    click(0, 3);
    click(1, 1);
    click(1, 2, Qt::ControlModifier);
    QCOMPARE(selection(), QByteArray("/Pictures/IMG_9.JPG /Pictures/IMG_10.JPG"));
    QCOMPARE(outlets_.nodeInspector.text.get().front().text, std::string("Multiple Selection"));
    QCOMPARE(columns().size(), 2U);
    click(1, 2, Qt::ControlModifier);
    QCOMPARE(selection(), QByteArray("/Pictures/IMG_9.JPG"));
    QVERIFY(outlets_.updateFileLink.enabled.get());
}

void ColumnsTest::columnsAreQuartersOfTheWidth() {
    click(0, 3);
    click(1, 0);
    click(2, 1);
    click(3, 0);
    QCOMPARE(columns().size(), 5U);
    for (const BrowserColumn *column : columns()) {
        QVERIFY(std::abs(column->width() - browser_->width() / 4) <= 3);
        QCOMPARE(column->visibleRegion().isEmpty(), column == columns().front());
    }
}

void ColumnsTest::returnAndDoubleClickOpen() {
    std::vector<std::string> opened;
    const Connection seen =
        workspace_.opened.connect([&opened](const std::string &path) { opened.push_back(path); });
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(opened.empty());
    click(0, 2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    BrowserColumn &first = *columns().front();
    const QPoint pictures = first.visualRect(first.model()->index(3, 0)).center();
    QTest::mouseClick(first.viewport(), Qt::LeftButton, {}, pictures);
    QTest::mouseDClick(first.viewport(), Qt::LeftButton, {}, pictures);
    QCOMPARE(opened, (std::vector{home() + "/notes.txt", home() + "/Pictures"}));
}

void ColumnsTest::entriesThatGoAreSurvived() {
    const auto *const model = browser_->findChild<BrowserModel *>();
    QVERIFY(model->flags(model->index(3, 0)).testFlag(Qt::ItemIsEnabled)); // seen as readable
    fs::remove_all(home() + "/Pictures");
    click(0, 3);
    QCOMPARE(columns().size(), 2U);
    QCOMPARE(model->error(columns()[1]->rootIndex()), std::errc::no_such_file_or_directory);
    QVERIFY(!browser_->grab().isNull());
}

void ColumnsTest::linksThatLeadRoundAreFolders() {
    for (std::size_t column = 0; column < 6; ++column) {
        click(column, 0);
    }
    QCOMPARE(selection(), QByteArray("/around/around/around/around/around/around"));
    QCOMPARE(columns().size(), 7U);
}

/// All entries come, listed by another thread while this one serves the windows.
void ColumnsTest::manyEntriesHoldUpNothing() {
    constexpr int count = 50'000;
    const fs::path many = home() + "/many";
    fs::create_directory(many);
    std::ofstream(many / "0");
    for (int i = 1; i < count; ++i) {
        fs::create_hard_link(many / std::to_string((i - 1) / 10'000 * 10'000),
                             many / std::to_string(i));
    }
    BrowserModel model(many.native());
    const QAbstractItemModelTester tester(&model);
    QSignalSpy batches(&model, &QAbstractItemModel::rowsInserted);
    model.open({});
    QCOMPARE(model.rowCount(), 0);
    int turns = 0;
    while (!model.isListed({})) {
        QCoreApplication::processEvents();
        ++turns;
    }
    QVERIFY(turns > 1);
    QCOMPARE(batches.count(), 1);
    QCOMPARE(model.rowCount(), count);
    for (const int row : {0, 9, 10, count - 1}) {
        QCOMPARE(model.index(row, 0).data().toString(), QString::number(row));
    }
    model.open({}); // and one that is closed before its rows are there
    model.close({});
    QCoreApplication::processEvents();
    QCOMPARE(model.rowCount(), 0);
}

QTEST_MAIN(ColumnsTest)
#include "browser_test.moc"
