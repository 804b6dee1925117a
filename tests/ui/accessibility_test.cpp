#include "ui/save_desk.h"

#include "rows.h"

#include <QAccessible>
#include <QMap>
#include <QTimer>
#include <QToolButton>

using namespace pinmora;
using enum ActionName;

namespace {

/// The program with photos of two cameras, a log and a message in the quiet bar.
struct AccessDesk : SaveDesk {
    AccessDesk() : SaveDesk({"a", "b", "c"}) {
        parts().photoIntake.openFiles({PINMORA_SOURCE_DIR "/samples/outing/zugerberg.gpx"});
        for (const char *camera : {"Canon, EOS 5D", "Nikon, D90"}) {
            addPhoto(camera, "2026:05:08 10:00:00").setCamera(camera);
        }
        interface().quietBar.post({.subject = "test",
                                   .head = "Head",
                                   .text = "A message",
                                   .choices = {{"Use", [] {}}, {"Keep", [] {}}}});
        settle();
        clickRow(0);
    }

    void showPage(WizardPage page) {
        parts().wizard.changeToWizard();
        turnToFront();
        parts().wizardOutlets.wizardTabs.selectedIdentifier.set(identifierOf(page));
        settle();
    }
    void loseFiles() {
        for (const char *name : {"a", "b"}) {
            std::filesystem::remove(fileOf(name));
        }
        trigger(SavePhotos);
    }
    /// What stands before the window that is worked in, else that one.
    QList<QWidget *> windowsInFront() const {
        QList<QWidget *> found;
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (top->isVisible() && top != window) {
                found << top;
            }
        }
        return found.isEmpty() ? QList<QWidget *>{window} : found;
    }
};

/// Walks what assistive technology sees of a window, and gathers what it could not tell a person.
class Hearing {
public:
    QStringList faults;
    int controls = 0;

    void walk(QAccessibleInterface &one, const QString &place) {
        const QAccessible::Role role = one.role();
        const bool isInMenu = role == QAccessible::PopupMenu || role == QAccessible::MenuItem;
        if ((one.state().invisible && !isInMenu) || role == QAccessible::Separator) {
            return;
        }
        const QString name = one.text(QAccessible::Name).trimmed();
        const QString here = place + QLatin1Char('/') + kindOf(one) + QLatin1Char(' ') + name;
        look(one, name, here);
        QMap<QString, int> names;
        for (int i = 0; i < one.childCount(); ++i) {
            if (QAccessibleInterface *const child = one.child(i)) {
                walk(*child, here);
                if (isControl(*child) && !child->state().invisible && !isPart(child->role())) {
                    const QString shared = child->text(QAccessible::Name);
                    if (++names[shared] == 2 && !shared.isEmpty()) {
                        faults << here + QStringLiteral(": two are called ") + shared;
                    }
                }
            }
        }
    }

private:
    static QString kindOf(QAccessibleInterface &one) {
        return one.object() ? QString::fromLatin1(one.object()->metaObject()->className())
                            : QString::number(one.role());
    }
    /// Of a list or table, which has a name itself.
    static bool isPart(QAccessible::Role role) {
        return role == QAccessible::Cell || role == QAccessible::ListItem ||
               role == QAccessible::TreeItem || role == QAccessible::RowHeader ||
               role == QAccessible::ColumnHeader;
    }
    static bool isControl(QAccessibleInterface &one) {
        switch (one.role()) {
        case QAccessible::Button:
        case QAccessible::ButtonMenu:
        case QAccessible::ButtonDropDown:
        case QAccessible::CheckBox:
        case QAccessible::RadioButton:
        case QAccessible::EditableText:
        case QAccessible::ComboBox:
        case QAccessible::List:
        case QAccessible::Tree:
        case QAccessible::Table:
        case QAccessible::Slider:
        case QAccessible::SpinBox:
        case QAccessible::PageTab:
        case QAccessible::MenuItem:
        case QAccessible::ProgressBar:
        case QAccessible::Dialog:
            return true;
        default:
            return false;
        }
    }
    static bool saysSomething(const QString &name) {
        return std::any_of(name.begin(), name.end(), [](QChar one) { return one.isLetter(); });
    }

