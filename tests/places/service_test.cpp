#include "places/place_desk.h"
#include "rows.h"

using namespace pinmora;
using Behaviour = std::function<void(const TestService::Request &)>;

/// The client against services that behave, and against those that do not.
class ServiceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aRequestIsAsTheServiceWantsIt() {
        NotificationCentre notifications;
        LibraryModel model(notifications);
        Context context(model);
        TestService service;
        PlaceNames names(context, [&] {
            return PlaceService{service.address() + "/", "places.test", "urn:test/"};
        });
        image &photo = context.insert<image>();
        photo.updateLatAndLon({"+47.10", "-8.5"});
        names.lookUp(photo);
        QTRY_COMPARE(service.requests.size(), 1U);
        const TestService::Request &request = service.requests.front();
        QVERIFY(request.head.startsWith("POST /TerraService2.asmx HTTP/1.1\r\n"));
        QCOMPARE(request.header("Content-Type"), "text/xml; charset=utf-8");
        QCOMPARE(request.header("Soapaction"), "\"urn:test/ConvertLonLatPtToNearestPlace\"");
        QCOMPARE(request.header("Host"), "places.test");
        QCOMPARE(request.position(), "+47.10 -8.5");
        QVERIFY(request.body.contains("xmlns=\"urn:test/\""));

