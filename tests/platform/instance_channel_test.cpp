#include "platform/instance_channel.h"

#include <QCoreApplication>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>

#include <future>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include "platform/file_descriptor.h"
#include "platform/instance_message.h"
#include "rows.h"

using namespace pinmora;
using namespace std::chrono_literals;
using Paths = std::vector<std::string>;

namespace {

/// Hands over from another thread while the event loop of this one turns.
bool handOver(const std::string &name, const Paths &paths,
              std::chrono::milliseconds timeout = 10s) {
    auto result = std::async(std::launch::async,
                             [&] { return InstanceChannel::handOver(name, paths, timeout); });
    while (result.wait_for(0s) != std::future_status::ready) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return result.get();
}

QString socketOf(const std::string &name) {
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QLatin1Char('/') +
           QString::fromStdString(name);
}

} // namespace

/// Two programs that meet, here on two threads of one.
class InstanceChannelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(runtime_.isValid()); // made for its owner alone
        qputenv("XDG_RUNTIME_DIR", runtime_.path().toLocal8Bit());
    }

    void pathsArrive_data() {
        const auto row = test::rows<Paths>();
        row("none: come to the front", {});
        row("bytes as they are", Paths{"/a b/\xE9t\xE9.jpg", "/line\nfeed.gpx", "/"});
        Paths many;
        for (int i = 0; i < 20'000; ++i) {
            many.push_back("/photos/of/a/long/journey/IMG_" + std::to_string(i) + ".JPG");
        }
        row("a whole journey", many);
    }

    void pathsArrive() {
        const auto [paths] = test::fetch<Paths>();
        std::vector<Paths> received;
        InstanceChannel channel("one", [&](const Paths &came) { received.push_back(came); });
        QVERIFY(!InstanceChannel::handOver("one", paths, 1s)); // nobody listens yet
        QVERIFY(channel.listen());
        QVERIFY(handOver("one", paths));
        QTRY_COMPARE(received.size(), 1U);
        QCOMPARE(received[0], paths);
        QVERIFY(handOver("one", {"/again"}));
        QTRY_COMPARE(received.size(), 2U);
    }

    void messageComesInPieces() {
        std::vector<Paths> received;
        InstanceChannel channel("slow", [&](const Paths &came) { received.push_back(came); });
        QVERIFY(channel.listen());
        QLocalSocket socket;
        socket.connectToServer(socketOf("slow"));
        QVERIFY(socket.waitForConnected(5000));
        const std::string message = instanceMessage({"/a/b", "/c"}).value();
        for (const char byte : message) {
            QVERIFY(received.empty());
            socket.write(&byte, 1);
            socket.flush();
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE(received.size(), 1U);
        QCOMPARE(received[0], (Paths{"/a/b", "/c"}));
        QTRY_COMPARE(socket.state(), QLocalSocket::UnconnectedState);
        QCOMPARE(socket.readAll(), "+");
    }

    void busyProgramConfirms() {
        std::vector<Paths> received;
        InstanceChannel channel("busy", [&](const Paths &came) { received.push_back(came); });
        QVERIFY(channel.listen());
        // This thread's event loop stands still.
        QVERIFY(InstanceChannel::handOver("busy", {"/a"}, 10s));
        QVERIFY(InstanceChannel::handOver("busy", {"/b"}, 10s));
        QVERIFY(received.empty());
        QTRY_COMPARE(received, (std::vector<Paths>{{"/a"}, {"/b"}}));
    }

    void whatComesTooLateIsReturned() {
        std::vector<Paths> received;
        InstanceChannel channel("late", [&](const Paths &came) { received.push_back(came); });
        QVERIFY(channel.listen());
        QVERIFY(InstanceChannel::handOver("late", {"/a"}, 10s));
        QCOMPARE(channel.stop(), std::vector<Paths>{{"/a"}});
        QVERIFY(!InstanceChannel::handOver("late", {}, 1s));
        QCoreApplication::processEvents();
        QVERIFY(received.empty());
        InstanceChannel next("late", [](const Paths &) {});
        QCOMPARE(next.start({}, 100ms), InstanceChannel::Start::Stuck); // until that one is gone
    }

    /// Another starts between the lock of the first and its listening.
    void startsMeet_data() {
        const auto row = test::rows<bool>();
        row("the first comes up", true);
        row("the first gives up", false);
    }

    void startsMeet() {
        const auto [firstListens] = test::fetch<bool>();
        using Start = InstanceChannel::Start;
        std::vector<Paths> received;
        auto first = std::make_unique<InstanceChannel>(
            "meet", [&](const Paths &came) { received.push_back(came); });
        QCOMPARE(first->start({}, 10s), Start::Runs);
        InstanceChannel second("meet", [](const Paths &) {});
        QCOMPARE(second.start({"/a"}, 100ms), Start::Stuck);
        auto result = std::async(std::launch::async, [&] { return second.start({"/a"}, 10s); });
        if (firstListens) {
            QVERIFY(first->listen());
            QCOMPARE(result.get(), Start::HandedOver);
            QTRY_COMPARE(received, std::vector<Paths>{{"/a"}});
            QVERIFY(!second.listen());
        } else {
            first.reset();
            QCOMPARE(result.get(), Start::Runs);
            QVERIFY(second.listen());
        }
    }

    void onlyOneRuns() {
        int first = 0;
        auto running = std::make_unique<InstanceChannel>("two", [&](const Paths &) { ++first; });
        InstanceChannel other("two", [](const Paths &) { QFAIL("it does not run"); });
        InstanceChannel elsewhere("three", [](const Paths &) {});
        QVERIFY(running->listen());
        QVERIFY(!other.listen());
        QVERIFY(elsewhere.listen());
        QVERIFY(handOver("two", {}));
        QTRY_COMPARE(first, 1);
        running.reset();
        QVERIFY(!InstanceChannel::handOver("two", {}, 1s));
        QVERIFY(other.listen());
    }

    void leftoverOfACrashIsTakenOver() {
        const QByteArray path = QFile::encodeName(socketOf("crashed"));
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        QVERIFY(static_cast<std::size_t>(path.size()) < sizeof address.sun_path);
        std::copy(path.begin(), path.end(), address.sun_path);
        const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
        QCOMPARE(::bind(socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address),
                 0); // nobody will listen there
        InstanceChannel channel("crashed", [](const Paths &) {});
        QVERIFY(!InstanceChannel::handOver("crashed", {}, 1s));
        QVERIFY(channel.listen());
        QVERIFY(handOver("crashed", {}));
        struct stat status {};
        QCOMPARE(::stat(path.constData(), &status), 0);
        QCOMPARE(status.st_mode & 0077U, 0U); // nobody else may connect
    }

    void strangersAreRefused_data() {
        const auto row = test::rows<QByteArray>();
        row("another protocol", "GET / HTTP/1.1\r\n\r\n");
        row("a relative path", QByteArray("pinmora-open-1 00000005a.jp\0", 28));
        row("an unfinished path", "pinmora-open-1 00000003/ab");
        row("more than it says", QByteArray("pinmora-open-1 00000002/\0more", 29));
        row("too long", "pinmora-open-1 7fffffff/");
        row("no length", "pinmora-open-1 -0000001/");
    }

    void strangersAreRefused() {
        const auto [bytes] = test::fetch<QByteArray>();
        std::vector<Paths> received;
        InstanceChannel channel("wary", [&](const Paths &came) { received.push_back(came); });
        QVERIFY(channel.listen());
        QLocalSocket socket;
        socket.connectToServer(socketOf("wary"));
        QVERIFY(socket.waitForConnected(5000));
        socket.write(bytes);
        socket.flush();
        QTRY_COMPARE(socket.state(), QLocalSocket::UnconnectedState);
        QVERIFY(handOver("wary", {"/in order"}));
        QTRY_COMPARE(received.size(), 1U);
        QCOMPARE(received[0], Paths{"/in order"});
    }

    void whatCannotBeHandedOver() {
        QVERIFY(!instanceMessage({"photo.jpg"}));
        QVERIFY(!instanceMessage({""}));
        QVERIFY(!instanceMessage({std::string("/a\0b", 4)}));
        QVERIFY(!instanceMessage({std::string(5U << 20U, '/')}));
    }

    void silenceEndsInTime() {
        QLocalServer deaf; // accepts, and never answers
        QVERIFY(deaf.listen(socketOf("deaf")));
        const auto start = std::chrono::steady_clock::now();
        QVERIFY(!handOver("deaf", {}, 200ms));
        QVERIFY(std::chrono::steady_clock::now() - start < 5s);
    }

    void namesDiffer() {
        const std::string name = InstanceChannel::nameFor("/home/a/library");
        QCOMPARE(InstanceChannel::nameFor("/home/a/b/../library/"), name);
        QVERIFY(InstanceChannel::nameFor("/home/b/library") != name);
        QVERIFY(name.find('/') == std::string::npos && name.size() < 40);
    }

private:
    QTemporaryDir runtime_;
};

QTEST_GUILESS_MAIN(InstanceChannelTest)

#include "instance_channel_test.moc"