    void look(QAccessibleInterface &one, const QString &name, const QString &here) {
        const auto *const widget = qobject_cast<QWidget *>(one.object());
        const bool takesKeys = widget && widget->focusPolicy() != Qt::NoFocus &&
                               !widget->focusProxy() && widget->isEnabled();
        if (one.role() == QAccessible::StaticText && name.isEmpty() && widget) {
            faults << here + QStringLiteral(": an empty label");
        }
        if (isPart(one.role()) || !(takesKeys || isControl(one))) {
            return;
        }
        ++controls;
        if (!saysSomething(name)) {
            faults << here + QStringLiteral(": no name");
        } else if (one.object() && (name == one.object()->objectName() || name == kindOf(one))) {
            faults << here + QStringLiteral(": only an inner name");
        }
    }
};

/// All of the windows, and how many controls they have at least: 0 would mean that none was seen.
void checkNames(const QList<QWidget *> &windows, int leastControls) {
    Hearing hearing;
    for (QWidget *window : windows) {
        hearing.walk(*QAccessible::queryAccessibleInterface(window), {});
    }
    if (hearing.controls < leastControls) {
        hearing.faults << QStringLiteral("only %1 controls").arg(hearing.controls);
    }
    const QString faults = hearing.faults.join(QLatin1Char('\n'));
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

using Open = void (*)(AccessDesk &);

template <WizardPage page>
void showPage(AccessDesk &desk) {
    desk.showPage(page);
}

template <ActionName name>
void trigger(AccessDesk &desk) {
    desk.trigger(name);
}

} // namespace

class AccessibilityTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        Desk::clear();
    }

    void everyControlHasAName_data() {
        const auto row = test::rows<Open, int>();
        row(
            "main window", [](AccessDesk &) {}, 80);
        row("details", trigger<ShowDetails>, 70);
        row(
            "ways to set the clock",
            [](AccessDesk &desk) {
                desk.window->findChild<QToolButton *>(QStringLiteral("more"))->click();
            },
            83);
        row(
            "empty", [](AccessDesk &desk) { desk.parts().removeAllPhotos.removeAll(); }, 70);
        row("welcome", showPage<WizardPage::Welcome>, 50);
        row("photos", showPage<WizardPage::Photos>, 50);
        row("GPS data", showPage<WizardPage::GpsData>, 50);
        row("clock", showPage<WizardPage::OffsetSelect>, 50);
        row("by map", showPage<WizardPage::OffsetByMap>, 50);
        row("by position", showPage<WizardPage::OffsetByLatLon>, 50);
        row("known offset", showPage<WizardPage::OffsetByKnown>, 50);
        row("apply and save", showPage<WizardPage::MatchAll>, 50);
        row("photo panel", trigger<AddPhotos>, 10);
        row("log panel", trigger<LoadGpsData>, 10);
        row("folder panel", trigger<SavePhotos>, 10);
        row(
            "missing photos", [](AccessDesk &desk) { desk.loseFiles(); }, 8);
        row("cameras", trigger<ShowCameras>, 5);
        row(
            "own clock",
            [](AccessDesk &desk) {
                desk.parts().cameras.setHasOwnClock("Canon, EOS 5D", true);
                desk.trigger(ShowCameras);
            },
            10);
        row("true time", trigger<PhotoWasTakenAt>, 4);
        row("rename", trigger<Rename>, 4);
        row("remove all", trigger<ActionName::RemoveAllPhotos>, 3);
        row(
            "quit", [](AccessDesk &desk) { desk.parts().quitWarning.openQuitWarning(); }, 4);
        row(
            "error", [](AccessDesk &desk) { desk.interface().errors.present("What", "Why"); }, 2);
        row(
            "progress",
            [](AccessDesk &desk) {
                desk.interface().progress.showProgressWindow("Loading", "1 of 4", 4);
            },
            2);
        row(
            "saving",
            [](AccessDesk &desk) {
                desk.parts().saveOutlets.saveWindow.begin(desk.interface().window);
            },
            2);
        row("full size", trigger<FullSize>, 0);
        row("log", trigger<ShowLog>, 2);
        row("manual", trigger<ActionName::Manual>, 4);
        row("preferences", trigger<ShowPreferences>, 8);
        row("version", trigger<CheckVersion>, 3);
        row(
            "about",
            [](AccessDesk &desk) {
                QTimer::singleShot(0, desk.window, [&desk] {
                    const QList<QWidget *> windows = desk.windowsInFront();
                    checkNames(windows, 1);
                    windows.first()->close();
                });
                desk.action(About)->trigger();
            },
            0);
    }

    void everyControlHasAName() {
        const auto [open, leastControls] = test::fetch<Open, int>();
        AccessDesk desk;
        open(desk);
        desk.settle();
        checkNames(desk.windowsInFront(), leastControls);
    }
};

QTEST_MAIN(AccessibilityTest)
#include "accessibility_test.moc"
