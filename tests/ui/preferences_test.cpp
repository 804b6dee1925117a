#include "ui/window_desk.h"

#include "rows.h"
#include "ui/preferences/preferences_window.h"

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QSpinBox>

using namespace pinmora;

namespace {

/// The window of the preferences, as its menu entry opens it.
struct PreferencesDesk : WindowDesk {
    PreferencesDesk() : WindowDesk({800, 700}) { // as large as the screen
        action(ActionName::ShowPreferences)->trigger();
        QList<PreferencesWindow *> there;
        for (QWidget *const top : QApplication::topLevelWidgets()) {
            if (auto *const one = qobject_cast<PreferencesWindow *>(top)) {
                there.append(one);
            }
        }
        if (there.size() != 1 || !QTest::qWaitForWindowActive(there.front())) {
            qFatal("there is not one window of the preferences");
        }
        preferences = there.front();
    }

    void turnTo(int page) const { preferences->findChild<QListWidget *>()->setCurrentRow(page); }
    /// What is seen of that kind and has this text or name.
    template <class Widget>
    Widget *seen(const char *text) const {
        for (auto *const one : preferences->findChildren<Widget *>()) {
            const QString wanted = QString::fromUtf8(text);
            if (one->isVisible() &&
                (one->property("text") == wanted || one->accessibleName() == wanted)) {
                return one;
            }
        }
        qFatal("nothing visible is called \"%s\"", text);
    }
    std::string stored(const char *key) const { return Defaults().text(key).value_or("nothing"); }

    PreferencesWindow *preferences;
};

enum Page { GeneralPage, MapsPage, PlacesPage, LogsPage, SavingPage };

} // namespace

class PreferencesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void aClickIsStored_data() {
        const auto row = test::rows<int, std::string, std::string, std::string>();
        row("wizard", GeneralPage, "Begin with the wizard", "useWizard", "1");
        row("dark", GeneralPage, "Dark", "appearance", "dark");
        row("no check", GeneralPage, "Look for a newer version at start", "versionCheck", "1");
        row("no tiles", MapsPage, "No tiles", "tileServer", "none");
        row("no names", PlacesPage, "Look up place names", "lookUpPlaces", "0");
        row("tolerant", LogsPage, "Tolerantly", "logReading", "tolerant");
        row("more types", SavingPage, "Load more types of photos", "morePhotoTypes", "1");
        row("kept open", SavingPage, "Keep it open", "toolLane", "shared");
    }
    void aClickIsStored() {
        const auto [page, text, key, word] =
            test::fetch<int, std::string, std::string, std::string>();
        const PreferencesDesk desk;
        desk.turnTo(page);
        auto *const button = desk.seen<QAbstractButton>(text.c_str());
        const bool was = button->isChecked();
        QTest::mouseClick(button, Qt::LeftButton, {}, {5, button->height() / 2});
        QCOMPARE(desk.stored(key.c_str()), word);
        QVERIFY(button->isChecked() != was);
    }

    void whatElsewhereIsChosenIsSeen() {
        const PreferencesDesk desk;
        desk.action(ActionName::LightLook)->trigger();
        QVERIFY(desk.seen<QRadioButton>("Light")->isChecked());
        desk.seen<QRadioButton>("Dark")->click();
        QVERIFY(desk.action(ActionName::DarkLook)->isChecked());
        desk.action(ActionName::LookUpPlaces)->trigger();
        desk.turnTo(PlacesPage);
        QVERIFY(!desk.seen<QCheckBox>("Look up place names")->isChecked());
    }

    void theWindowStaysWithABadAddress() {
        PreferencesDesk desk;
        desk.turnTo(MapsPage);
        desk.seen<QRadioButton>("Another tile server")->click();
        auto *const field = desk.seen<QLineEdit>("Address of the tiles");
        field->setFocus();
        QTest::keyClicks(field, QStringLiteral("https://t.test/{z}/{x}"));
        const QString why = field->accessibleDescription();
        QVERIFY(why.contains(QStringLiteral("{y} is missing")));
        QVERIFY(desk.seen<QLabel>(qPrintable(why)));
        desk.turnTo(GeneralPage);
        desk.seen<QPushButton>("Close")->click();
        QVERIFY(desk.preferences->isVisible() && field->isVisible() && field->hasFocus());
        QCOMPARE(desk.stored("tileServer"), "nothing");
        QVERIFY(!field->visibleRegion().isEmpty());

        QTest::keyClick(field, Qt::Key_Escape);
        QVERIFY(desk.seen<QRadioButton>("OpenStreetMap")->hasFocus() && !field->isVisible());
        QTest::keyClick(desk.preferences, Qt::Key_Escape);
        QVERIFY(!desk.preferences->isVisible());

        desk.action(ActionName::ShowPreferences)->trigger();
        desk.turnTo(MapsPage);
        desk.seen<QRadioButton>("Another tile server")->click();
        QTest::keyClicks(field, QStringLiteral("https://t.test/{z}/{x}/{y}"));
        desk.preferences->close(); // what is typed and fit is stored
        QVERIFY(!desk.preferences->isVisible());
        QCOMPARE(desk.stored("tileServer"), "https://t.test/{z}/{x}/{y}");
    }

    /// From the list of pages to each control that is seen, and on to the end.
    void theKeyboardAndTheEarGetEverywhere_data() {
        const auto row = test::rows<int>();
        row("General", GeneralPage);
        row("Map", MapsPage);
        row("Place Names", PlacesPage);
        row("GPS Logs", LogsPage);
        row("Photos and Saving", SavingPage);
    }
    void theKeyboardAndTheEarGetEverywhere() {
        const auto [page] = test::fetch<int>();
        PreferencesDesk desk;
        auto *const pages = desk.preferences->findChild<QListWidget *>();
        QVERIFY(pages->hasFocus());
        for (int step = 0; step < page; ++step) {
            QTest::keyClick(pages, Qt::Key_Down);
        }
        for (auto *const button : desk.preferences->findChildren<QRadioButton *>()) {
            if (button->isVisible()) {
                button->click(); // the last of each list shows its fields
            }
        }
        QSet<QWidget *> wanted;
        for (auto *const widget : desk.preferences->findChildren<QWidget *>()) {
            if (widget->isVisible() && widget->focusPolicy() & Qt::TabFocus &&
                !widget->focusProxy()) {
                wanted.insert(widget);
            }
        }
        auto *const close = desk.seen<QPushButton>("Close");
        QWidget *now = pages;
        while (wanted.remove(now)) {
            QVERIFY(now != close || wanted.isEmpty()); // that comes last
            const auto *const button = qobject_cast<QAbstractButton *>(now);
            QVERIFY(!now->accessibleName().isEmpty() || (button && !button->text().isEmpty()));
            QVERIFY(now == pages || now == close ||
                    now->accessibleDescription().endsWith(QLatin1Char('.')));
            const int y = now->mapTo(desk.preferences, QPoint()).y();
            QVERIFY2(y >= 0 && y < desk.preferences->height(), "not scrolled into view");
            QTest::keyClick(now, Qt::Key_Tab);
            now = QApplication::focusWidget();
        }
        QVERIFY(now == pages && wanted.isEmpty());
    }

    void comesUpOverTheWindowWorkedIn() {
        PreferencesDesk desk;
        const QPoint middle = desk.window->frameGeometry().center();
        const QPoint own = desk.preferences->frameGeometry().center();
        QVERIFY((middle - own).manhattanLength() < 100);
        desk.turnTo(SavingPage);
        auto *const seconds =
            desk.seen<QSpinBox>("Seconds of silence after which ExifTool is ended");
        seconds->setFocus();
        seconds->selectAll();
        QTest::keyClicks(seconds, QStringLiteral("45"));
        desk.seen<QPushButton>("Close")->setFocus();
        QCOMPARE(desk.stored("toolPatience"), "45");
    }
};

QTEST_MAIN(PreferencesTest)
#include "preferences_test.moc"
