#include "services/map_page.h"

#include <QTest>

#include <string>

using namespace pinmora;

class MapPageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pictures_data() {
        QTest::addColumn<QByteArray>("setting");
        QTest::addColumn<QByteArray>("sources"); // beyond the page's own
        const auto row = [](const char *setting, const char *sources) {
            QTest::newRow(setting) << QByteArray(setting) << QByteArray(sources);
        };
        row("", " https://tile.openstreetmap.org");
        row("none", "");
        row("https://t.example/{z}/{x}/{y}.png?key=1", " https://t.example");
        row("http://127.0.0.1:8080/{z}/{x}/{y}.png", " http://127.0.0.1:8080");
        row("http://[::1]:8080/{z}", " http://[::1]:8080");
        row("https://{s}.t.example/{z}", " https://*.t.example");
        row("https://tile{s}.t.example:81/{z}", " https://*.t.example:81");
        row("https://{a}.x.{b}.t.example/{z}", " https://*.t.example");
        row("https://{s}/{z}", "");
        row("/tiles/{z}/{x}/{y}.png", "");
        row("file:///{z}/{x}/{y}.png", "");
        row("javascript://t.example/{z}", "");
        row("https://t.example; script-src */{z}", "");
        row("https://*/{z}", "");
        row("https://", "");
        row("https://user@t.example/{z}", "");
        row("https://t.example\r\nX-Header: 1/{z}", "");
        row("https://t.example'unsafe-inline'/{z}", "");
    }
    void pictures() {
        QFETCH(QByteArray, setting);
        QFETCH(QByteArray, sources);
        const std::string policy = contentSecurityPolicy(tileAddress(setting.toStdString()));
        QCOMPARE(QByteArray::fromStdString(policy),
                 "default-src 'none'; script-src 'self'; style-src 'self' 'unsafe-inline'; "
                 "img-src 'self' data:" +
                     sources +
                     "; connect-src 'self'; base-uri 'none'; form-action 'none'; "
                     "frame-ancestors 'none'");
    }

    void addressInThePage() {
        QCOMPARE(mapPage("<a b=\"@TILE_SERVER@\" c='@TILE_SERVER@'>", "\"'><script>&@TILE_SERVER@"),
                 std::string("<a b=\"&quot;&#39;&gt;&lt;script&gt;&amp;@TILE_SERVER@\""
                             " c='&quot;&#39;&gt;&lt;script&gt;&amp;@TILE_SERVER@'>"));
        QCOMPARE(mapPage("no place for it", "x"), std::string("no place for it"));
    }
};

QTEST_APPLESS_MAIN(MapPageTest)
#include "map_page_test.moc"
