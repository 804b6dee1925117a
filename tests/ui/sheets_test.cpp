#include "matching/desk.h"
#include "outlets/error_sheet.h"
#include "outlets/open_panel.h"
#include "saving/quit_warning.h"
#include "saving/renaming.h"
#include "saving/saving.h"
#include "shell/inspector.h"
#include "ui/error_dialog.h"
#include "ui/open_panel_dialog.h"
#include "ui/progress_dialog.h"
#include "ui/quit_dialog.h"
#include "ui/rename_dialog.h"
#include "ui/sheet_redraw.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <any>

using namespace pinmora;

namespace {

/// Two windows; the sheets come up on the one that is worked in.
struct Windows {
    Windows() {
        main.show();
        other.show();
    }
    WidgetOf widgetOf = [this](const Window &asked) { return &asked == &window ? &main : &other; };
    WorkingWindow working = [this]() -> Window & { return inOther ? otherWindow : window; };

    bool inOther = false;
    Window window;
    Window otherWindow;
    QWidget main;
    QWidget other;
};

/// Counts how often a dialog is painted.
class Painted : public QObject {
public:
    explicit Painted(QWidget &widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::Paint) {
            ++times;
            redrawDuringWork(true); // as work that is begun by painting would
        }
        return false;
    }
    int times = 0;
};

QPushButton *button(const QWidget &dialog, const char *text) {
    for (QPushButton *each : dialog.findChildren<QPushButton *>()) {
        if (each->text() == QString::fromUtf8(text)) {
            return each;
        }
    }
    return nullptr;
}

QStringList textsOf(const QWidget &dialog) {
    QStringList texts;
    for (const QLabel *label : dialog.findChildren<QLabel *>()) {
        texts << label->text();
    }
    return texts;
}

} // namespace

class SheetsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aSheetBelongsToTheWindowThatIsWorkedIn();
    void progressIsDrawnWhileTheMainThreadIsBusy();
    void aMessageTakesThePlaceOfAnother();
    void quittingIsNeverTheEasiestChoice();
    void renaming_data();
    void renaming();
    void withoutSelectionAllAreRenamed();
    void filesAndFoldersAreChosen();
};

void SheetsTest::aSheetBelongsToTheWindowThatIsWorkedIn() {
    Windows windows;
    ErrorSheet errors(windows.working);
    auto *dialog = new ErrorDialog(errors, windows.widgetOf, &windows.main);
    errors.present("What", "Why");
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    QCOMPARE(dialog->parentWidget(), &windows.main);
    QCOMPARE(dialog->windowModality(), Qt::WindowModal);
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(!errors.errorWindow.isUp());
    QVERIFY(!dialog->isVisible());

    windows.inOther = true;
    errors.present("What", "Why");
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    QCOMPARE(dialog->parentWidget(), &windows.other);
    QCOMPARE(dialog->windowModality(), Qt::WindowModal);
    dialog->close(); // the sheet's end takes it down, nothing else
    QVERIFY(!errors.errorWindow.isUp());
    errors.present("What", "Why");
    QTest::keyClick(dialog, Qt::Key_Return);
    QVERIFY(!errors.errorWindow.isUp());
    QVERIFY(!dialog->isVisible());
}

void SheetsTest::progressIsDrawnWhileTheMainThreadIsBusy() {
    Windows windows;
    ProgressSheet progress(windows.working);
    auto *dialog = new ProgressDialog(progress, windows.widgetOf, &windows.main);
    Painted painted(*dialog);
    progress.showProgressWindow("Loading", "1 of 4", 4);
    QVERIFY(dialog->isVisible());
    QVERIFY(painted.times > 0);
    progress.progressWindowIncrement();
    const auto *bar = dialog->findChild<QProgressBar *>();
    QCOMPARE(bar->value() * 4, bar->maximum());
    QVERIFY(textsOf(*dialog).contains(QStringLiteral("1 of 4")));
    QTest::keyClick(dialog, Qt::Key_Escape);
    dialog->close();
    QVERIFY(dialog->isVisible());
    progress.closeProgress();
    QVERIFY(!dialog->isVisible());
}

