#include "ui/save_desk.h"

#include "saving/missing_photos.h"
#include "ui/missing_list.h"

#include <QFileDialog>
#include <QLabel>
#include <QListView>
#include <QPushButton>

using namespace pinmora;
namespace fs = std::filesystem;

namespace {

/// Four photos, of which the files of "b", "c" and "d" are in another folder now.
struct MissingDesk : SaveDesk {
    explicit MissingDesk(QSize size = {1280, 800})
        : SaveDesk({"a", "b", "c", "d"}, "exit 0", size) {
        fs::create_directory(moved);
        for (const char *name : {"b", "c", "d"}) {
            fs::rename(fileOf(name), moved / (std::string(name) + ".jpg"));
        }
    }
    void openForSaving() { trigger(ActionName::SavePhotos); }
    MissingList *list() const { return sheet()->findChild<MissingList *>(); }
    QString heading() const { return sheet()->findChild<QLabel *>()->text(); }
    QString listed() const {
        QString names;
        for (int row = 0; row < list()->model()->rowCount(); ++row) {
            names += list()->model()->index(row, 0).data().toString().left(1);
        }
        return names;
    }
    void clickMissing(int row, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, keys,
                          list()->visualRect(list()->model()->index(row, 0)).center());
        settle();
    }
    /// Clicks on an entry of a column of the browser, once it is there.
    bool clickEntry(int column, const QString &name) {
        QModelIndex found;
        const bool isThere = QTest::qWaitFor([&] {
            const auto columns = sheet()->findChildren<QListView *>();
            if (columns.size() <= column) {
                return false;
            }
            QListView *const view = columns.at(column);
            for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row) {
                found = view->model()->index(row, 0, view->rootIndex());
                if (found.data().toString() == name) {
                    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                                      view->visualRect(found).center());
                    return true;
                }
            }
            return false;
        });
        return isThere;
    }
    std::string pathOf(std::size_t row) { return photo(row).full_file_path().string(); }

    const fs::path moved{root / "moved"};
};

} // namespace

class MissingSheetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void saysWhatIsMissing() {
        MissingDesk desk;
        desk.openForSaving();
        QVERIFY(desk.sheet());
        QCOMPARE(desk.heading(), QStringLiteral("3 photos are no longer where they were"));
        QCOMPARE(desk.listed(), QStringLiteral("bcd"));
        QVERIFY(desk.list()->selectionModel()->isRowSelected(0));
        QVERIFY(desk.list()->hasFocus());
        QVERIFY(desk.canPress("Save Anyway") && !desk.canPress("Save") && !desk.button("OK"));
        QTest::keyClick(desk.list(), Qt::Key_Return); // Save, which cannot be pressed
        QVERIFY(desk.sheet());
        QTest::keyClick(desk.list(), Qt::Key_Escape);
        QVERIFY(!desk.sheet());
        desk.openForSaving(); // and again
        QCOMPARE(desk.listed(), QStringLiteral("bcd"));
        desk.press("Cancel");
        QVERIFY(!desk.sheet());
    }

    void selectionGoesBothWays() {
        MissingDesk desk;
        desk.openForSaving();
        desk.clickMissing(2);
        desk.clickMissing(1, Qt::ControlModifier);
        const auto &selected = desk.parts().missingPhotos.missingImages.selectedObjects();
        QCOMPARE(selected,
                 std::vector<image *>({desk.parts().arrays.pictureArray.arrangedObjects()[2],
                                       desk.parts().arrays.pictureArray.arrangedObjects()[3]}));
        desk.press("Remove");
        QCOMPARE(desk.listed(), QStringLiteral("b"));
        QCOMPARE(desk.heading(), QStringLiteral("1 photo is no longer where it was"));
        QVERIFY(desk.list()->selectionModel()->isRowSelected(0));
        QCOMPARE(desk.action(ActionName::Undo)->text(), QStringLiteral("Undo Remove Pictures"));
    }

    void removingAllLetsSave() {
        MissingDesk desk;
        desk.openForSaving();
        desk.press("Remove All");
        QCOMPARE(desk.heading(), QStringLiteral("No photo is missing any more"));
        QVERIFY(!desk.canPress("Save Anyway") && !desk.canPress("Remove"));
        QTest::keyClick(desk.sheet(), Qt::Key_Return);
        QVERIFY(qobject_cast<QFileDialog *>(desk.sheet()));
        QTest::keyClick(desk.sheet(), Qt::Key_Escape);
        desk.trigger(ActionName::Undo);
        QCOMPARE(desk.photoTable()->model()->rowCount(), 4);
    }

    void findsThemInAFolder() {
        MissingDesk desk;
        desk.openForSaving();
        desk.press("Find in Folder…");
        auto *const chooser = qobject_cast<QFileDialog *>(desk.sheet());
        QVERIFY(chooser && qobject_cast<QDialog *>(chooser->parentWidget()));
        QTest::keyClick(chooser, Qt::Key_Escape); // takes down the chooser only
        QVERIFY(desk.list());
        desk.press("Find in Folder…");
        desk.parts().missingOutlets.findInFolderPanel.answer({desk.root.string()});
        QVERIFY(QTest::qWaitFor([&] { return desk.canPress("Save"); }));
        desk.settle();
        QVERIFY(desk.named<QLabel>("What the search has found")->text() ==
                QStringLiteral("All 3 found."));
        QCOMPARE(desk.listed(), QString());
        QCOMPARE(desk.pathOf(3), (desk.moved / "d.jpg").string());
        desk.press("Cancel");
        QCOMPARE(desk.action(ActionName::Undo)->text(), QStringLiteral("Undo Relink Photos"));
    }

    void oneIsGivenAnotherFile() {
        MissingDesk desk;
        const fs::path home = desk.parts().fileBrowser.home();
        fs::create_directory(home / "new place");
        fs::copy_file(desk.sample, home / "new place" / "x.JPG");
        desk.openForSaving();
        desk.clickMissing(1);
        QVERIFY(!desk.canPress("Use This File"));
        QVERIFY(desk.clickEntry(0, QStringLiteral("new place")));
        QVERIFY(desk.clickEntry(1, QStringLiteral("x.JPG")));
        desk.press("Use This File");
        QCOMPARE(desk.pathOf(2), (home / "new place" / "x.JPG").string());
        QCOMPARE(desk.listed(), QStringLiteral("bd"));
        QVERIFY(desk.list()->selectionModel()->isRowSelected(1));
        QVERIFY(!desk.canPress("Use This File") && !desk.canPress("Save"));
        fs::remove_all(home / "new place");
    }

    void theOthersAreSavedAnyway() {
        MissingDesk desk;
        desk.openForSaving();
        desk.press("Save Anyway");
        QVERIFY(qobject_cast<QFileDialog *>(desk.sheet()));
        desk.parts().saveOutlets.folderChooser.answer({desk.copies.string()});
        QVERIFY(QTest::qWaitFor([&] { return !desk.parts().savePipeline.isRunning(); }));
        QCOMPARE(desk.copyNames(), std::set<std::string>({"a.jpg"}));
        desk.openForSaving(); // only once
        QVERIFY(desk.list());
    }

    void lookingAtOne() {
        MissingDesk desk;
        desk.clickRow(2);
        desk.trigger(ActionName::FullSize);
        QVERIFY(desk.sheet() && !desk.interface().fullView.visible.get());
        QVERIFY(desk.list()->selectionModel()->isRowSelected(1));
        QVERIFY(!desk.button("Save") && !desk.button("Save Anyway"));
        QTest::keyClick(desk.list(), Qt::Key_Return); // OK
        QVERIFY(!desk.sheet());
        QVERIFY(desk.photo(2).getHasChanges());
        desk.openForSaving(); // with the other buttons
        QVERIFY(desk.button("Save") && !desk.button("OK"));
    }

    void fitsASmallScreen() {
        MissingDesk desk({960, 540});
        desk.openForSaving();
        QVERIFY(desk.sheet()->minimumSizeHint().width() <= 900);
        QVERIFY(desk.sheet()->minimumSizeHint().height() <= 500);
        QVERIFY(desk.sheet()->height() <= desk.sheet()->screen()->availableGeometry().height());
    }
};

QTEST_MAIN(MissingSheetTest)
#include "missing_sheet_test.moc"
