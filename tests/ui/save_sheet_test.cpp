#include "ui/save_desk.h"

#include "ui/photo_table_model.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>

using namespace pinmora;
namespace fs = std::filesystem;

namespace {

constexpr const char *waits = "until test -e \"$0.go\"; do sleep 0.01; done";
constexpr const char *failsAtB = "case $copy in *b.jpg) echo 'Error: Bad IFD' >&2; exit 1;; esac";

bool ends(SaveDesk &desk) {
    return QTest::qWaitFor([&desk] { return !desk.parts().savePipeline.isRunning(); }, 20'000);
}

void confirm(SaveDesk &desk) {
    desk.trigger(ActionName::SavePhotos);
    desk.parts().saveOutlets.folderChooser.answer({desk.copies.string()});
}

QString nameData(const SaveDesk &desk, int row, int role) {
    return desk.photoTable()->model()->index(row, PhotoTableModel::Name).data(role).toString();
}

/// What the desktop is asked to open.
class Desktop : public QObject {
    Q_OBJECT

public:
    Desktop() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~Desktop() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    Desktop(const Desktop &) = delete;
    Desktop &operator=(const Desktop &) = delete;

    QList<QByteArray> opened;

public Q_SLOTS:
    void open(const QUrl &url) { opened << url.toEncoded(); }
};

} // namespace

class SaveSheetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void theFolderChooser() {
        SaveDesk desk({"a"});
        desk.trigger(ActionName::SavePhotos);
        auto *const chooser = qobject_cast<QFileDialog *>(desk.sheet());
        QVERIFY(chooser);
        QCOMPARE(chooser->fileMode(), QFileDialog::Directory);
        QCOMPARE(chooser->directory(), QDir::home());
        QVERIFY(desk.button("Save Here"));
        auto *const box = chooser->findChild<QCheckBox *>();
        QVERIFY(box && box->isVisible() && !box->isChecked());
        box->click();
        chooser->setDirectory(QString::fromStdString(desk.copies.string()));
        chooser->findChild<QLineEdit *>()->clear();
        desk.press("Save Here");
        QVERIFY(ends(desk));
        QCOMPARE(desk.copyNames(), std::set<std::string>({"a.jpg"}));

        desk.trigger(ActionName::SavePhotos); // as it was left
        auto *const next = qobject_cast<QFileDialog *>(desk.sheet());
        QVERIFY(next);
        QCOMPARE(next->directory(), QDir(QString::fromStdString(desk.copies.string())));
        QVERIFY(next->findChild<QCheckBox *>()->isChecked());
        next->findChild<QLineEdit *>()->setText(QStringLiteral("new/"));
        desk.press("Save Here");
        QVERIFY(ends(desk));
        QVERIFY(std::filesystem::exists(desk.copies / "new" / "a.jpg"));
    }

    void toTheEnd() {
        SaveDesk desk({"a", "b", "c"}, waits);
        confirm(desk);
        QVERIFY(QTest::qWaitFor([&] { return !desk.parts().saveOutlets.saveWindow.isUp(); }));
        const auto *const status = desk.named<QLabel>("What is going on");
        QVERIFY(QTest::qWaitFor(
            [&] { return status->text() == QStringLiteral("Writing positions: 0 of 3"); }));
        QVERIFY(!desk.action(ActionName::SavePhotos)->isEnabled());
        desk.window->close(); // waits for the run
        QVERIFY(desk.window->isVisible() && status->text().contains(QStringLiteral("quits")));
        desk.release();
        QVERIFY(ends(desk));
        QVERIFY(desk.action(ActionName::SavePhotos)->isEnabled());
        QCOMPARE(desk.copyNames(), std::set<std::string>({"a.jpg", "b.jpg", "c.jpg"}));
    }