        request.answer("Zug, ZG, Switzerland", "Pinmora-Place-Distance: 2312\r\n");
        QTRY_COMPARE(names.awaited.get(), 0U);
        QCOMPARE(namesOf(photo), "Zug|ZG|Switzerland 2312");
    }

    void otherAnswers_data() {
        const auto row = test::rows<QByteArray, Behaviour>();
        using Request = TestService::Request;
        const QByteArray good = TestService::envelope("A, B, C");
        const char *const none = "old|old|old 5";
        row("an error's status", "A|B|C", [=](const Request &request) {
            request.send(TestService::whole(good, "500 Internal Server Error"));
        });
        for (const char *status :
             {"400 Bad Request", "404 Not Found", "407 For a Proxy", "999 ?"}) {
            row(status, "A|B|C",
                [=](const Request &request) { request.send(TestService::whole(good, status)); });
        }
        row("a piece at a time", "A|B|C", [=](const Request &request) {
            const QByteArray all = TestService::whole(good);
            for (qsizetype i = 0; i < all.size(); i += 50) {
                QTimer::singleShot(0, request.from, [=] { request.send(all.mid(i, 50)); });
            }
        });
        row("a bad distance", "A|B|C", [](const Request &request) {
            request.answer("A, B, C", "Pinmora-Place-Distance: far\r\n");
        });
        row("cut off in its middle", none, [=](const Request &request) {
            request.send(TestService::whole(good).chopped(20));
            request.close();
        });
        row("cut off, of no told length", none, [=](const Request &request) {
            request.send("HTTP/1.1 200 OK\r\n\r\n" + good.left(good.indexOf("</Convert")));
            request.close();
        });
        row("garbage", none, [](const Request &request) {
            request.send("\x01\x02 garbage\r\n\r\n");
            request.close();
        });
        row("a body without XML", none,
            [](const Request &request) { request.send(TestService::whole("A, B, C")); });
        row("no result", none,
            [](const Request &request) { request.send(TestService::whole("<r/>")); });
        row("too much", none, [](const Request &request) {
            request.send(
                TestService::whole(QByteArray(65'536, ' ') + TestService::envelope("A, B, C")));
        });
        row("without an end", none, [](const Request &request) {
            request.send("HTTP/1.1 200 OK\r\n\r\n" + QByteArray(70'000, ' '));
        });
        row("a redirection", none, [](const Request &request) {
            const QByteArray elsewhere = "Location: http://" + request.header("Host") + "/x\r\n";
            request.head.startsWith("POST /TerraService2.asmx ")
                ? request.send(TestService::whole("", "307 Temporary Redirect", elsewhere))
                : request.answer("A, B, C");
        });
        row("a wish for a password", none, [](const Request &request) {
            request.send(TestService::whole("", "401 Unauthorized",
                                            "WWW-Authenticate: Basic realm=\"x\"\r\n"));
        });
        row("no answer", none, [](const Request &) {});
    }

    /// Whatever happens, it ends, and the next lookup starts with a clean buffer.
    void otherAnswers() {
        const auto [names, behaviour] = test::fetch<QByteArray, Behaviour>();
        PlaceDesk desk({.time = std::chrono::milliseconds(500)});
        image &photo = desk.addPhoto();
        for (const char *key : {"city", "prov", "country"}) {
            photo.setValue("old", key);
        }
        desk.service.behave = behaviour;
        photo.updateLatAndLon({"1", "2"});
        photo.setPlace_distance(5);
        QVERIFY(desk.isDone());
        QCOMPARE(namesOf(photo), names);

        desk.service.behave = [](const TestService::Request &request) {
            request.answer("Z, Y, X");
        };
        photo.updateLatAndLon({"3", "4"});
        QVERIFY(desk.isDone());
        QCOMPARE(namesOf(photo), "Z|Y|X");
    }

    void aServiceThatHangsIsGivenUp() {
        PlaceDesk desk({.time = std::chrono::milliseconds(50)});
        std::vector<image *> photos;
        for (int i = 0; i < 100; ++i) {
            photos.push_back(&desk.addPhoto());
        }
        for (image *photo : photos) {
            photo->updateLatAndLon({"1", "2"});
        }
        QVERIFY(desk.isDone());
        QVERIFY(desk.service.requests.size() < 8);

        desk.service.behave = [](const TestService::Request &request) {
            request.answer("Z, Y, X");
        };
        photos.front()->updateLatAndLon({"3", "4"});
        QVERIFY(desk.isDone());
        QCOMPARE(namesOf(*photos.front()), "Z|Y|X");
    }

    void aServiceThatIsNotThereIsGivenUp() {
        PlaceDesk desk;
        desk.service.close();
        for (int i = 0; i < 1'000; ++i) {
            desk.context.insert<image>().updateLatAndLon({"1", "2"});
        }
        QCOMPARE(desk.names.awaited.get(), std::size_t{1'000});
        QVERIFY(desk.isDone());
    }

    void withoutAServiceNothingIsAwaited() {
        NotificationCentre notifications;
        LibraryModel model(notifications);
        Context context(model);
        PlaceNames names(context, [] { return PlaceService{}; });
        image &photo = context.insert<image>();
        photo.updateLatAndLon({"1", "2"});
        names.lookUp(photo);
        QCOMPARE(names.awaited.get(), 1U);
        QTRY_COMPARE(names.awaited.get(), 0U);
    }

    void manyPhotosShareAFewConnections() {
        constexpr std::size_t many = 10'000;
        PlaceDesk desk;
        desk.service.behave = [](const TestService::Request &request) {
            request.answer("A, B, C");
        };
        for (std::size_t i = 0; i < many; ++i) {
            image &photo = desk.context.insert<image>();
            photo.setLat(std::to_string(i % 90));
            photo.setLon("8");
            photo.setLat("7");
        }
        QCOMPARE(desk.names.awaited.get(), many);
        std::size_t turns = 0;
        QTimer turning;
        connect(&turning, &QTimer::timeout, this, [&] { ++turns; });
        turning.start(0);
        QVERIFY(desk.isDone());
        QVERIFY(desk.service.connections <= 4);
        QVERIFY(desk.hasAsked(many));
        QVERIFY(turns > many / 10);
        for (const image *photo : desk.context.records<image>()) {
            QCOMPARE(namesOf(*photo), "A|B|C");
        }
    }

    void aSinglePhotoPassesByTheMany() {
        PlaceDesk desk;
        image &one = desk.addPhoto();
        for (int i = 0; i < 100; ++i) {
            desk.context.insert<image>().updateLatAndLon({"1", std::to_string(i)});
        }
        QVERIFY(desk.isAsked(4));
        one.updateLatAndLon({"5", "6"});
        desk.endTurn();
        desk.service.requests.front().answer("A, B, C");
        QVERIFY(desk.isAsked(5));
        QCOMPARE(desk.service.requests.front().position(), "1 0");
        QCOMPARE(desk.service.requests.back().position(), "5 6");
    }
};

QTEST_GUILESS_MAIN(ServiceTest)
#include "service_test.moc"
