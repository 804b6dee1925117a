#include "rows.h"
#include "services/map_page.h"

using namespace pinmora;

class MapPageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pictures_data() {
        // sources: beyond the page's own
        const auto row = test::rowsByValue<std::string, std::string>();
        row("", " https://tile.openstreetmap.org");
        row("none", "");
        row("https://t.example/{z}/{x}/{y}.png?key=1", " https://t.example");
        row("http://127.0.0.1:8080/{z}/{x}/{y}.png", " http://127.0.0.1:8080");
        row("http://[::1]:8080/{z}", " http://[::1]:8080");
        row("https://{s}.t.example/{z}", " https://*.t.example");
        row("https://tile{s}.t.example:81/{z}", " https://*.t.example:81");
        row("https://{a}.x.{b}.t.example/{z}", " https://*.t.example");
        for (const char *refused :
             {"https://{s}/{z}", "/tiles/{z}/{x}/{y}.png", "file:///{z}/{x}/{y}.png",
              "javascript://t.example/{z}", "https://t.example; script-src */{z}", "https://*/{z}",
              "https://", "https://user@t.example/{z}", "https://t.example\r\nX-Header: 1/{z}",
              "https://t.example'unsafe-inline'/{z}"}) {
            row(refused, "");
        }
    }
    void pictures() {
        const auto [setting, sources] = test::fetch<std::string, std::string>();
        QCOMPARE(contentSecurityPolicy(tileAddress(setting)),
                 "default-src 'none'; script-src 'self'; style-src 'self' 'unsafe-inline'; "
                 "img-src 'self' data:" +
                     sources +
                     "; connect-src 'self'; base-uri 'none'; form-action 'none'; "
                     "frame-ancestors 'none'");
    }

    void addressInThePage() {
        QCOMPARE(mapPage("<a b=\"@TILE_SERVER@\" c='@TILE_SERVER@'>", "\"'><script>&@WORDS@", ""),
                 "<a b=\"&quot;&#39;&gt;&lt;script&gt;&amp;@WORDS@\""
                 " c='&quot;&#39;&gt;&lt;script&gt;&amp;@WORDS@'>");
        QCOMPARE(mapPage("@@WORDS@@ no place @", "x", "{\"a\":\"<\"}"),
                 "@{&quot;a&quot;:&quot;&lt;&quot;}@ no place @");
    }
};

QTEST_APPLESS_MAIN(MapPageTest)
#include "map_page_test.moc"
