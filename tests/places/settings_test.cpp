#include "places/place_settings.h"

#include "platform/defaults.h"
#include "rows.h"

using namespace pinmora;

class SettingsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void services_data() {
        const auto row = test::rows<std::string, std::string, std::string, std::string>();
        row("none", "", "", "", "http://built.in  urn:own/");
        row("a host only", "", "h", "urn:x/", "http://built.in  urn:own/");
        row("a server", "http://s", "", "", "http://s  urn:own/");
        row("all of it", "http://s", "h", "urn:x/", "http://s h urn:x/");
    }

    void services() {
        const auto [server, host, nameSpace, expected] =
            test::fetch<std::string, std::string, std::string, std::string>();
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
        QCOMPARE(service.address + " " + service.host + " " + service.nameSpace, expected);
        QCOMPARE(started, server.empty() ? 1 : 0);
    }

    void lookupsAreOnUnlessTurnedOff() {
        Defaults defaults;
        QVERIFY(looksUpPlaces(defaults));
        defaults.setText(lookUpPlacesKey, "0");
        QVERIFY(!looksUpPlaces(defaults));
        defaults.setText(lookUpPlacesKey, "1");
        QVERIFY(looksUpPlaces(defaults));
    }
};

QTEST_APPLESS_MAIN(SettingsTest)
#include "settings_test.moc"
