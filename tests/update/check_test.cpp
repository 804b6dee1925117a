#include "update/update_desk.h"

#include "update/check_date.h"

#include <QRegularExpression>
#include <plist/plist.h>

using namespace pinmora;
using namespace std::chrono_literals;
using Behaviour = std::function<void(const TestService::Request &)>;

Q_DECLARE_METATYPE(Behaviour)

namespace {

QByteArray binaryList(const char *version) {
    const plist_t top = plist_new_dict();
    plist_dict_set_item(top, "productVersion", plist_new_string(version));
    const plist_t array = plist_new_array();
    plist_array_append_item(array, plist_new_string("http://velder.test/p.zip"));
    plist_dict_set_item(top, "productDownloadURL", array);
    char *bytes = nullptr;
    uint32_t size = 0;
    plist_to_bin(top, &bytes, &size);
    const QByteArray result(bytes, static_cast<qsizetype>(size));
    plist_to_bin_free(bytes);
    plist_free(top);
    return result;
}

const QString failed = QStringLiteral("version check failed|Pinmora version check failed");

/// "WHAT THE TITLE SAYS|HEADING|MESSAGE", and "|download" where that is offered.
QString shown(const updateTest &update) {
    QString title = QString::fromStdString(update.theWindow.title.get());
    const QString start = QStringLiteral("Pinmora - ");
    const QString text = (title.startsWith(start) ? title.mid(start.size()) : title) + u'|' +
                         QString::fromStdString(update.theMessageHeader.text.get()) + u'|' +
                         QString::fromStdString(update.theMessage.text.get());
    return update.downloadButton.enabled.get() ? text + QStringLiteral("|download") : text;
}

QString available(const char *version, bool canBeFetched = true) {
    return QStringLiteral("version %1 now available|Pinmora update available|Version %1 is now "
                          "available for download from Velder.  To download just click on the "
                          "download button below.")
               .arg(QLatin1String(version)) +
           (canBeFetched ? QStringLiteral("|download") : QString());
}

const QString upToDate = QStringLiteral(
    "version check complete|Pinmora is up-to-date|You are using version 2.1, which is the most "
    "up-to-date version of Pinmora.");

QString badStatus(int status) {
    return failed + QStringLiteral("|The error reported was!  Sorry about that.  The error is a  "
                                   "\"%1\", whatever that means!  Please try again later or "
                                   "report the error to Velder.")
                        .arg(status);
}

} // namespace

class CheckTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { UpdateDesk::clear(); }

    void answers_data() {
        QTest::addColumn<Behaviour>("behaviour");
        QTest::addColumn<QString>("menu"); ///< what a person who asked is shown
        QTest::addColumn<bool>("atStart"); ///< whether it is shown to one who has not
        const auto row = [](const char *name, const QString &menu, bool atStart,
                            const Behaviour &behaviour) {
            QTest::newRow(name) << behaviour << menu << atStart;
        };
        const auto listRow = [&](const char *name, const QByteArray &body, const QString &menu,
                                 bool atStart) {
            row(name, menu, atStart, [body](const TestService::Request &request) {
                request.send(TestService::whole(body));
            });
        };
        using Desk = UpdateDesk;
        const QByteArray address =
            Desk::addresses("<array><string>https://velder.test/p.zip</string></array>");
        const auto version = [&](const char *number) {
            return Desk::list(Desk::version(number) + address);
        };
        listRow("equal", version("2.1"), upToDate, false);
        listRow("equal, binary", binaryList("2.1"), upToDate, false);
        listRow("newer", version("2.2"), available("2.2"), true);
        listRow("older, binary", binaryList("2.0"), available("2.0"), true);
        listRow("text decides", version("2.10"), available("2.10"), true);
        listRow("no version", Desk::list(address), available(""), true);
        const auto unfit = [&](const char *name, const QByteArray &entries) {
            listRow(name, Desk::list(Desk::version("3") + entries), available("3", false), true);
        };
        unfit("no address", {});
        unfit("no list of addresses", Desk::addresses("<string>http://velder.test/p</string>"));
        unfit("an empty list of addresses", Desk::addresses("<array/>"));
        unfit("a number for an address", Desk::addresses("<array><integer>1</integer></array>"));
        unfit("a file for an address",
              Desk::addresses("<array><string>file:///etc/passwd</string></array>"));
        const QString nothing = QStringLiteral("version check||");
        listRow("no property list", "<html><body>Sign in</body></html>", nothing, false);
        listRow("a list of another kind", "<plist><array/></plist>", nothing, false);
        listRow("nothing at all", "", nothing, false);
        for (const int status : {204, 404, 503}) {
            row(QByteArray::number(status), badStatus(status), false,
                [=, body = version("3")](const TestService::Request &request) {
                    request.send(TestService::whole(status == 204 ? QByteArray() : body,
                                                    QByteArray::number(status) + " Sorry"));
                });
        }
        const QByteArray newer = TestService::whole(version("2.2"));
        row("moved", available("2.2"), true, [=](const TestService::Request &request) {
            request.head.contains("/version.plist") ? Desk::redirect(request, "/elsewhere")
                                                    : request.send(newer);
        });
        const auto error = [&](const char *text) {
            return failed + QStringLiteral("|The error reported was: \"") +
                   QString::fromLatin1(text) + QStringLiteral("\".");
        };
        row("moved to a file", error("*"), false, [](const TestService::Request &request) {
            Desk::redirect(request, "file:///etc/passwd");
        });
        row("cut off", error("*"), false, [=](const TestService::Request &request) {
            request.send(newer.chopped(5));
            request.close();
        });
        row("without an answer", error("The request timed out."), false,
            [](const TestService::Request &) {});
        row("stuck in its middle", error("The request timed out."), false,
            [=](const TestService::Request &request) { request.send(newer.chopped(5)); });
        row("without end", error("The version information is longer than a megabyte."), false,
            [](const TestService::Request &request) {
                request.send("HTTP/1.1 200 OK\r\n\r\n" + QByteArray(2 << 20, ' '));
            });
    }

    void answers() {
        QFETCH(Behaviour, behaviour);
        QFETCH(QString, menu);
        QFETCH(bool, atStart);
        const bool waits = menu.contains(QStringLiteral("timed out"));
        UpdateDesk asked(waits ? 300ms : updateTimeout);
        asked.service.behave = behaviour;
        asked.update.checkNewVersion(asked.program());
        QVERIFY(asked.update.theWindow.visible.get() && asked.update.progIndic.animating.get());
        QCOMPARE(asked.update.progText.text.get(), std::string("Checking..."));
        QVERIFY(asked.ends());
        const bool stays = menu.endsWith(QStringLiteral("||"));
        QVERIFY2(QRegularExpression::fromWildcard(menu).match(shown(asked.update)).hasMatch(),
                 qPrintable(shown(asked.update)));
        QCOMPARE(!asked.update.progText.text.get().empty(), stays);
        QCOMPARE(asked.update.progIndic.visible.get(), stays);
        QCOMPARE(asked.update.progIndic.animating.get(), stays);

        UpdateDesk started(waits ? 300ms : updateTimeout);
        started.defaults.setText("versionCheckDate", "2001-01-01T00:00:00Z");
        started.service.behave = behaviour;
        started.update.newVersion(started.program());
        QVERIFY(started.ends());
        QVERIFY(!started.service.requests.empty());
        QCOMPARE(started.update.theWindow.visible.get(), atStart);
        if (atStart) {
            QCOMPARE(shown(started.update), menu);
        }
    }

    void theRequest() {
        UpdateDesk desk;
        desk.update.checkNewVersion(desk.program());
        QTRY_COMPARE(desk.service.requests.size(), std::size_t{1});
        const TestService::Request &request = desk.service.requests.front();
        QVERIFY(request.head.startsWith("GET /version.plist HTTP/1.1\r\n"));
        QCOMPARE(request.header("Cache-Control"), QByteArray("no-cache"));
        QVERIFY(!request.head.contains("Cookie"));
        desk.update.closeButton.press();
        QVERIFY(!desk.update.theWindow.visible.get() && !desk.update.isChecking());
        QTRY_COMPARE(request.from ? request.from->state() : QAbstractSocket::UnconnectedState,
                     QAbstractSocket::UnconnectedState);
    }

    void onceADay_data() {
        QTest::addColumn<QString>("date"); ///< that of the next check
        QTest::addColumn<bool>("menu");
        QTest::addColumn<bool>("asks");
        QTest::addColumn<bool>("moves");
        const QString past = QStringLiteral("2001-01-01T00:00:00Z");
        const QString future = QStringLiteral("2999-01-01T00:00:00Z");
        QTest::newRow("due") << past << false << true << true;
        QTest::newRow("for the first time") << QString() << false << true << true;
        QTest::newRow("unreadable") << QStringLiteral("soon") << false << true << true;
        QTest::newRow("not due") << future << false << false << false;
        QTest::newRow("due, from the menu") << past << true << true << true;
        QTest::newRow("not due, from the menu") << future << true << true << false;
    }

    void onceADay() {
        QFETCH(QString, date);
        QFETCH(bool, menu);
        UpdateDesk desk;
        desk.service.behave = [](const TestService::Request &request) {
            request.send(TestService::whole(UpdateDesk::list(UpdateDesk::version("2.1"))));
        };
        if (!date.isNull()) {
            desk.defaults.setText("versionCheckDate", date.toStdString());
        }
        const auto before = std::chrono::system_clock::now() - 1s;
        menu ? desk.update.checkNewVersion(desk.program()) : desk.update.newVersion(desk.program());
        QFETCH(bool, asks);
        QFETCH(bool, moves);
        QCOMPARE(desk.update.isChecking(), asks);
        QVERIFY(desk.ends());
        QCOMPARE(desk.service.requests.size(), asks ? std::size_t{1} : std::size_t{0});
        const QString next = desk.setting("versionCheckDate");
        QCOMPARE(next != date, moves);
        if (moves) {
            const auto moved = checkDateFrom(next.toStdString());
            QVERIFY(moved && *moved >= before + 24h);
            QVERIFY(*moved <= std::chrono::system_clock::now() + 24h);
        }
    }

    void withoutAnAddress() {
        UpdateDesk desk;
        const ProgDict none{{"progName", "Pinmora"}, {"progPlist", ""}};
        desk.update.newVersion(none);
        QVERIFY(!desk.update.theWindow.visible.get());
        QCOMPARE(desk.setting("versionCheckDate"), QStringLiteral("-"));
        desk.update.checkNewVersion(none);
        QVERIFY(shown(desk.update).startsWith(failed + QStringLiteral("|No address")));
        desk.update.checkNewVersion({{"progName", "Pinmora"}, {"progPlist", "file:///etc/passwd"}});
        QVERIFY(shown(desk.update).startsWith(failed + QStringLiteral("|The error reported was")));
        QVERIFY(!desk.update.progIndic.visible.get() && !desk.update.isChecking());
    }

    /// What the first server says after that is not heard.
    void theLatestCheckCounts() {
        UpdateDesk desk;
        desk.update.newVersion(desk.program("/first"));
        QTRY_COMPARE(desk.service.requests.size(), std::size_t{1});
        const QByteArray reply = TestService::whole(UpdateDesk::list(UpdateDesk::version("9")));
        desk.service.requests.front().send(reply.left(60));
        desk.update.checkNewVersion(desk.program("/second"));
        QTRY_COMPARE(desk.service.requests.size(), std::size_t{2});
        desk.service.requests.front().send(reply.mid(60));
        desk.service.requests.back().send(
            TestService::whole(UpdateDesk::list(UpdateDesk::version("2.1"))));
        QVERIFY(desk.ends());
        QCOMPARE(shown(desk.update), upToDate);
    }

    void theCheckBox() {
        UpdateDesk desk;
        QCOMPARE(desk.setting("versionCheck"), QStringLiteral("0"));
        QVERIFY(!desk.update.noCheck.on.get());
        desk.update.noCheck.on.set(true);
        QCOMPARE(desk.setting("versionCheck"), QStringLiteral("1"));
        const UpdateDesk next;
        QVERIFY(next.update.noCheck.on.get());
        desk.update.noCheck.on.set(false);
        QCOMPARE(desk.setting("versionCheck"), QStringLiteral("0"));
    }
};

QTEST_GUILESS_MAIN(CheckTest)
#include "check_test.moc"
