#include "services/local_server.h"

#include "rows.h"
#include "services/server_desk.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace pinmora;
using namespace pinmora::test;
using namespace Qt::StringLiterals;

static constexpr const char *ask = "POST /TerraService2.asmx";

class ServerTest : public QObject {
    Q_OBJECT

    LocalServer server_{{.tileServer = "https://{s}.t.example/{z}/\"><script>'{x}&{y}.png"}};

    QByteArray host() { return "Host: 127.0.0.1:" + QByteArray::number(portOf(server_)) + "\r\n"; }

    /// The body of an answer to a bare request, which must say that the connection ends.
    QByteArray raw(const QByteArray &request) {
        const RawConnection connection(portOf(server_));
        connection.send(request);
        return connection.readToEnd();
    }

    QJsonArray json(const std::string &path) {
        const auto answer = clientOf(server_).Get(path);
        return answer && answer->status == 200
                   ? QJsonDocument::fromJson(QByteArray::fromStdString(answer->body)).array()
                   : QJsonArray{u"no answer"_s};
    }

private Q_SLOTS:
    void page() {
        for (const char *path :
             {"/maps/index3.php?w=434&h=400", "/maps/index3.php", "/maps/index3.php?q=%00%ff&&="}) {
            const auto answer = clientOf(server_).Get(path);
            QVERIFY(answer);
            QCOMPARE(answer->status, 200);
            QCOMPARE(answer->get_header_value("Content-Type"), "text/html; charset=utf-8");
            QVERIFY(answer->get_header_value("Content-Security-Policy")
                        .find("img-src 'self' data: https://*.t.example;") != std::string::npos);
            QVERIFY(answer->body.find("\"https://{s}.t.example/{z}/&quot;&gt;&lt;script&gt;"
                                      "&#39;{x}&amp;{y}.png\"") != std::string::npos);
            QVERIFY(answer->body.find("@TILE_SERVER@") == std::string::npos);
        }
    }

    void noTiles() {
        LocalServer server({});
        static_cast<void>(clientOf(server).Get("/maps/index3.php")); // changed while it runs
        server.setTileServer("none");
        const auto answer = clientOf(server).Get("/maps/index3.php");
        QVERIFY(answer && answer->body.find("@TILE_SERVER@") == std::string::npos);
        QVERIFY(answer->body.find("openstreetmap") == std::string::npos);
        QVERIFY(answer->get_header_value("Content-Security-Policy").find("img-src 'self' data:;") !=
                std::string::npos);
    }

