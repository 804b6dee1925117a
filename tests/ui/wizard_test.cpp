#include "saving/folders.h"
#include "ui/window_desk.h"

#include "ui/stepper_box.h"
#include "ui/wizard/wizard_texts.h"

#include <QLabel>
#include <QMenuBar>
#include <QMimeData>

using namespace pinmora;

namespace {

const QString outing = QStringLiteral(PINMORA_SOURCE_DIR "/samples/outing");

/// The program as it starts for a new person, with a folder for copies, and in place of the tool
/// one that writes what it is told into the copy.
struct WizardDesk : Folders, WindowDesk {
    explicit WizardDesk(QSize size = {1080, 680}) : WindowDesk(size, resources) {
        writeBytes(resources / "exiftool",
                   "#!/bin/sh\nfor copy; do :; done\nprintf '%s\\n' \"$@\" >> \"$copy\"\n");
        std::filesystem::permissions(resources / "exiftool", std::filesystem::perms::owner_all);
    }
    WizardDesk(const WizardDesk &) = delete;
    WizardDesk &operator=(const WizardDesk &) = delete;
    ~WizardDesk() = default;

    using WindowDesk::photo;

    bool canPress(const char *text) const { return button(text) && button(text)->isEnabled(); }
    void press(const char *text) {
        if (!canPress(text)) {
            qFatal("\"%s\" cannot be pressed", text);
        }
        QTest::mouseClick(button(text), Qt::LeftButton);
        settle();
    }
    void choose(const char *card) {
        QTest::keyClick(named<QAbstractButton>(card), Qt::Key_Return);
        settle();
    }
    void drop(const QStringList &names) {
        QMimeData files;
        QList<QUrl> urls;
        for (const QString &name : names) {
            urls << QUrl::fromLocalFile(outing + QLatin1Char('/') + name);
        }
        files.setUrls(urls);
        const QPoint middle = window->rect().center();
        QDragEnterEvent enter(middle, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &enter);
        QVERIFY(enter.isAccepted() && parts().photoIntake.theBorder2.hasShadow.get());
        QDropEvent dropped(middle, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &dropped);
        settle();
    }
    /// Drops come in from the last to the first.
    void clickPhoto(const char *name, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        for (int row = 0; row < photoTable()->model()->rowCount(); ++row) {
            if (photo(static_cast<std::size_t>(row)).original_name().string() == name) {
                clickRow(row, keys);
            }
        }
    }
    /// As the page of the map reports a click.
    void clickMap(const char *place) {
        delegate.interface.webView2.called.emit({"latLonJavascript", std::string(place)});
        settle();
    }
    QString clock() const { return named<QLabel>("Correction of the camera clock")->text(); }
    QString selected() const {
        return window->findChild<QLabel *>(QStringLiteral("selectedPhoto"))->accessibleName();
    }
    void setFromPosition() { press("Set From This Position"); }
    /// Saves what is there, until all is written.
    void save() {
        press("Save Photos…");
        parts().saveOutlets.folderChooser.answer({copies.string()});
        QVERIFY(QTest::qWaitFor([this] { return !parts().savePipeline.isRunning(); }, 20'000));
    }
    /// The tool was told to write this latitude into the copy; "": none.
    QString latitudeIn(const std::string &copy) const {
        const QByteArray bytes = QByteArray::fromStdString(bytesOf(copies / copy));
        const QByteArray tag = "-GPSLatitude=";
        const qsizetype place = bytes.lastIndexOf(tag) + tag.size();
        return place < tag.size()
                   ? QString()
                   : QString::fromLatin1(bytes.mid(place, bytes.indexOf('\n', place) - place));
    }
};

const QStringList photosOnly{QStringLiteral("IMG_0371.JPG"), QStringLiteral("IMG_0412.JPG"),
                             QStringLiteral("IMG_0413.JPG"), QStringLiteral("IMG_0414.JPG"),
                             QStringLiteral("IMG_0415.jpg"), QStringLiteral("IMG_0416.JPG"),
                             QStringLiteral("IMG_0417.JPG"), QStringLiteral("IMG_0418.JPG")};

/// From the first page to the question of the clock, with a log.
void goToTheClock(WizardDesk &desk) {
    desk.press("Next");
    desk.drop(photosOnly);
    desk.press("Next");
    desk.drop({QStringLiteral("zugerberg.gpx")});
    desk.press("Next");
    QVERIFY(!desk.canPress("Next"));
}

void byMap(WizardDesk &desk) {
    desk.choose("I know where one of the photos was taken: show me the map");
    desk.clickPhoto("IMG_0412");
    QVERIFY(!desk.canPress("Set From This Position"));
    desk.clickMap("47.173344:8.514999:15");
    desk.setFromPosition();
    QCOMPARE(desk.clock(), QStringLiteral("The camera was 40 s slow."));
    desk.press("Next");
}

void byLatLon(WizardDesk &desk) {
    desk.choose("I know its latitude and longitude");
    QVERIFY(!desk.canPress("Set From This Position"));
    desk.clickPhoto("IMG_0412");
    desk.type("Known latitude, decimal degrees", "95");
    QCOMPARE(desk.clock(), QStringLiteral("The camera’s clock was right."));
    desk.type("Known latitude, decimal degrees", "47.173389");
    desk.type("Known longitude, decimal degrees", "8.515056");
    desk.setFromPosition();
    QCOMPARE(desk.clock(), QStringLiteral("The camera was 8 s fast."));
    desk.press("Next");
}

void byKnown(WizardDesk &desk) {
    desk.choose("I know how far the camera’s clock was off");
    desk.clickPhoto("IMG_0412");
    QTest::mouseClick(desk.named<QAbstractButton>("Add to the camera's time"), Qt::LeftButton);
    auto *const seconds = desk.named<StepperBox>("Seconds that the camera's clock is off");
    seconds->setFocus();
    seconds->selectAll();
    QTest::keyClicks(seconds, QStringLiteral("40"));
    QTest::keyClick(seconds, Qt::Key_Return);
    desk.settle();
    QCOMPARE(desk.named<QLabel>("Latitude")->text(), QStringLiteral("47.173344")); // it moves live
    desk.press("Next");
}

void clockWasRight(WizardDesk &desk) {
    desk.choose("The clock was right");
}

} // namespace

using Route = void (*)(WizardDesk &);
Q_DECLARE_METATYPE(Route)

class WizardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        Desk::clear();
        Defaults settings;
        settings.setText("useWizard", "1");
        settings.synchronize();
    }