    void theSheetShowsHowFarItIs() {
        SaveDesk desk({"a"});
        SaveOutlets &outlets = desk.parts().saveOutlets;
        int cancelled = 0;
        const Connection counting = outlets.cancelSaveButton.pressed.connect([&] { ++cancelled; });
        outlets.saveWhatDoing.text.set("Copying files and adding data");
        outlets.saveProgress.text.set("3 of 4");
        outlets.saveIndicator.maximum.set(4);
        outlets.saveIndicator.value.set(2);
        outlets.saveWindow.begin(desk.interface().window);
        QVERIFY(desk.sheet());
        QCOMPARE(desk.named<QLabel>("What is being done")->text(),
                 QStringLiteral("Copying files and adding data"));
        QCOMPARE(desk.named<QLabel>("How far it has come")->text(), QStringLiteral("3 of 4"));
        const auto *const bar = desk.sheet()->findChild<QProgressBar *>();
        QCOMPARE(2 * bar->value(), bar->maximum());
        QTest::keyClick(desk.sheet(), Qt::Key_Escape); // asks; the sheet goes when it is done
        QCOMPARE(cancelled, 1);
        QVERIFY(desk.sheet());
        desk.button("Cancel")->click();
        QCOMPARE(cancelled, 2);
        bool idle = false;
        desk.windows->whenIdle([&] { idle = true; }); // nothing is loaded meanwhile
        QTest::qWait(0);
        QCoreApplication::processEvents();
        QVERIFY(!idle);
        outlets.saveWindow.end();
        QVERIFY(QTest::qWaitFor([&] { return idle; }));
    }

    void whatCouldNotBeWrittenIsMarked() {
        SaveDesk desk({"a", "b"}, failsAtB);
        confirm(desk);
        QVERIFY(ends(desk));
        desk.settle();
        QVERIFY(nameData(desk, 0, PhotoTableModel::NotSaved).isEmpty());
        QVERIFY(nameData(desk, 1, PhotoTableModel::NotSaved).contains(QStringLiteral("Bad IFD")));
        QVERIFY(nameData(desk, 1, Qt::ToolTipRole).contains(QStringLiteral("Bad IFD")));
        QVERIFY(nameData(desk, 1, Qt::AccessibleTextRole).contains(QStringLiteral("Bad IFD")));
        desk.press("Show");
        const Window &log = desk.parts().logWindow;
        QVERIFY(log.visible.get());
        QVERIFY(logText()->toPlainText().contains(QStringLiteral("Bad IFD")));
        desk.parts().log.append("newer");
        desk.trigger(ActionName::ShowLog);
        QVERIFY(logText()->toPlainText().endsWith(QStringLiteral("newer")));
        QTest::keyClick(logText(), Qt::Key_Escape);
        QVERIFY(!log.visible.get());

        desk.standIn("exit 0"); // the next save takes the mark away
        confirm(desk);
        QVERIFY(ends(desk));
        desk.settle();
        QVERIFY(nameData(desk, 1, PhotoTableModel::NotSaved).isEmpty());
    }

    void theLogsFolderIsOpened() {
        Desktop desktop;
        SaveDesk desk({"a"});
        desk.trigger(ActionName::ShowLog);
        QVERIFY(logText()->toPlainText().isEmpty() && !logText()->placeholderText().isEmpty());
        desk.button("Open Folder")->click();
        desk.interface().workspace.openFile("/photos/a b\xff#.jpg");
        const std::string folder = desk.delegate.library.applicationSupportFolder().string();
        QCOMPARE(desktop.opened, QList<QByteArray>({"file://" + QByteArray::fromStdString(folder),
                                                    "file:///photos/a%20b%FF%23.jpg"}));
    }

    void allPhotosAreRemoved() {
        SaveDesk desk({"a", "b", "c"});
        desk.clickRow(1);
        desk.trigger(ActionName::RemoveAllPhotos);
        QCOMPARE(desk.sheet()->findChild<QLabel *>()->text(),
                 QStringLiteral("Remove all 3 photos from the library?"));
        QTest::keyClick(desk.sheet(), Qt::Key_Return); // never the destructive choice
        QVERIFY(!desk.sheet());
        QCOMPARE(desk.photoTable()->model()->rowCount(), 3);
        desk.trigger(ActionName::RemoveAllPhotos);
        desk.press("Remove All");
        QVERIFY(!desk.sheet());
        QCOMPARE(desk.photoTable()->model()->rowCount(), 0);
        QCOMPARE(desk.window->windowTitle(), QStringLiteral("Pinmora"));
        QVERIFY(!desk.action(ActionName::RemoveAllPhotos)->isEnabled());
        QVERIFY(!desk.action(ActionName::SavePhotos)->isEnabled());
        QVERIFY(fs::exists(desk.fileOf("b")));
        desk.trigger(ActionName::Undo);
        QCOMPARE(desk.photoTable()->model()->rowCount(), 3);
    }

private:
    static QPlainTextEdit *logText() {
        for (QWidget *top : QApplication::topLevelWidgets()) {
            for (auto *text : top->findChildren<QPlainTextEdit *>()) {
                if (text->isReadOnly()) {
                    return text;
                }
            }
        }
        qFatal("the log is not shown");
    }
};

QTEST_MAIN(SaveSheetTest)
#include "save_sheet_test.moc"