    void files_data() {
        const auto row = test::rows<QByteArray, QByteArray>();
        row("script", "/maps/leaflet.js", "text/javascript; charset=utf-8");
        row("style", "/maps/leaflet.css", "text/css; charset=utf-8");
        row("world", "/maps/world.json", "application/json");
    }
    void files() {
        const auto [path, type] = test::fetch<QByteArray, QByteArray>();
        httplib::Client client = clientOf(server_);
        const auto answer = client.Get(path.toStdString(), {{"Accept-Encoding", "gzip, br"}});
        QVERIFY(answer);
        QCOMPARE(answer->status, 200);
        QCOMPARE(answer->get_header_value("Content-Type"), type.toStdString());
        QCOMPARE(answer->get_header_value("X-Content-Type-Options"), "nosniff");
        QCOMPARE(answer->get_header_value("Cache-Control"), "no-store");
        QVERIFY(!answer->has_header("Content-Encoding"));
        QVERIFY(answer->body.size() > 5'000);
        const auto head = client.Head(path.toStdString());
        QVERIFY(head);
        QCOMPARE(head->get_header_value("Content-Length"), std::to_string(answer->body.size()));
        QVERIFY(head->body.empty());
    }

    void refused_data() {
        // fields: "": the right host
        const auto row = test::rows<QByteArray, QByteArray, int>();
        for (const QByteArray path :
             {"/", "/maps/", "/maps/index.html", "/maps/../../etc/passwd",
              "/maps/%2e%2e/%2e%2e/etc/passwd", "/maps/..%2f..%2fetc%2fpasswd",
              "/maps/../maps/leaflet.js", "//maps/leaflet.js", "/maps/:/places/gazetteer.tsv.gz",
              "/maps/..\\leaflet.js", "/maps/leaflet.js%00.png", "/maps/LEAFLET.JS",
              "/maps/{8000}"}) {
            row(path.toStdString(), "GET " + path, "", 404);
        }
        row("too long", "GET /maps/{9000}", "", 414);
        row("delete", "DELETE /maps/leaflet.js", "", 405);
        row("options", "OPTIONS /maps/leaflet.js", "", 405);
        row("put", "PUT /maps/x.js", "Content-Length: 3\r\n", 404);
        row("post", "POST /maps/leaflet.js", "Content-Length: 3\r\n", 405);
        row("get the operation", "GET /TerraService2.asmx", "", 405);
        row("no length", ask, "", 411);
        row("chunked", ask, "Transfer-Encoding: chunked\r\n", 411);
        row("odd length", ask, "Content-Length: 1x\r\n", 411);
        row("negative length", ask, "Content-Length: -1\r\n", 411);
        row("large", ask, "Content-Length: 70000\r\n", 413);
        row("endless", ask, "Content-Length: 99999999999999999999\r\n", 413);
        row("packed", ask, "Content-Length: 9\r\nContent-Encoding: gzip\r\n", 415);
        row("box without end", "GET /maps/names?south=1&west=2&north=3&east={400}", "", 400);
        row("box without sides", "GET /maps/names?south=1&west=2&north=x&east=3", "", 400);
    }
    void refused() {
        auto [start, fields, status] = test::fetch<QByteArray, QByteArray, int>();
        start.replace("{8000}", QByteArray(8'000, 'a'))
            .replace("{9000}", QByteArray(9'000, 'a'))
            .replace("{400}", QByteArray(400, '9'));
        const QByteArray answer =
            raw(start + " HTTP/1.1\r\n" + host() + fields + "Connection: close\r\n\r\n");
        QVERIFY2(answer.startsWith("HTTP/1.1 " + QByteArray::number(status)), answer.left(200));
        QVERIFY(answer.endsWith("\r\n\r\n"));
    }

    // A web site's name may lead to 127.0.0.1; it does not get to the server by that.
    void hosts_data() {
        const auto row = test::rows<QByteArray, int>();
        const QByteArray port = ":" + QByteArray::number(portOf(server_));
        row("number", QByteArray("127.0.0.1" + port), 200);
        row("name", QByteArray("localhost" + port), 200);
        row("foreign", QByteArray("rebound.example" + port), 403);
        row("beginning", QByteArray("localhost.example" + port), 403);
        row("no port", "127.0.0.1", 403);
        row("other port", "127.0.0.1:1", 403);
        row("other loopback", QByteArray("127.0.0.2" + port), 403);
        row("none", {}, 403);
    }
    void hosts() {
        const auto [host, status] = test::fetch<QByteArray, int>();
        const QByteArray field = host.isEmpty() ? "" : "Host: " + host + "\r\n";
        const auto expected = "HTTP/1.1 " + QByteArray::number(status);
        const QByteArray end = field + "Connection: close\r\n";
        QVERIFY(raw("GET /maps/leaflet.css HTTP/1.1\r\n" + end + "\r\n").startsWith(expected));
        const QByteArray body = QByteArray::fromStdString(envelope("8.5", "47"));
        QVERIFY(raw("POST /TerraService2.asmx HTTP/1.1\r\n" + end +
                    "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body)
                    .startsWith(expected));
    }

    // What stands in a body that is not read is not taken for the next request.
    void bodiesAreNoRequests_data() {
        const auto row = test::rows<QByteArray>();
        row("get", "GET /maps/leaflet.css");
        row("post elsewhere", "POST /maps/leaflet.css");
        row("large", ask);
        row("method", "BREW /maps/leaflet.css");
    }
    void bodiesAreNoRequests() {
        const auto [start] = test::fetch<QByteArray>();
        const QByteArray within = "GET /maps/leaflet.css HTTP/1.1\r\n" + host() + "\r\n";
        const QByteArray body = within.repeated(2'000);
        const QByteArray answer = raw(start + " HTTP/1.1\r\n" + host() + "Content-Length: " +
                                      QByteArray::number(body.size()) + "\r\n\r\n" + body);
        QCOMPARE(answer.count("HTTP/1.1 "), 1);
    }

    void notHttp() {
        const QByteArray answer = raw(QByteArray("\x16\x03\x01 TLS?\r\nGET / HTTP/1.1\r\n\r\n"));
        QVERIFY(answer.startsWith("HTTP/1.1 400"));
        QCOMPARE(answer.count("HTTP/1.1 "), 1);
    }

    void endlessRequests_data() {
        const auto row = test::rows<QByteArray, QByteArray>();
        row("fields", "GET /maps/leaflet.css HTTP/1.1\r\n", "X-Field: 0123456789\r\n");
        row("one field", "GET /maps/leaflet.css HTTP/1.1\r\nX: ", "0123456789");
        row("path", "GET /", "0123456789");
    }
    void endlessRequests() {
        const auto [start, repeated] = test::fetch<QByteArray, QByteArray>();
        const QByteArray answer = raw(start + repeated.repeated(100'000));
        QVERIFY2(answer.isEmpty() || answer.startsWith("HTTP/1.1 4"), answer.left(200));
        QVERIFY(answer.count("HTTP/1.1 ") <= 1 && !answer.endsWith("(open)"));
    }

    void nearestPlace() {
        httplib::Client client = clientOf(server_);
        const auto answer = client.Post(placePath, envelope("8.57", "47.36667"), xml);
        QVERIFY(answer);
        QCOMPARE(answer->status, 200);
        QCOMPARE(answer->get_header_value("Content-Type"), std::string(xml));
        QVERIFY(answer->body.starts_with("<?xml"));
        QVERIFY(
            answer->body.find("PlaceResult>Zürich (Kreis 7) / Hirslanden, Zurich, Switzerland</") !=
            std::string::npos);
        QCOMPARE(answer->get_header_value("Pinmora-Place-Distance"), "509");
    }

    void faults() {
        httplib::Client client = clientOf(server_);
        for (const std::string &body : {envelope("8.5", "north"), envelope("8.5", "91"),
                                        std::string("garbage"), std::string(60'000, '<')}) {
            const auto answer = client.Post(placePath, body, xml);
            QVERIFY(answer);
            QCOMPARE(answer->status, 500);
            QVERIFY(answer->body.find("<soap:Fault><faultcode>soap:Client<") != std::string::npos);
            QVERIFY(!answer->has_header("Pinmora-Place-Distance"));
        }
    }

    void search() {
        const QJsonArray found = json("/maps/search?q=paris,%20texas&lat=48.9&lon=2.3&limit=1");
        QCOMPARE(found.size(), 1);
        const QJsonObject place = found[0].toObject();
        QCOMPARE(place[u"name"_s], QJsonValue(u"Paris"_s));
        QCOMPARE(place[u"region"_s], QJsonValue(u"Texas"_s));
        QCOMPARE(place[u"country"_s], QJsonValue(u"United States"_s));
        QCOMPARE(place[u"lat"_s], QJsonValue(33.66094));
        QCOMPARE(place[u"lon"_s], QJsonValue(-95.55551));
        const QJsonArray near = json("/maps/search?q=paris&lat=48.9&lon=2.3");
        QCOMPARE(near.size(), 10);
        QCOMPARE(near[0][u"country"_s], QJsonValue(u"France"_s));
        QCOMPARE(json("/maps/search?q=a&limit=1000").size(), 20);
        QCOMPARE(json("/maps/search?q=a&limit=-1").size(), 1);
        QCOMPARE(json("/maps/search?q=%22%5C%00%ff").size(), 0);
        QCOMPARE(json("/maps/search").size(), 0);
        const std::string huge(400, '9');
        QCOMPARE(json("/maps/search?q=paris&lat=" + huge + "&lon=" + huge),
                 json("/maps/search?q=paris"));
    }

    void names() {
        const QJsonArray found =
            json("/maps/names?south=-19&west=176&north=-15&east=-178&limit=1000");
        QVERIFY(!found.isEmpty() && found.size() <= 200);
        for (const QJsonValue &place : found) {
            const double lon = place[u"lon"_s].toDouble();
            QVERIFY(lon >= 176 || lon <= -178);
            QVERIFY(!place[u"name"_s].toString().isEmpty());
        }
    }
};

QTEST_APPLESS_MAIN(ServerTest)
#include "server_test.moc"