    void routes_data() {
        QTest::addColumn<Route>("route");
        QTest::addColumn<QString>("latitude");
        QTest::newRow("by the map") << Route(byMap) << QStringLiteral("47.173344");
        QTest::newRow("by position") << Route(byLatLon) << QStringLiteral("47.173389");
        QTest::newRow("known offset") << Route(byKnown) << QStringLiteral("47.173344");
        QTest::newRow("clock was right") << Route(clockWasRight) << QStringLiteral("47.173378");
    }

    /// From nothing to tagged copies, with what stands on the pages alone.
    void routes() {
        QFETCH(Route, route);
        WizardDesk desk;
        goToTheClock(desk);
        route(desk);
        desk.press("Apply to All");
        QVERIFY(desk.named<QLabel>("What this page is for")
                    ->text()
                    .startsWith(QStringLiteral("Save Photos writes tagged copies")));
        auto *const name = desk.named<QLineEdit>("New name");
        QVERIFY(!desk.canPress("Rename All"));
        name->setFocus();
        QTest::keyClicks(name, QStringLiteral("zug"));
        if (route == Route(byMap)) {
            desk.press("Rename All");
        } else if (route == Route(byLatLon)) {
            QTest::keyClick(name, Qt::Key_Return);
        } // or Save Photos gives the name
        desk.save();
        QCOMPARE(desk.copyNames().size(), 8U);
        desk.clickPhoto("IMG_0412");
        const QString copy = desk.selected();
        QVERIFY(copy.startsWith(QStringLiteral("zug_")));
        const QString latitude = desk.latitudeIn(copy.toStdString() + ".JPG");
        QTEST(latitude, "latitude");
    }

    void whatIsThereAlready_data() {
        QTest::addColumn<int>("photos");
        QTest::addColumn<int>("tracks");
        QTest::addColumn<QString>("words");
        QTest::newRow("nothing") << 0 << 0 << QString();
        QTest::newRow("one") << 1 << 0
                             << QStringLiteral("1 photo is here already. Next goes on with it.");
        QTest::newRow("one kind") << 0 << 2
                                  << QStringLiteral(
                                         "2 tracks are here already. Next goes on with them.");
        QTest::newRow("one of each")
            << 1 << 1
            << QStringLiteral("1 photo and 1 track are here already. Next goes on with them.");
    }
    void whatIsThereAlready() {
        QFETCH(const int, photos);
        QFETCH(const int, tracks);
        QTEST(holdings({.photos = static_cast<std::size_t>(photos),
                        .tracks = static_cast<std::size_t>(tracks)}),
              "words");
    }

