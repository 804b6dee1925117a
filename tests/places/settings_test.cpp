#include "places/place_settings.h"

#include "platform/defaults.h"

#include <QTest>

using namespace pinmora;

class SettingsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void services_data();
    void services();
    void lookupsAreOnUnlessTurnedOff();
};

void SettingsTest::services_data() {
    QTest::addColumn<std::string>("server");
    QTest::addColumn<std::string>("host");
    QTest::addColumn<std::string>("nameSpace");
    QTest::addColumn<QByteArray>("service");
    const auto row = [](const char *name, const char *server, const char *host, const char *space,
                        const char *service) {
        QTest::newRow(name) << std::string(server) << std::string(host) << std::string(space)
                            << QByteArray(service);
    };
    row("none", "", "", "", "http://built.in  urn:own/");
    row("a host only", "", "h", "urn:x/", "http://built.in  urn:own/");
    row("a server", "http://s", "", "", "http://s  urn:own/");
    row("all of it", "http://s", "h", "urn:x/", "http://s h urn:x/");
}

void SettingsTest::services() {
    QFETCH(std::string, server);
    QFETCH(std::string, host);
    QFETCH(std::string, nameSpace);
    Defaults defaults;
    defaults.setText("placeServer", server);
    defaults.setText("placeServerHost", host);
    defaults.setText("placeServerNamespace", nameSpace);
    int started = 0;
    const PlaceService service = placeServiceFrom(
        defaults,
        [&] {
            ++started;
            return std::string("http://built.in");
        },
        "urn:own/");
    QTEST(QByteArray::fromStdString(service.address + " " + service.host + " " + service.nameSpace),
          "service");
    QCOMPARE(started, server.empty() ? 1 : 0);
}

void SettingsTest::lookupsAreOnUnlessTurnedOff() {
    Defaults defaults;
    QVERIFY(looksUpPlaces(defaults));
    defaults.setText(lookUpPlacesKey, "0");
    QVERIFY(!looksUpPlaces(defaults));
    defaults.setText(lookUpPlacesKey, "1");
    QVERIFY(looksUpPlaces(defaults));
}

QTEST_APPLESS_MAIN(SettingsTest)
#include "settings_test.moc"
