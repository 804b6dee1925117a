#include "gps/log_desk.h"
#include "platform/external_entity.h"
#include "rows.h"

#include <sys/stat.h>

using namespace pinmora;
using pinmora::test::LogDesk;

/// What documents may bring into a log from outside, and how their bytes become text.
class GpxEntitiesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entitiesComeFromBesideTheDocumentOnly_data() {
        // height: "" for a malformed document
        const auto row = test::rows<std::string, std::string>();
        row("beside", "height.xml", "412.5");
        row("with a declaration of its own", "latin.xml", "\xC3\xA9");
        row("of the largest size", "largest.xml", "1");
        for (const char *refused :
             {"larger.xml", "missing.xml", "sub/height.xml", "./height.xml", "../height.xml",
              "..\\height.xml", "/etc/hostname", "file:///etc/hostname",
              "http://localhost/height.xml", "link.xml", "sub", ".", "pipe.xml", "",
              "malformed.xml", "itself.xml"}) {
            row(refused, refused, "");
        }
    }

    void entitiesComeFromBesideTheDocumentOnly() {
        const auto [systemId, height] = test::fetch<std::string, std::string>();
        LogDesk desk;
        std::filesystem::create_directory(desk.pathOf("sub"));
        desk.write("sub/height.xml", "1");
        desk.write("height.xml", "412.5");
        desk.write("latin.xml", "<?xml encoding='ISO-8859-1'?>\xE9");
        const auto padded = [](std::size_t size) {
            return "1<!--" + std::string(size - 8, ' ') + "-->";
        };
        desk.write("largest.xml", padded(externalEntityLimit));
        desk.write("larger.xml", padded(externalEntityLimit + 1));
        desk.write("malformed.xml", "<b>");
        desk.write("itself.xml", "&out;");
        std::filesystem::create_symlink("height.xml", desk.pathOf("link.xml"));
        QCOMPARE(::mkfifo(desk.pathOf("pipe.xml").c_str(), 0600), 0);
        const std::string point = "<trkpt lat='1' lon='2'><time/><ele>&out;</ele></trkpt>";
        const LogReport report =
            desk.load("<?xml version=\"1.0\"?><!DOCTYPE gpx [<!ENTITY out SYSTEM '" + systemId +
                      "'>]><gpx><trkpt><time/></trkpt>" + point + "</gpx>");
        QCOMPARE(desk.points(),
                 "-/-/-/-/1/-" + (height.empty() ? "" : " 1/2/" + height + "/-/2/-"));
        QCOMPARE(report.error == LogError::MalformedGpx, height.empty());

        // The same file as a part of the DTD: read by the same rule, and of no use in text.
        const LogReport parameter =
            desk.load("<?xml version=\"1.0\"?><!DOCTYPE gpx [<!ENTITY % out SYSTEM '" + systemId +
                      "'> %out;]><gpx/>");
        QVERIFY(parameter.error == LogError::MalformedGpx);
    }

    void anExternalDtdIsNotRead() {
        LogDesk desk;
        desk.write("gpx.dtd", "<!ENTITY height '412.5'>");
        desk.write("more.dtd", "<!ENTITY more '9'>");
        const std::string head = "<?xml version=\"1.0\"?><!DOCTYPE gpx SYSTEM 'gpx.dtd' "
                                 "[<!ENTITY % m SYSTEM 'more.dtd'> %m;]><gpx><trkpt><time/><ele>";
        const std::string end = "</ele></trkpt></gpx>";
        QVERIFY(!desk.load(head + "&more;" + end).failed());
        QCOMPARE(desk.points(), "-/-/9/-/1/-");
        // What only the DTD explains must not vanish from a height.
        QVERIFY(desk.load(head + "4&height;" + end).error == LogError::MalformedGpx);
        QCOMPARE(desk.points(), "-/-/9/-/1/-");
        QVERIFY(!desk.load("<?xml version=\"1.0\"?><!DOCTYPE gpx SYSTEM 'http://localhost/gpx.dtd'>"
                           "<gpx/>")
                     .failed());
    }

    void entitiesOfEntitiesDoNotFloodTheMemory() {
        std::string document =
            "<?xml version=\"1.0\"?><!DOCTYPE gpx [<!ENTITY e0 'xxxxxxxxxxxxxxxx'>";
        for (int i = 1; i < 10; ++i) {
            document += "<!ENTITY e" + std::to_string(i) + " '";
            for (int k = 0; k < 10; ++k) {
                document += "&e" + std::to_string(i - 1) + ";";
            }
            document += "'>";
        }
        LogDesk desk;
        QVERIFY(desk.load(document + "]><gpx><trkpt><ele>&e9;</ele></trkpt></gpx>").error ==
                LogError::MalformedGpx);
    }

    void encodings_data() {
        // height: UTF-8; "" for a malformed document
        const auto row = test::rows<std::string, std::string, std::string>();
        row("UTF-8", "UTF-8", "\xE2\x82\xAC", "\xE2\x82\xAC");
        row("Latin-1", "ISO-8859-1", "\xE9", "\xC3\xA9");
        row("Windows", "windows-1252", "\x80", "\xE2\x82\xAC");
        row("Latin-9", "ISO-8859-15", "\xA4", "\xE2\x82\xAC");
        row("Cyrillic", "KOI8-R", "\xC1", "\xD0\xB0");
        row("byte of no character", "ISO-8859-7", "\xFF", "");
        row("unknown", "x-nothing", "1", "");
        row("not what it says", "UTF-16", "1", "");
    }

    void encodings() {
        const auto [encoding, bytes, height] = test::fetch<std::string, std::string, std::string>();
        LogDesk desk;
        QCOMPARE(desk.load("<?xml version=\"1.0\" encoding=\"" + encoding +
                           "\"?><gpx><trkpt><ele>" + bytes + "</ele><time/></trkpt></gpx>")
                     .failed(),
                 height.empty());
        QCOMPARE(desk.points(), height.empty() ? "" : "-/-/" + height + "/-/1/-");
    }
};

QTEST_GUILESS_MAIN(GpxEntitiesTest)
#include "gpx_entities_test.moc"