void SheetsTest::aMessageTakesThePlaceOfAnother() {
    Windows windows;
    ErrorSheet errors(windows.working);
    auto *dialog = new ErrorDialog(errors, windows.widgetOf, &windows.main);
    errors.present("First", "<b>one</b>");
    const int height = dialog->height();
    std::string files;
    for (int i = 0; i < 300; ++i) {
        files += "photo" + std::to_string(i) + ".jpg could not be read.\n";
    }
    errors.present("Second", files);
    QVERIFY(textsOf(*dialog).contains(QStringLiteral("Second")));
    QVERIFY(!textsOf(*dialog).contains(QStringLiteral("First")));
    QVERIFY(dialog->height() > height);
    QVERIFY(dialog->height() < 600);
}

void SheetsTest::quittingIsNeverTheEasiestChoice() {
    Windows windows;
    std::string done;
    QuitWarning warning(windows.working, {.updatePicts = [&] { done += "photos "; },
                                          .saveAction = [&] { done += "library "; },
                                          .terminate = [&] { done += "quit "; },
                                          .forgetUnsaved = [&] { done += "forget "; }});
    warning.saveAndQuitButton.enabled.set(false);
    auto *dialog = new QuitDialog(warning, windows.widgetOf, &windows.main);
    const auto press = [&](Qt::Key key, QWidget *focus = nullptr) {
        done.clear();
        warning.openQuitWarning();
        if (focus) {
            focus->setFocus();
        }
        QTest::keyClick(focus ? focus : dialog, key);
        return done + (warning.quitWarning.isUp() ? "up" : "down");
    };
    QCOMPARE(press(Qt::Key_Escape), std::string("down"));
    QCOMPARE(press(Qt::Key_Return), std::string("library down"));
    QPushButton *const quit = button(*dialog, "Quit Without Saving");
    QCOMPARE(press(Qt::Key_Return, quit), std::string("library down"));
    QCOMPARE(press(Qt::Key_Space, quit), std::string("forget quit down"));
    QVERIFY(!button(*dialog, "Save Photos…")->isEnabled());
}

void SheetsTest::renaming_data() {
    QTest::addColumn<bool>("inWizard");
    QTest::addColumn<std::string>("tab");
    QTest::addColumn<int>("field");

    QTest::newRow("position") << false << std::string("1") << 0;
    QTest::newRow("details") << false << std::string("2") << 1;
    QTest::newRow("wizard") << true << std::string("1") << 2;
}

namespace {

/// A library with three photos, of which one is selected, and the renaming sheet.
struct RenamingDesk : Desk {
    RenamingDesk() {
        addPhoto("12:05:00").setImage_name("b");
        addPhoto("12:01:00").setImage_name("c");
        photo.setImage_name("a");
        photo.setOriginal_name("a");
    }
    QByteArray names() const {
        QByteArrayList names;
        for (const image *each : pictureArray.arrangedObjects()) {
            names << QByteArray::fromStdString(each->image_name().string());
        }
        return names.join(' ');
    }

    Windows windows;
    TextField newFileName;
    TextField newFileName2;
    TabView tabs;
    RenamingOutlets renamingOutlets{.pictureArray = pictureArray,
                                    .newFileName = newFileName,
                                    .newFileName2 = newFileName2,
                                    .mainTabs = tabs,
                                    .inWizard = inWizard};
    Saving saving{std::filesystem::path()};
    Renaming renaming{context, saving, renamingOutlets, windows.working, [] {}};
    RenameDialog *dialog =
        new RenameDialog(renamingOutlets, renaming, notifications, windows.widgetOf, &windows.main);
};

} // namespace

