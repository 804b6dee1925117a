#include "update/update_desk.h"

#include "outlets/workspace.h"
#include "shell/version_check.h"
#include "ui/action_table.h"
#include "ui/help_actions.h"
#include "ui/update_window.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

using namespace pinmora;
namespace fs = std::filesystem;

namespace {

/// The program's menu, a server that has a newer version, and the window once it is asked for.
struct WindowedUpdate {
    WindowedUpdate() {
        service.behave = [this](const TestService::Request &request) {
            if (request.head.startsWith("GET /version.plist")) {
                request.send(TestService::whole(UpdateDesk::list(
                    UpdateDesk::version("2.2") +
                    UpdateDesk::addresses("<array><string>" +
                                          QByteArray::fromStdString(service.address()) +
                                          "/new.zip</string></array>"))));
            } else if (sendsAll) {
                request.send(TestService::whole("the program"));
            } else {
                request.send(TestService::whole("the program").chopped(5));
            }
        };
        connectHelpActions(actions, check, workspace);
        actions[ActionName::CheckVersion]->trigger();
    }

    QDialog *sheet() const { return qobject_cast<QDialog *>(QApplication::activeModalWidget()); }
    template <class Widget>
    Widget *named(const QWidget &where, const char *text) const {
        for (auto *one : where.findChildren<Widget *>()) {
            const bool isIt = one->accessibleName() == QLatin1String(text) ||
                              one->property("text") == QLatin1String(text);
            if (isIt && one->isVisible()) {
                return one;
            }
        }
        qFatal("nothing visible is called \"%s\"", text);
    }
    /// Chooses "new.zip" in the folder; the download begins.
    void download() {
        auto *const button = named<QPushButton>(*window, "Download");
        if (!QTest::qWaitFor([button] { return button->isEnabled(); })) {
            qFatal("nothing is offered");
        }
        button->click();
        auto *const panel = qobject_cast<QFileDialog *>(sheet());
        if (!panel || !panel->selectedFiles().value(0).endsWith(QStringLiteral("/new.zip"))) {
            qFatal("no name is proposed");
        }
        auto *const name = panel->findChild<QLineEdit *>();
        name->setText(QString::fromStdString(file.string()));
        QTest::keyClick(name, Qt::Key_Return);
    }

    bool sendsAll = true;
    Defaults defaults;
    TestService service;
    QTemporaryDir folder;
    fs::path file = fs::path(folder.path().toStdString()) / "new.zip";
    QObject owner;
    Actions actions{&owner};
    Workspace workspace;
    VersionCheck check{defaults,
                       {.version = "2.1",
                        .versionInfoUrl = service.address() + "/version.plist",
                        .webSite = "https://velder.test/",
                        .reportProblemAddress = "file:///etc/passwd"}};
    std::unique_ptr<UpdateWindow> window;
    Connection showing = check.testUpdate.onChange(
        [this](updateTest *update) { window = std::make_unique<UpdateWindow>(*update); });
};

} // namespace

class UpdateWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        UpdateDesk::clear();
    }

    void fromTheMenuToTheFile() {
        WindowedUpdate desk;
        QVERIFY(desk.window && desk.window->isVisible());
        QCOMPARE(desk.window->windowTitle(), QStringLiteral("Pinmora - version check"));
        QVERIFY(!desk.named<QPushButton>(*desk.window, "Download")->isEnabled());
        desk.download();
        QCOMPARE(desk.named<QLabel>(*desk.window, "Outcome")->text(),
                 QStringLiteral("Pinmora update available"));
        QTRY_VERIFY(fs::exists(desk.file));
        QTRY_VERIFY(!desk.sheet());
        QCOMPARE(fs::file_size(desk.file), std::uintmax_t{11});
        QVERIFY(desk.window->isVisible());
        desk.window->close();
        QVERIFY(!desk.window->isVisible());
        desk.actions[ActionName::CheckVersion]->trigger();
        QVERIFY(desk.window->isVisible());
    }

    void aDownloadIsStopped() {
        WindowedUpdate desk;
        desk.sendsAll = false;
        desk.download();
        QTRY_COMPARE(desk.service.requests.size(), std::size_t{2});
        auto *const state = desk.named<QLabel>(*desk.sheet(), "How far it has come");
        QTRY_COMPARE(state->text(), QStringLiteral("Receiving data.... (0 kb of 1 kb)"));
        desk.named<QPushButton>(*desk.sheet(), "Stop")->click();
        QVERIFY(!desk.sheet() && !fs::exists(desk.file));

        desk.service.close(); // nobody is there any more
        for (const TestService::Request &request : desk.service.requests) {
            request.close();
        }
        desk.download();
        auto *const error = desk.sheet()->findChildren<QLabel *>().last();
        QTRY_VERIFY(error->isVisible());
        QVERIFY(error->text().startsWith(QStringLiteral("The error reported was: \"")));
        QTest::keyClick(desk.sheet(), Qt::Key_Escape);
        QVERIFY(!desk.sheet() && desk.window->isVisible());
    }

    void theCheckBox() {
        const WindowedUpdate desk;
        desk.named<QCheckBox>(*desk.window, "Do not check at start")->click();
        QCOMPARE(desk.defaults.text("versionCheck"), std::optional<std::string>("1"));
        QTest::keyClick(desk.window.get(), Qt::Key_Escape);
        QVERIFY(!desk.window->isVisible());
    }

    void links() {
        WindowedUpdate desk;
        std::string opened;
        const Connection opening = desk.workspace.addressOpened.connect(
            [&](const std::string &address) { opened = address; });
        desk.actions[ActionName::WebSite]->trigger();
        QCOMPARE(opened, std::string("https://velder.test/"));
        QVERIFY(!desk.actions[ActionName::ReportProblem]->isVisible());
        desk.workspace.openAddress("file:///etc/passwd");
        QCOMPARE(opened, std::string("https://velder.test/"));
        desk.workspace.openAddress("MailTo:help@velder.test");
        QCOMPARE(opened, std::string("MailTo:help@velder.test"));
    }
};

QTEST_MAIN(UpdateWindowTest)
#include "update_window_test.moc"
