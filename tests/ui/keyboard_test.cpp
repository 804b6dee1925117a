#include "ui/save_desk.h"

#include "rows.h"
#include "services/local_server.h"
#include "ui/map_pane.h"
#include "ui/web_map_view.h"

#include <QFileDialog>
#include <QTabBar>
#include <QWebEnginePage>
#include <QWebEngineView>

#include <optional>

using namespace pinmora;
using enum ActionName;

namespace {

const std::string outing = PINMORA_SOURCE_DIR "/samples/outing";

/// The program, worked with by the keyboard alone.
struct KeyDesk : SaveDesk {
    explicit KeyDesk(MapPane::MakePage makePage = nullptr)
        : SaveDesk({}, "exit 0", {1280, 800}, std::move(makePage)) {}

    void press(int key, Qt::KeyboardModifiers keys = {}) {
        QWidget *const focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : QApplication::activeWindow(), Qt::Key(key), keys);
        settle();
        if (!QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; })) {
            qFatal("nothing has the keyboard");
        }
    }
    void write(const std::string &text) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromStdString(text));
    }
    /// In the field of a file panel, which has the keyboard.
    void choose(const std::string &path) {
        auto *const name = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        if (!qobject_cast<QFileDialog *>(sheet()) || !name) {
            qFatal("no file can be named");
        }
        name->setCompleter(nullptr); // its list is a window, and there is no window manager
        name->selectAll();
        write(path);
        press(Qt::Key_Return);
    }
    void goTo(const char *name, int key) {
        for (int i = 0; i < 40; ++i) {
            if (QApplication::focusWidget()->accessibleName() == QLatin1String(name)) {
                return;
            }
            press(key);
        }
        qFatal("no key leads to \"%s\"", name);
    }
    void addPhotosAndLog() {
        parts().photoIntake.openFiles({outing});
        settle();
        settle();
    }
    /// What Tab is to lead to.
    QList<QWidget *> stops() const {
        QList<QWidget *> found;
        for (auto *one : window->findChildren<QWidget *>()) {
            if (one->isVisible() && one->isEnabled() && !one->focusProxy() &&
                (one->focusPolicy() & Qt::TabFocus) != 0) {
                found << one;
            }
        }
        return found;
    }
    /// Where the key leads to until it comes round.
    QList<QWidget *> round(int key) {
        QList<QWidget *> visited;
        for (QWidget *now = QApplication::focusWidget(); now && !visited.contains(now);
             now = QApplication::focusWidget()) {
            visited << now;
            QTest::keyClick(now, Qt::Key(key));
        }
        return visited;
    }
    /// Whether one reads on from the one to the other: down, or to the right, and not back up.
    bool isReadingOn(const QWidget &from, const QWidget &to) const {
        const QRect a(from.mapTo(window, QPoint()), from.size());
        const QRect b(to.mapTo(window, QPoint()), to.size());
        const bool isBackUp = b.bottom() < a.top() && b.left() <= a.right();
        return to.isAncestorOf(&from) || b.top() > a.bottom() ||
               (b.left() >= a.left() && !isBackUp);
    }
};

QString nameOf(const QWidget *widget) {
    return QString::fromLatin1(widget->metaObject()->className()) + QLatin1Char(' ') +
           widget->accessibleName() + widget->property("text").toString();
}

QStringList namesOf(const QList<QWidget *> &widgets) {
    QStringList names;
    for (const QWidget *one : widgets) {
        names << nameOf(one);
    }
    return names;
}

using Prepare = void (*)(KeyDesk &);

template <WizardPage page>
void showPage(KeyDesk &desk) {
    desk.parts().wizard.changeToWizard();
    desk.turnToFront();
    desk.parts().wizardOutlets.wizardTabs.selectedIdentifier.set(identifierOf(page));
}

} // namespace

class KeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        Desk::clear();
    }

    void tabGoesRoundInTheOrderOfReading_data() {
        const auto row = test::rows<Prepare>();
        row("empty", [](KeyDesk &desk) { desk.parts().removeAllPhotos.removeAll(); });
        row("position", [](KeyDesk &desk) { desk.clickRow(0); });
        row("details", [](KeyDesk &desk) {
            desk.clickRow(0);
            desk.trigger(ShowDetails);
        });
        row("message", [](KeyDesk &desk) {
            desk.interface().quietBar.post(
                {.subject = "a", .head = "", .text = "b", .choices = {{"Use", [] {}}}});
        });
        row("welcome", showPage<WizardPage::Welcome>);
        row("photos", showPage<WizardPage::Photos>);
        row("GPS data", showPage<WizardPage::GpsData>);
        row("clock", showPage<WizardPage::OffsetSelect>);
        row("by map", showPage<WizardPage::OffsetByMap>);
        row("by position", showPage<WizardPage::OffsetByLatLon>);
        row("known offset", showPage<WizardPage::OffsetByKnown>);
        row("apply and save", showPage<WizardPage::MatchAll>);
    }

    void tabGoesRoundInTheOrderOfReading() {
        const auto [prepare] = test::fetch<Prepare>();
        KeyDesk desk;
        desk.addPhotosAndLog();
        prepare(desk);
        desk.settle();
        desk.settle();
        QWidget *first = desk.window->nextInFocusChain();
        while (!desk.stops().contains(first)) {
            first = first->nextInFocusChain();
        }
        first->setFocus();
        const QList<QWidget *> there = desk.round(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), first);
        for (const QWidget *stop : desk.stops()) {
            QVERIFY2(there.contains(stop), qPrintable(nameOf(stop)));
        }
        for (qsizetype i = 1; i < there.size(); ++i) {
            QVERIFY2(desk.isReadingOn(*there[i - 1], *there[i]),
                     qPrintable(nameOf(there[i - 1]) + QStringLiteral(" to ") + nameOf(there[i])));
        }
        QList<QWidget *> back = desk.round(Qt::Key_Backtab);
        std::reverse(back.begin() + 1, back.end());
        QCOMPARE(namesOf(back), namesOf(there));
    }

    void aKeyLeadsFromAreaToArea() {
        KeyDesk desk;
        desk.addPhotosAndLog();
        desk.clickRow(1);
        const auto areas = [&desk](Qt::KeyboardModifiers keys) {
            QStringList names;
            for (int i = 0; i < 6; ++i) {
                desk.press(Qt::Key_F6, keys);
                const QWidget *const now = QApplication::focusWidget();
                names << (qobject_cast<const QTabBar *>(now) ? QStringLiteral("the tabs")
                                                             : now->accessibleName());
            }
            return names.join(QLatin1String(" | "));
        };
        QCOMPARE(areas({}),
                 QStringLiteral("GPS tracks | the tabs | Latitude, decimal degrees | Add to the "
                                "camera's time | Time strip | Photos"));
        QCOMPARE(areas(Qt::ShiftModifier),
                 QStringLiteral("Time strip | Add to the camera's time | Latitude, decimal degrees "
                                "| the tabs | GPS tracks | Photos"));
    }

    /// With the page as it is served.
    void theMapIsEnteredAndLeft() {
        LocalServer server({.tileServer = "none"});
        Defaults settings;
        settings.setText("mapServer", server.address());
        settings.synchronize();
        KeyDesk desk(makeWebMapView);
        desk.addPhotosAndLog();
        desk.clickRow(1);
        auto *const map = desk.window->findChild<MapPane *>();
        QTRY_VERIFY_WITH_TIMEOUT(map->findChild<QWebEngineView *>() &&
                                     map->findChild<QWebEngineView *>()->isVisible(),
                                 30'000);
        auto *const view = map->findChild<QWebEngineView *>();
        const auto isIn = [map] { return map->isAncestorOf(QApplication::focusWidget()); };
        const auto place = [view] { // in the page; "" while it has not got the keyboard
            std::optional<QString> told;
            view->page()->runJavaScript(
                QStringLiteral("document.hasFocus() ? document.activeElement.id : ''"),
                [&told](const QVariant &value) { told = value.toString(); });
            static_cast<void>(QTest::qWaitFor([&told] { return told.has_value(); }));
            return told.value_or(QString());
        };
        const auto goThrough = [&](Qt::Key key, Qt::KeyboardModifiers keys = {}) {
            QString here;
            const auto isElsewhere = [&] {
                const QString now = place();
                return !isIn() || (!now.isEmpty() && now != here);
            };
            int places = 0;
            for (; QTest::qWaitFor(isElsewhere) && isIn() && places < 20; ++places) {
                here = place();
                QTest::keyClick(QApplication::focusWidget(), key, keys);
            }
            return places;
        };
        auto *const tabs = desk.window->findChild<QTabBar *>();
        tabs->setFocus();
        desk.press(Qt::Key_Tab);
        QVERIFY(isIn());
        QVERIFY(goThrough(Qt::Key_Tab) > 3); // the page's own buttons
        QCOMPARE(QApplication::focusWidget()->accessibleName(),
                 QStringLiteral("Latitude, decimal degrees"));
        desk.press(Qt::Key_Backtab);
        QVERIFY(isIn());
        QVERIFY(goThrough(Qt::Key_Backtab, Qt::ShiftModifier) > 3);
        QCOMPARE(QApplication::focusWidget(), tabs);
        desk.press(Qt::Key_F6);
        QVERIFY(isIn());
        desk.press(Qt::Key_F6);
        QVERIFY(!isIn());
    }

    /// From nothing to tagged copies.
    void theWholeJob() {
        KeyDesk desk;
        writeBytes(desk.resources / "exiftool",
                   "#!/bin/sh\nfor copy; do :; done\nprintf '%s\\n' \"$@\" > \"$copy.told\"\n");
        desk.press(Qt::Key_O, Qt::ControlModifier);
        desk.choose(outing + "/IMG_0412.JPG");
        desk.press(Qt::Key_L, Qt::ControlModifier);
        desk.choose(outing + "/zugerberg.gpx");
        QCOMPARE(desk.context().count<image>(), 1U);
        QVERIFY(desk.context().count<track_part>() > 0);
        desk.press(Qt::Key_Down); // the focus is on the list
        desk.press(Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(desk.photo(0).lat_and_lon());
        desk.goTo("Latitude, decimal degrees", Qt::Key_F6);
        desk.press(Qt::Key_A, Qt::ControlModifier);
        desk.write("47.25");
        desk.press(Qt::Key_Tab);
        QCOMPARE(desk.photo(0).lat().string(), std::string("47.25"));
        desk.press(Qt::Key_2, Qt::ControlModifier);
        desk.goTo("Description", Qt::Key_Tab);
        desk.write("At the lake");
        desk.press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(desk.photo(0).img_description().string(), std::string("At the lake"));
        desk.choose(desk.copies.string());
        QTRY_VERIFY(!desk.parts().savePipeline.isRunning());
        const std::string told = bytesOf(desk.copies / "IMG_0412.JPG.told");
        QVERIFY(told.find("=47.25") != std::string::npos);
        QVERIFY(told.find("At the lake") != std::string::npos);
    }
};

QTEST_MAIN(KeyboardTest)
#include "keyboard_test.moc"
