#include "update/update_desk.h"

#include "update/proposed_name.h"

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <iterator>

using namespace pinmora;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

namespace {

struct DownloadDesk : UpdateDesk {
    explicit DownloadDesk(std::chrono::milliseconds timeout = updateTimeout)
        : UpdateDesk(timeout) {}

    /// Begins to fetch "/new.zip" of the server to the file.
    void begin() {
        update.doDownload.getNewVersion(
            {{"progName", "Pinmora"}, {"progDownload", service.address() + "/new.zip"}},
            file.string());
    }
    bool isAsked() {
        return QTest::qWaitFor([this] { return !service.requests.empty(); });
    }
    bool closes() {
        return QTest::qWaitFor([this] { return !download.theDownloadWindow.isUp(); }, 60'000);
    }
    /// Whether it fails; the sheet stays up.
    bool fails() {
        return QTest::qWaitFor([this] { return !download.theErrorMessage.text.get().empty(); }) &&
               download.theDownloadWindow.isUp() && download.theStateMessage.text.get().empty();
    }
    std::string written() const {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    /// With the temporary ones that a writer may have left.
    auto files() const {
        return std::distance(fs::directory_iterator(folder.path().toStdString()), {});
    }

    QTemporaryDir folder;
    fs::path file = fs::path(folder.path().toStdString()) / "new.zip";
    versionDownload &download = update.doDownload;
};

} // namespace

class DownloadTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { UpdateDesk::clear(); }

    /// From the button to the file.
    void theWholeWay() {
        DownloadDesk desk;
        desk.service.behave = [&](const TestService::Request &request) {
            if (request.head.startsWith("GET /version.plist")) {
                request.send(TestService::whole(UpdateDesk::list(
                    UpdateDesk::version("3") +
                    UpdateDesk::addresses("<array><string>" +
                                          QByteArray::fromStdString(desk.service.address()) +
                                          "/new%20one.zip?from=check</string></array>"))));
            } else {
                request.send(TestService::whole("the program"));
            }
        };
        desk.update.downloadButton.press(); // not yet
        QVERIFY(!desk.update.savePanel.sheet().isUp());
        desk.update.checkNewVersion(desk.program());
        QVERIFY(desk.ends());
        desk.update.downloadButton.press();
        SavePanel &panel = desk.update.savePanel;
        QCOMPARE(panel.sheet().host().get(), &desk.update.theWindow);
        QCOMPARE(panel.nameFieldStringValue, std::string("new one.zip"));
        panel.answer({});
        QVERIFY(!panel.sheet().isUp() && !desk.download.theDownloadWindow.isUp());

        desk.update.downloadButton.press();
        panel.answer(desk.file.string());
        QVERIFY(!panel.sheet().isUp());
        QCOMPARE(desk.download.theDownloadWindow.host().get(), &desk.update.theWindow);
        QCOMPARE(desk.download.theMessageHeader.text.get(), std::string("Downloading Pinmora"));
        QVERIFY(desk.closes());
        QCOMPARE(desk.written(), std::string("the program"));
        QVERIFY(desk.service.requests.back().head.startsWith("GET /new%20one.zip?from=check "));
    }

