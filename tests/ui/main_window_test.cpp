#include "ui/window_desk.h"

#include "ui/log_window.h"
#include "ui/map_pane.h"

#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>

#include <csignal>

using namespace pinmora;

namespace {

const QString outing = QStringLiteral(PINMORA_SOURCE_DIR "/samples/outing");

QString counts(const WindowDesk &desk) {
    return desk.window->statusBar()->findChild<QLabel *>(QStringLiteral("counts"))->text();
}

void drop(WindowDesk &desk, const QStringList &paths) {
    QWidget &window = *desk.window;
    QMimeData files;
    QList<QUrl> urls;
    for (const QString &path : paths) {
        urls << QUrl::fromLocalFile(path);
    }
    files.setUrls(urls);
    const QPoint middle = window.rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction | Qt::MoveAction, &files, Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &enter);
    QVERIFY(enter.isAccepted());
    QCOMPARE(enter.dropAction(), Qt::CopyAction);
    QDropEvent dropped(middle, Qt::CopyAction | Qt::MoveAction, &files, Qt::LeftButton,
                       Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &dropped);
    desk.settle();
}

/// Drops the outing, changes a photo, and dies of it.
[[noreturn]] void workAndDie() {
    WindowDesk desk;
    drop(desk, {outing});
    desk.clickRow(1);
    desk.type("Latitude, decimal degrees", "46.5");
    desk.settle();
    desk.parts().unsavedWork.recorder().flush();
    std::raise(SIGKILL);
    std::abort();
}

} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void emptyStart() {
        WindowDesk desk;
        QVERIFY(desk.window->isVisible());
        QCOMPARE(desk.window->windowTitle(), QStringLiteral("Pinmora"));
        QVERIFY(counts(desk).startsWith(QStringLiteral("No photos")));
        QVERIFY(desk.button("Try it with the sample outing"));
        for (const ActionName off : {ActionName::ApplyToAll, ActionName::SavePhotos,
                                     ActionName::Undo, ActionName::Redo, ActionName::Rename}) {
            QVERIFY(!desk.action(off)->isEnabled());
        }
    }

    void sampleOutingByItsLink() {
        WindowDesk desk;
        desk.button("Try it with the sample outing")->click();
        desk.settle();
        QCOMPARE(desk.photoTable()->model()->rowCount(), 8);
        QVERIFY(counts(desk).contains(QStringLiteral("8 photos")));
        QVERIFY(counts(desk).contains(QStringLiteral("3 tracks")));
        QVERIFY(!desk.button("Try it with the sample outing"));
    }

    void logsByThePanel() {
        WindowDesk desk;
        desk.action(ActionName::LoadGpsData)->trigger();
        auto *const panel = qobject_cast<QFileDialog *>(desk.sheet());
        QVERIFY(panel);
        panel->setDirectory(outing);
        panel->selectFile(QStringLiteral("zugerberg.gpx"));
        QTest::keyClick(panel->findChild<QLineEdit *>(), Qt::Key_Return);
        QCOMPARE(desk.context().count<track>(), 2U);
        QVERIFY(!desk.sheet());
        QCOMPARE(desk.action(ActionName::Undo)->text(), QStringLiteral("Undo Load GPS Data"));
        desk.action(ActionName::Undo)->trigger();
        QCOMPARE(desk.context().count<track_part>(), 0U);
        desk.action(ActionName::Redo)->trigger();
        QCOMPARE(desk.context().count<track>(), 2U);
    }

    void cancelledPanelChangesNothing() {
        WindowDesk desk;
        desk.action(ActionName::AddPhotos)->trigger();
        QVERIFY(desk.sheet());
        QTest::keyClick(desk.sheet(), Qt::Key_Escape);
        QVERIFY(!desk.sheet());
        QCOMPARE(desk.context().count<image>(), 0U);
        desk.action(ActionName::AddPhotos)->trigger(); // and it can be opened again
        QVERIFY(desk.sheet());
        desk.sheet()->close();
    }

    void dropAndSelect() {
        WindowDesk desk;
        drop(desk, {outing});
        QCOMPARE(desk.context().count<image>(), 8U);
        QVERIFY(!desk.parts().photoIntake.theBorder1.hasShadow.get());
        desk.clickRow(1);
        QVERIFY(desk.window->windowTitle().startsWith(QStringLiteral("Pinmora - IMG_0412 - ")));
        QCOMPARE(desk.action(ActionName::ToggleMarker)->text(), QStringLiteral("Add Marker"));
        desk.clickRow(3, Qt::ShiftModifier);
        QCOMPARE(desk.window->windowTitle(), QStringLiteral("Pinmora"));
        QCOMPARE(desk.action(ActionName::RemovePictures)->text(),
                 QStringLiteral("Remove Pictures"));
        QVERIFY(desk.named<QLineEdit>("Latitude, decimal degrees")->isEnabled());
        QVERIFY(!desk.named<QLineEdit>("Latitude, seconds")->isEnabled());
        desk.action(ActionName::RemovePictures)->trigger();
        desk.settle();
        QCOMPARE(desk.photoTable()->model()->rowCount(), 5);
        desk.action(ActionName::Undo)->trigger();
        desk.settle();
        QCOMPARE(desk.photoTable()->model()->rowCount(), 8);
    }

    void coordinatesInEachNotation_data() {
        QTest::addColumn<QList<QByteArray>>("typed"); // field, text, field, text...
        QTest::addColumn<QString>("lat");
        using Typed = QList<QByteArray>;
        QTest::newRow("decimal") << Typed{"Latitude, decimal degrees", "47.1525"} << "47.1525";
        QTest::newRow("minutes") << Typed{"Latitude, degrees", "46", "Latitude, minutes", "30.6"}
                                 << "46.51";
        QTest::newRow("seconds") << Typed{"Latitude, whole degrees", "46",
                                          "Latitude, whole minutes", "30",
                                          "Latitude, seconds",       "36"}
                                 << "46.51";
    }

    void coordinatesInEachNotation() {
        QFETCH(QList<QByteArray>, typed);
        WindowDesk desk;
        drop(desk, {outing});
        desk.clickRow(1);
        desk.type("Latitude, decimal degrees", "47");
        desk.type("Longitude, decimal degrees", "8.5");
        for (qsizetype i = 0; i < typed.size(); i += 2) {
            desk.type(typed.at(i).constData(), typed.at(i + 1).constData());
        }
        const QString lat = QString::fromStdString(desk.photo(1).lat().string());
        QTEST(lat, "lat");
        QCOMPARE(desk.photo(1).lon().string(), std::string("8.5"));
        QCOMPARE(desk.photo(1).lat_ref().string(), std::string("N"));
    }

    void unfitCoordinateStaysAndSaysWhy() {
        WindowDesk desk;
        drop(desk, {outing});
        desk.clickRow(1);
        desk.type("Latitude, decimal degrees", "95");
        QCOMPARE(desk.photo(1).lat().string(), std::string());
        auto *const field = desk.named<QLineEdit>("Latitude, decimal degrees");
        QCOMPARE(field->text(), QStringLiteral("95"));
        QTest::keyClick(field, Qt::Key_Escape);
        QCOMPARE(field->text(), QString());
    }

    /// A field that has nothing of its own to take back leaves the keys to the program.
    void undoKeyWorksInAField() {
        WindowDesk desk;
        drop(desk, {outing});
        desk.clickRow(1);
        desk.type("Latitude, decimal degrees", "46.9");
        desk.settle();
        QTest::keyClick(desk.named<QLineEdit>("Latitude, decimal degrees"), Qt::Key_Z,
                        Qt::ControlModifier);
        QCOMPARE(desk.photo(1).lat().string(), std::string());
    }

    void unfitTextOnTheHiddenTabIsShown() {
        WindowDesk desk;
        drop(desk, {outing});
        desk.clickRow(1);
        desk.action(ActionName::ShowDetails)->trigger();
        desk.settle();
        desk.type("Altitude in metres", "high");
        desk.action(ActionName::ShowPosition)->trigger();
        desk.window->close();
        QVERIFY(!desk.sheet());
        QCOMPARE(desk.interface().mainTabs.selectedIdentifier.get(), std::string("2"));
        QVERIFY(desk.interface().quietBar.message());
        QTest::keyClick(desk.named<QLineEdit>("Altitude in metres"), Qt::Key_Escape);
        QVERIFY(desk.delegate.editing.commitEditing());
        QVERIFY(!desk.interface().quietBar.message());
    }

    void damagedLibraryIsToldAtTheStart() {
        const std::filesystem::path folder =
            qEnvironmentVariable("XDG_DATA_HOME").toStdString() + "/Pinmora";
        std::filesystem::create_directories(folder);
        std::ofstream(folder / "Pinmora.xml") << "<pinmora";
        WindowDesk desk;
        QVERIFY(desk.sheet());
        QTest::keyClick(desk.sheet(), Qt::Key_Return);
        QVERIFY(!desk.sheet());
        desk.action(ActionName::SaveLibrary)->trigger(); // and the next one as well
        QVERIFY(desk.sheet());
        desk.sheet()->close();
    }

    void renameBySheet() {
        WindowDesk desk;
        drop(desk, {outing});
        desk.clickRow(1);
        desk.action(ActionName::Rename)->trigger();
        QVERIFY(!desk.button("Rename Selected")->isEnabled());
        auto *const name = desk.sheet()->findChild<QLineEdit *>();
        QTest::keyClicks(name, QStringLiteral("trip"));
        QVERIFY(desk.button("Rename Selected")->isEnabled());
        desk.button("Rename Selected")->click();
        QVERIFY(!desk.sheet());
        QCOMPARE(desk.photo(1).image_name().string(), std::string("trip_1"));
        QCOMPARE(desk.photo(0).image_name().string(), std::string("IMG_0371"));
        desk.settle();
        QVERIFY(desk.window->windowTitle().contains(QStringLiteral("trip_1")));
    }

    void applyAndUndo() {
        WindowDesk desk;
        drop(desk, {outing});
        QVERIFY(desk.action(ActionName::ApplyToAll)->isEnabled());
        desk.action(ActionName::ApplyToAll)->trigger();
        QVERIFY(!desk.sheet());
        for (const image *photo : desk.context().records<image>()) {
            QVERIFY(photo->lat_and_lon());
        }
        desk.settle();
        QVERIFY(counts(desk).contains(QStringLiteral("8 with a position")));
        desk.action(ActionName::Undo)->trigger();
        desk.settle();
        QVERIFY(counts(desk).contains(QStringLiteral("1 with a position")));
    }

    void detailsGoToAllSelected() {
        WindowDesk desk;
        drop(desk, {outing});
        desk.action(ActionName::ShowDetails)->trigger();
        desk.settle();
        desk.clickRow(1);
        desk.clickRow(2, Qt::ControlModifier);
        desk.type("City", "Zug");
        QCOMPARE(desk.photo(1).city().string(), std::string("Zug"));
        QCOMPARE(desk.photo(2).city().string(), std::string("Zug"));
        QVERIFY(desk.photo(3).city().string() != "Zug");
    }

    void broughtBackAfterAKill() {
        QProcess worker;
        worker.start(QCoreApplication::applicationFilePath(), {QStringLiteral("work-and-die")});
        QVERIFY(worker.waitForFinished());
        QCOMPARE(worker.exitStatus(), QProcess::CrashExit);
        WindowDesk desk;
        QCOMPARE(desk.context().count<image>(), 0U);
        QVERIFY(desk.button("Bring Back"));
        desk.button("Bring Back")->click();
        desk.settle();
        QCOMPARE(desk.photoTable()->model()->rowCount(), 8);
        QCOMPARE(desk.photo(1).lat().string(), std::string("46.5"));
        QCOMPARE(desk.context().count<track_part>(), 1259U);
        QVERIFY(!desk.button("Bring Back"));
    }

    void quitsAtOnceWithoutChanges() {
        WindowDesk desk;
        drop(desk, {outing});
        QTimer::singleShot(0, desk.window, [&] { desk.window->close(); });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(!desk.sheet());
    }

    void quitAsksAboutChanges() {
        WindowDesk desk;
        drop(desk, {outing});
        desk.clickRow(1);
        desk.type("Latitude, decimal degrees", "47");
        desk.parts().logWindow.makeKeyAndOrderFront();
        const QWidgetList all = QApplication::topLevelWidgets();
        QWidget *const log = *std::find_if(all.begin(), all.end(), [](const QWidget *one) {
            return qobject_cast<const LogWindow *>(one) != nullptr;
        });
        log->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(log));
        QTest::keyClick(log, Qt::Key_Q, Qt::ControlModifier); // from any window
        QVERIFY(desk.sheet() && desk.window->isVisible());
        QTest::keyClick(desk.sheet(), Qt::Key_Escape);
        QVERIFY(!desk.sheet());
        QTimer::singleShot(0, desk.window, [&] { desk.window->close(); });
        QCOMPARE(QApplication::exec(), 0); // asked once, and not again
    }

    void fitsASmallScreen() {
        WindowDesk desk({1280, 700});
        drop(desk, {outing});
        desk.clickRow(1);
        desk.window->resize(960, 540);
        QCoreApplication::processEvents();
        QVERIFY(desk.window->width() <= 960 && desk.window->height() <= 540);
        QVERIFY(desk.photoTable()->rowAt(desk.photoTable()->viewport()->height()) > 2);
        QVERIFY(desk.window->findChild<QTabWidget *>()->isVisible());
        // The coordinates scroll; a map needs room to be clicked on.
        QVERIFY(desk.window->findChild<MapPane *>()->height() > 180);
    }
};

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    if (argc == 2 && QByteArray(argv[1]) == "work-and-die") {
        workAndDie();
    }
    MainWindowTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "main_window_test.moc"
