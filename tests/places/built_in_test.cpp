#include "places/place_desk.h"

#include "services/local_server.h"

using namespace pinmora;

/// The names that come with the program, through the whole way from a photo and back.
class BuiltInTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void photosGetTheirNames_data();
    void photosGetTheirNames();

private:
    LocalServer server_{{}};
};

void BuiltInTest::photosGetTheirNames_data() {
    QTest::addColumn<QByteArray>("lat");
    QTest::addColumn<QByteArray>("lon");
    QTest::addColumn<QByteArray>("names");
    const auto row = [](const char *lat, const char *lon, const char *names) {
        QTest::newRow(names) << QByteArray(lat) << QByteArray(lon) << QByteArray(names);
    };
    row("47.1724", "8.5174", "Zug|Zug|Switzerland");
    row("+64.1835", "-051.7216", "Nuuk|Sermersooq|Greenland");
    row("-18.1416", "178.4419", "Suva|Central|Fiji"); // near the date line
    row("91", "0", "||");
}

void BuiltInTest::photosGetTheirNames() {
    QFETCH(QByteArray, lat);
    QFETCH(QByteArray, lon);
    NotificationCentre notifications;
    LibraryModel model(notifications);
    Context context(model);
    PlaceNames names(context, [this] {
        return PlaceService{
            .address = server_.address(), .host = "", .nameSpace = LocalServer::placeNamespace};
    });
    image &photo = context.insert<image>();
    photo.updateLatAndLon({lat.toStdString(), lon.toStdString()});
    names.lookUp(photo);
    QTRY_COMPARE(names.awaited.get(), std::size_t{0});
    const std::optional<double> distance = photo.place_distance();
    photo.setPlace_distance(std::nullopt);
    QTEST(namesOf(photo), "names");
    QCOMPARE(distance.has_value(), !photo.city().view().empty());
    QVERIFY(distance.value_or(0) < 5'000);
}

QTEST_GUILESS_MAIN(BuiltInTest)
#include "built_in_test.moc"