    void withoutAnyLog() {
        WizardDesk desk;
        desk.press("Next");
        desk.drop(photosOnly);
        desk.press("Next");
        desk.press("Next"); // no log: nothing is asked of the clock
        QVERIFY(!desk.button("Set From This Position"));
        desk.clickPhoto("IMG_0412");
        desk.clickPhoto("IMG_0413", Qt::ControlModifier);
        std::string told;
        const Connection listening = desk.interface().webView2.scripts.connect(
            [&told](const std::string &script) { told = script; });
        desk.action(ActionName::ToggleMarker)->trigger(); // works on the map that is seen
        QVERIFY(told.starts_with("addNewMarkerToMap"));
        desk.clickMap("47.5:8.25:15");
        desk.press("Next");
        QVERIFY(!desk.button("Apply to All"));
        desk.save();
        QCOMPARE(desk.copyNames().size(), 8U);
        QCOMPARE(desk.latitudeIn("IMG_0412.JPG"), QStringLiteral("47.500000"));
        QCOMPARE(desk.latitudeIn("IMG_0413.JPG"), QStringLiteral("47.500000"));
        QCOMPARE(desk.latitudeIn("IMG_0414.JPG"), QString());
    }

    /// Each step that has been reached leads back; selection and place are kept over the windows.
    void stepsAndWindows() {
        WizardDesk desk;
        goToTheClock(desk);
        clockWasRight(desk);
        desk.clickRow(3);
        const auto step = [&desk](const char *name) { return desk.named<QAbstractButton>(name); };
        QVERIFY(!step("Step 5 of 6: On the map")->isEnabled()); // no such way was gone
        step("Step 4 of 6: Camera clock")->click();
        QVERIFY(desk.named<QAbstractButton>("The clock was right")->isEnabled());
        desk.choose("I know its latitude and longitude");
        QVERIFY(step("Step 5 of 6: By position")->isEnabled());
        desk.press("Back");
        step("Step 6 of 6: Apply and save")->click();

        QWidget *const wizard = desk.window;
        desk.press("Main Window");
        desk.turnToFront();
        desk.settle();
        QVERIFY(desk.window != wizard && desk.window->isVisible() && !wizard->isVisible());
        QCOMPARE(desk.photoTable()->selectionModel()->selectedRows().size(), 1);
        QVERIFY(!desk.action(ActionName::ShowMainWindow)->isEnabled());
        desk.clickRow(5);
        desk.action(ActionName::ShowWizard)->trigger();
        desk.turnToFront();
        desk.settle();
        QVERIFY(desk.window == wizard && wizard->isVisible());
        QVERIFY(!desk.action(ActionName::ShowWizard)->isEnabled());
        QCOMPARE(desk.photoTable()->selectionModel()->selectedRows().first().row(), 5);
        QCOMPARE(desk.selected().toStdString(), desk.photo(5).image_name().string());
        desk.action(ActionName::SelectAll)->trigger(); // in the window that is seen
        desk.settle();
        QCOMPARE(desk.selected(), QStringLiteral("8 photos"));

        desk.press("Do not show the wizard at start");
        QCOMPARE(desk.delegate.defaults.text("useWizard"), std::optional<std::string>("0"));
    }

    void sheetsHangFromTheWizard() {
        WizardDesk desk;
        desk.press("Next");
        desk.press("Add Photos…");
        QVERIFY(desk.sheet());
        QCOMPARE(desk.sheet()->parentWidget(), static_cast<QWidget *>(desk.window));
        QTest::keyClick(desk.sheet(), Qt::Key_Escape);
        desk.drop(photosOnly);
        desk.clickRow(1);
        desk.action(ActionName::Rename)->trigger();
        QVERIFY(desk.sheet());
        QCOMPARE(desk.sheet()->parentWidget(), static_cast<QWidget *>(desk.window));
        QTest::keyClick(desk.sheet(), Qt::Key_Escape);
    }

    void fitsASmallScreen() {
        WizardDesk desk({960, 502}); // 540 with the frame
        goToTheClock(desk);
        const QSize small = desk.window->size();
        QCOMPARE(small, QSize(960, 502));
        byMap(desk);
        QCOMPARE(desk.window->size(), small); // no page asks for more
        desk.press("Apply to All");
        QCOMPARE(desk.window->size(), small);
    }
};

QTEST_MAIN(WizardTest)
#include "wizard_test.moc"
