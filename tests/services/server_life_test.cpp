#include "services/local_server.h"

#include "services/server_desk.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTest>

#include <atomic>
#include <thread>

using namespace pinmora;
using namespace pinmora::test;

// How the server stands being used by many, and being ended.
class ServerLifeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void addressStays() {
        LocalServer server({});
        const std::string address = server.address();
        QVERIFY(address.starts_with("http://127.0.0.1:"));
        QCOMPARE(server.address(), address);
    }

    void twoServers() {
        LocalServer one({.tileServer = "https://one.example/{z}"});
        LocalServer two({.tileServer = "https://two.example/{z}"});
        QVERIFY(portOf(one) != portOf(two));
        QVERIFY(clientOf(one).Get("/maps/index3.php")->body.find("one.example") !=
                std::string::npos);
        QVERIFY(clientOf(two).Get("/maps/index3.php")->body.find("two.example") !=
                std::string::npos);
    }

    void endedBeforeItBegins() {
        for (int i = 0; i < 50; ++i) {
            LocalServer unused({});
            LocalServer started({});
            QVERIFY(!started.address().empty());
        }
    }

    void manyRequestsOnOneConnection() {
        LocalServer server({});
        const RawConnection connection(portOf(server));
        const QByteArray host = "Host: localhost:" + QByteArray::number(portOf(server)) + "\r\n";
        const QByteArray body = QByteArray::fromStdString(envelope("8.5", "47"));
        const QByteArray request = "POST /TerraService2.asmx HTTP/1.1\r\n" + host +
                                   "Content-Length: " + QByteArray::number(body.size()) +
                                   "\r\n\r\n" + body;
        connection.send(request.repeated(300) + "GET /maps/ HTTP/1.1\r\nConnection: close\r\n" +
                        host + "\r\n");
        const QByteArray answers = connection.readToEnd();
        QCOMPARE(answers.count("HTTP/1.1 200 OK"), 300);
        QCOMPARE(answers.count("HTTP/1.1 404"), 1);
    }

    // As the program's own client asks.
    void manyRequestsAtOnce() {
        LocalServer server({});
        QNetworkAccessManager manager;
        QNetworkRequest request(QUrl(QString::fromStdString(server.address() + placePath)));
        request.setHeader(QNetworkRequest::ContentTypeHeader, QString::fromUtf8(xml));
        QEventLoop loop;
        int waiting = 300;
        int answered = 0;
        for (int i = 0; i < 300; ++i) {
            QNetworkReply *const reply = manager.post(
                request, QByteArray::fromStdString(envelope(std::to_string(i % 180), "10")));
            QObject::connect(reply, &QNetworkReply::finished, &loop, [&, reply] {
                answered += reply->readAll().contains("PlaceResult>") ? 1 : 0;
                reply->deleteLater();
                if (--waiting == 0) {
                    loop.quit();
                }
            });
        }
        loop.exec();
        QCOMPARE(answered, 300);
    }

    // Connections that are open and silent keep no other one waiting.
    void manyConnections() {
        LocalServer server({});
        const auto start = std::chrono::steady_clock::now();
        std::vector<std::unique_ptr<RawConnection>> silent;
        for (int i = 0; i < 100; ++i) {
            silent.push_back(std::make_unique<RawConnection>(portOf(server)));
            silent.back()->send(i % 2 == 0 ? "" : "GET /maps/leaflet.css HT");
        }
        std::atomic<int> answered = 0;
        std::vector<std::thread> threads;
        for (int i = 0; i < 20; ++i) {
            threads.emplace_back([&server, &answered] {
                httplib::Client client = clientOf(server);
                for (int request = 0; request < 5; ++request) {
                    const auto answer = client.Post(placePath, envelope("8.5", "47"), xml);
                    answered += answer && answer->status == 200 ? 1 : 0;
                }
            });
        }
        for (std::thread &thread : threads) {
            thread.join();
        }
        QCOMPARE(answered.load(), 100);
        // Nor are any lost and tried again, which takes seconds.
        QVERIFY(std::chrono::steady_clock::now() - start < std::chrono::seconds(6));
    }

    // Whatever its clients are at: the program ends when it is told to.
    void endedWhileItIsUsed() {
        auto server = std::make_optional<LocalServer>(LocalServerOptions{});
        const int port = portOf(*server);
        const RawConnection silent(port);
        const RawConnection half(port);
        half.send("POST /TerraService2.asmx HTTP/1.1\r\nHost: localhost:" +
                  QByteArray::number(port) + "\r\nContent-Length: 100\r\n\r\n<Envelope>");
        const RawConnection deaf(port); // asks for megabytes, and takes none
        deaf.send(("GET /maps/world.json HTTP/1.1\r\nHost: localhost:" + QByteArray::number(port) +
                   "\r\n\r\n")
                      .repeated(20));
        std::atomic<bool> ended = false;
        std::atomic<int> answered = 0;
        std::vector<std::thread> threads;
        for (int i = 0; i < 4; ++i) {
            threads.emplace_back([port, &ended, &answered] {
                httplib::Client client("127.0.0.1", port);
                client.set_keep_alive(true);
                while (!ended) {
                    const auto answer = client.Post(placePath, envelope("8.5", "47"), xml);
                    answered += answer && answer->status == 200 ? 1 : 0;
                }
            });
        }
        const bool used = QTest::qWaitFor([&] { return answered > 50; }, 30'000);
        const auto start = std::chrono::steady_clock::now();
        server.reset();
        const auto taken = std::chrono::steady_clock::now() - start;
        ended = true;
        for (std::thread &thread : threads) {
            thread.join();
        }
        QVERIFY(used);
        QVERIFY2(taken < std::chrono::seconds(3),
                 QByteArray::number(std::chrono::duration<double>(taken).count()));
        QVERIFY(!silent.readToEnd().endsWith("(open)"));
        QVERIFY(!RawConnection(port).isConnected());
    }
};

QTEST_GUILESS_MAIN(ServerLifeTest)
#include "server_life_test.moc"