    void howFarItIs() {
        DownloadDesk desk;
        desk.begin();
        QVERIFY(desk.isAsked());
        const auto text = [&] { return desk.download.theStateMessage.text.get(); };
        const TestService::Request &request = desk.service.requests.front();
        request.send("HTTP/1.1 200 OK\r\nContent-Length: 1048576\r\n\r\n" +
                     QByteArray(512'000, 'x'));
        QTRY_COMPARE(text(), std::string("Receiving data.... (500 kb of 1025 kb)"));
        QCOMPARE(desk.download.downloadIndic.maximum.get(), 1025.0);
        QCOMPARE(desk.download.downloadIndic.value.get(), 500.0);
        request.send(QByteArray(1'048'576 - 512'000, 'y'));
        QVERIFY(desk.closes());
        QCOMPARE(desk.written().size(), std::size_t{1'048'576});
        QVERIFY(text().empty());
    }

    void ofUnknownLength() {
        DownloadDesk desk;
        fs::create_directories(desk.file.parent_path());
        std::ofstream(desk.file) << "the old one";
        desk.begin();
        QVERIFY(desk.isAsked());
        desk.service.requests.front().send("HTTP/1.1 200 OK\r\n\r\n" + QByteArray(3'000, 'x'));
        QTRY_COMPARE(desk.download.theStateMessage.text.get(),
                     std::string("Receiving data.... (2 kb of 1 kb)"));
        QCOMPARE(desk.written(), std::string("the old one"));
        desk.service.requests.front().close();
        QVERIFY(desk.closes());
        QCOMPARE(desk.written(), std::string(3'000, 'x'));
    }

    void aLargeOne() {
        constexpr qint64 size = 100 << 20;
        DownloadDesk desk;
        qint64 sent = 0;
        desk.service.behave = [&sent](const TestService::Request &request) {
            request.send("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(size) +
                         "\r\n\r\n");
            const auto more = [&sent, socket = request.from] {
                if (socket->bytesToWrite() == 0 && sent < size) {
                    sent += socket->write(QByteArray(1 << 20, 'x'));
                }
            };
            connect(request.from, &QTcpSocket::bytesWritten, request.from, more);
        };
        desk.begin();
        QVERIFY(desk.closes());
        QCOMPARE(fs::file_size(desk.file), std::uintmax_t{size});
    }

    void failures_data() {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QString>("error");
        const auto row = [](const char *name, const QByteArray &reply, const char *error) {
            QTest::newRow(name) << reply << QString::fromLatin1(error);
        };
        row("not found", TestService::whole("<p>No such file</p>", "404 Not Found"), "404");
        row("partial", TestService::whole("half", "206 Partial Content"), "206");
        row("cut off", TestService::whole("the program").chopped(4), "Connection closed");
        row("moved to a file",
            "HTTP/1.1 302 Found\r\nLocation: file:///etc/passwd\r\nContent-Length: 0\r\n\r\n", "");
    }

    void failures() {
        QFETCH(QByteArray, reply);
        QFETCH(QString, error);
        DownloadDesk desk;
        desk.service.behave = [&reply](const TestService::Request &request) {
            request.send(reply);
            request.close();
        };
        desk.begin();
        QVERIFY(desk.fails());
        const QString line = QString::fromStdString(desk.download.theErrorMessage.text.get());
        const QString start = QStringLiteral("The error reported was: \"") + error;
        QVERIFY2(line.startsWith(start) && line.endsWith(QStringLiteral("\".")), qPrintable(line));
        QCOMPARE(desk.download.theMessageHeader.text.get(),
                 std::string("Pinmora version check failed"));
        QVERIFY(desk.download.downloadIndic.visible.get());
        QVERIFY(!desk.download.downloadIndic.animating.get());
        QCOMPARE(desk.files(), 0);
        desk.download.stopButton.press();
        QVERIFY(!desk.download.theDownloadWindow.isUp());
        QVERIFY(desk.download.theErrorMessage.text.get().empty());

        desk.service.behave = [](const TestService::Request &request) {
            request.send(TestService::whole("again"));
        };
        desk.begin(); // as if nothing had been
        QVERIFY(desk.closes());
        QCOMPARE(desk.written(), std::string("again"));
    }

    void anEmptyFileIsNone() {
        DownloadDesk desk;
        desk.service.behave = [](const TestService::Request &request) {
            request.send(TestService::whole(""));
        };
        desk.begin();
        QVERIFY(desk.isAsked());
        QTRY_VERIFY(!desk.download.isUnderWay());
        QVERIFY(desk.download.theDownloadWindow.isUp());
        QCOMPARE(desk.files(), 0);
    }

    void stopping() {
        DownloadDesk desk;
        int fronted = 0;
        const Connection counting = desk.update.theWindow.fronted.connect([&] { ++fronted; });
        desk.begin();
        QVERIFY(desk.isAsked());
        const TestService::Request &request = desk.service.requests.front();
        request.send(TestService::whole(QByteArray(5'000, 'x')).chopped(9));
        QTRY_VERIFY(!desk.download.theStateMessage.text.get().empty());
        desk.download.stopButton.press();
        QVERIFY(!desk.download.theDownloadWindow.isUp());
        QVERIFY(desk.download.theStateMessage.text.get().empty());
        QVERIFY(desk.download.theErrorMessage.text.get().empty());
        QCOMPARE(fronted, 1);
        QTRY_VERIFY(!request.from || request.from->state() == QAbstractSocket::UnconnectedState);
        QCOMPARE(desk.files(), 0);
    }

    void whereNothingCanBeWritten() {
        DownloadDesk desk;
        fs::create_directory(desk.file); // a folder is in the way
        desk.service.behave = [](const TestService::Request &request) {
            request.send(TestService::whole("the program"));
        };
        desk.begin();
        QVERIFY(desk.fails());
        QCOMPARE(desk.download.theErrorMessage.text.get(), std::string("Error writing to disk!"));
        QCOMPARE(desk.files(), 1);
    }

    void proposedNames_data() {
        QTest::addColumn<QByteArray>("address");
        QTest::addColumn<QByteArray>("name");
        for (const auto &[address, name] :
             {std::pair("http://a.test/x/p-2.zip", "p-2.zip"),
              std::pair("http://a.test/p.zip?a=/b#c/d", "p.zip"),
              std::pair("http://a.test/K%C3%A4se%20.dmg", "K\xC3\xA4se .dmg"),
              std::pair("http://a.test/..%2F..%2Fetc%2Fpasswd", "passwd"),
              std::pair("http://a.test/a%0A%00b", "ab"), std::pair("http://a.test/x/%2E%2E", ""),
              std::pair("http://a.test", ""), std::pair("http://a.test/x/", "")}) {
            QTest::newRow(address) << QByteArray(address) << QByteArray(name);
        }
    }

    void proposedNames() {
        QFETCH(QByteArray, address);
        QTEST(QByteArray::fromStdString(proposedName(address.toStdString())), "name");
    }
};

QTEST_GUILESS_MAIN(DownloadTest)
#include "download_test.moc"