void SheetsTest::renaming() {
    QFETCH(bool, inWizard);
    QFETCH(std::string, tab);
    QFETCH(int, field);
    RenamingDesk desk;
    desk.inWizard = inWizard;
    desk.tabs.selectedIdentifier.set(tab);
    const TextField *const fields[] = {&desk.newFileName, &desk.newFileName2,
                                       &desk.renamingOutlets.newFileName3};
    QByteArray heard;
    const auto hear = [&](const char *what) {
        return [&heard, &fields, field, what](const Notification &notice) {
            const auto *told = std::any_cast<const TextField *>(&notice.object);
            heard += told && *told == fields[field] ? what : "?";
        };
    };
    const auto begun = desk.notifications.addObserver(controlTextDidBeginEditing, hear("b"));
    const auto changed = desk.notifications.addObserver(controlTextDidChange, hear("c"));
    desk.renaming.photoNameChange();
    QVERIFY(QTest::qWaitForWindowActive(desk.dialog));
    QCOMPARE(heard, QByteArray("c"));
    auto *edit = desk.dialog->findChild<QLineEdit *>();
    QVERIFY(edit->hasFocus());
    QTest::keyClicks(edit, QStringLiteral("be"));
    QCOMPARE(heard, QByteArray("cbcc"));
    QCOMPARE(fields[field]->text.get(), std::string("be"));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(desk.names(), QByteArray("be_1 b c"));
    QVERIFY(!desk.dialog->isVisible());

    desk.renaming.photoNameChange();
    QTest::mouseClick(button(*desk.dialog, "Rename All"), Qt::LeftButton);
    QCOMPARE(desk.names(), QByteArray("be_2 be_3 be_4"));
    desk.renaming.photoNameChange();
    QTest::keyClick(desk.dialog, Qt::Key_Escape);
    QVERIFY(!desk.renamingOutlets.nameChange.isUp());
}

void SheetsTest::withoutSelectionAllAreRenamed() {
    RenamingDesk desk;
    desk.pictureArray.setSelectedObjects({});
    desk.newFileName2.text.set("trip");
    desk.renaming.photoNameChange();
    QVERIFY(!button(*desk.dialog, "Rename Selected")->isVisible());
    QTest::keyClick(desk.dialog, Qt::Key_Return);
    QCOMPARE(desk.names(), QByteArray("trip_1 trip_2 trip_3"));
}

void SheetsTest::filesAndFoldersAreChosen() {
    QTemporaryDir folder;
    for (const char *name : {"ä b.jpg", "c.JPG", "d.txt"}) {
        QFile file(folder.filePath(QString::fromUtf8(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    Windows windows;
    OpenPanel panel;
    panel.directory = folder.path().toStdString();
    panel.allowedTypes = {"jpg", "JPG"};
    panel.typesName = "Photos";
    panel.canChooseDirectories = panel.allowsMultipleSelection = true;
    auto *shown = new OpenPanelDialog(panel, windows.widgetOf, &windows.main);
    std::vector<std::string> chosen;
    int code = -1;
    const auto begin = [&] {
        panel.beginSheet(windows.window, [&](OpenPanel &ended, int returnCode) {
            chosen = ended.filenames();
            code = returnCode;
            ended.close();
        });
        return QTest::qWaitForWindowExposed(shown->dialog());
    };
    QVERIFY(begin());
    QCOMPARE(shown->dialog()->windowModality(), Qt::WindowModal);
    auto *name = shown->dialog()->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    name->setText(QString::fromUtf8("ä b.jpg"));
    static_cast<QDialog *>(shown->dialog())->accept();
    QCOMPARE(code, OpenPanel::okCode);
    QCOMPARE(chosen, std::vector{folder.path().toStdString() + "/ä b.jpg"});
    QVERIFY(!shown->dialog());

    QVERIFY(begin());
    QTest::mouseClick(button(*shown->dialog(), "Add Whole Folder"), Qt::LeftButton);
    QCOMPARE(code, OpenPanel::okCode);
    QCOMPARE(chosen, std::vector{folder.path().toStdString()});

    panel.directory = folder.path().toStdString() + "/gone";
    QVERIFY(begin());
    QCOMPARE(shown->dialog()->directory(), QDir::home());
    QTest::keyClick(shown->dialog(), Qt::Key_Escape);
    QCOMPARE(code, OpenPanel::cancelCode);
    QVERIFY(!panel.sheet().isUp());
}

QTEST_MAIN(SheetsTest)
#include "sheets_test.moc"
