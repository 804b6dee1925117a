#include "gps/log_desk.h"
#include "platform/external_entity.h"

#include <QtTest>

#include <sys/stat.h>

using namespace pinmora;
using pinmora::test::LogDesk;

/// What documents may bring into a log from outside, and how their bytes become text.
class GpxEntitiesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entitiesComeFromBesideTheDocumentOnly_data();
    void entitiesComeFromBesideTheDocumentOnly();
    void anExternalDtdIsNotRead();
    void entitiesOfEntitiesDoNotFloodTheMemory();
    void encodings_data();
    void encodings();
};

void GpxEntitiesTest::entitiesComeFromBesideTheDocumentOnly_data() {
    QTest::addColumn<std::string>("systemId");
    QTest::addColumn<std::string>("height"); // "" for a malformed document
    const auto row = [](const char *name, std::string systemId, const char *height) {
        QTest::newRow(name) << std::move(systemId) << std::string(height);
    };
    row("beside", "height.xml", "412.5");
    row("with a declaration of its own", "latin.xml", "\xC3\xA9");
    row("of the largest size", "largest.xml", "1");
    row("too large", "larger.xml", "");
    row("missing", "missing.xml", "");
    row("deeper", "sub/height.xml", "");
    row("through the folder", "./height.xml", "");
    row("above", "../height.xml", "");
    row("backslash", "..\\height.xml", "");
    row("absolute", "/etc/hostname", "");
    row("file address", "file:///etc/hostname", "");
    row("network", "http://localhost/height.xml", "");
    row("link", "link.xml", "");
    row("folder", "sub", "");
    row("this folder", ".", "");
    row("pipe", "pipe.xml", "");
    row("empty name", "", "");
    row("malformed", "malformed.xml", "");
    row("itself", "itself.xml", "");
}

void GpxEntitiesTest::entitiesComeFromBesideTheDocumentOnly() {
    QFETCH(std::string, systemId);
    QFETCH(std::string, height);
    LogDesk desk;
    std::filesystem::create_directory(desk.pathOf("sub"));
    desk.write("sub/height.xml", "1");
    desk.write("height.xml", "412.5");
    desk.write("latin.xml", "<?xml encoding='ISO-8859-1'?>\xE9");
    desk.write("largest.xml", "1"
                              "<!--" +
                                  std::string(externalEntityLimit - 8, ' ') + "-->");
    desk.write("larger.xml", "1"
                             "<!--" +
                                 std::string(externalEntityLimit - 7, ' ') + "-->");
    desk.write("malformed.xml", "<b>");
    desk.write("itself.xml", "&out;");
    std::filesystem::create_symlink("height.xml", desk.pathOf("link.xml"));
    QCOMPARE(::mkfifo(desk.pathOf("pipe.xml").c_str(), 0600), 0);
    const std::string point = "<trkpt lat='1' lon='2'><time/><ele>&out;</ele></trkpt>";
    const LogReport report =
        desk.load("<?xml version=\"1.0\"?><!DOCTYPE gpx [<!ENTITY out SYSTEM '" + systemId +
                  "'>]><gpx><trkpt><time/></trkpt>" + point + "</gpx>");
    QCOMPARE(desk.points(), "-/-/-/-/1/-" + (height.empty() ? "" : " 1/2/" + height + "/-/2/-"));
    QCOMPARE(report.error == LogError::MalformedGpx, height.empty());

    // The same file as a part of the DTD: read by the same rule, and of no use in text.
    const LogReport parameter =
        desk.load("<?xml version=\"1.0\"?><!DOCTYPE gpx [<!ENTITY % out SYSTEM '" + systemId +
                  "'> %out;]><gpx/>");
    QVERIFY(parameter.error == LogError::MalformedGpx);
}

void GpxEntitiesTest::anExternalDtdIsNotRead() {
    LogDesk desk;
    desk.write("gpx.dtd", "<!ENTITY height '412.5'>");
    desk.write("more.dtd", "<!ENTITY more '9'>");
    const std::string head = "<?xml version=\"1.0\"?><!DOCTYPE gpx SYSTEM 'gpx.dtd' "
                             "[<!ENTITY % m SYSTEM 'more.dtd'> %m;]><gpx><trkpt><time/><ele>";
    const std::string end = "</ele></trkpt></gpx>";
    QVERIFY(!desk.load(head + "&more;" + end).failed());
    QCOMPARE(desk.points(), std::string("-/-/9/-/1/-"));
    // What only the DTD explains must not vanish from a height.
    QVERIFY(desk.load(head + "4&height;" + end).error == LogError::MalformedGpx);
    QCOMPARE(desk.points(), std::string("-/-/9/-/1/-"));
    QVERIFY(!desk.load("<?xml version=\"1.0\"?><!DOCTYPE gpx SYSTEM 'http://localhost/gpx.dtd'>"
                       "<gpx/>")
                 .failed());
}

void GpxEntitiesTest::entitiesOfEntitiesDoNotFloodTheMemory() {
    std::string document = "<?xml version=\"1.0\"?><!DOCTYPE gpx [<!ENTITY e0 'xxxxxxxxxxxxxxxx'>";
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

void GpxEntitiesTest::encodings_data() {
    QTest::addColumn<std::string>("document");
    QTest::addColumn<std::string>("height"); // UTF-8; "" for a malformed document
    const auto row = [](const char *name, std::string encoding, std::string bytes,
                        std::string height) {
        QTest::newRow(name) << "<?xml version=\"1.0\" encoding=\"" + encoding +
                                   "\"?><gpx><trkpt><ele>" + bytes + "</ele><time/></trkpt></gpx>"
                            << std::move(height);
    };
    row("UTF-8", "UTF-8", "\xE2\x82\xAC", "\xE2\x82\xAC");
    row("Latin-1", "ISO-8859-1", "\xE9", "\xC3\xA9");
    row("Windows", "windows-1252", "\x80", "\xE2\x82\xAC");
    row("Latin-9", "ISO-8859-15", "\xA4", "\xE2\x82\xAC");
    row("Cyrillic", "KOI8-R", "\xC1", "\xD0\xB0");
    row("byte of no character", "ISO-8859-7", "\xFF", "");
    row("unknown", "x-nothing", "1", "");
    row("not what it says", "UTF-16", "1", "");
}

void GpxEntitiesTest::encodings() {
    QFETCH(std::string, document);
    QFETCH(std::string, height);
    LogDesk desk;
    QCOMPARE(desk.load(document).failed(), height.empty());
    QCOMPARE(desk.points(), height.empty() ? "" : "-/-/" + height + "/-/1/-");
}

QTEST_GUILESS_MAIN(GpxEntitiesTest)
#include "gpx_entities_test.moc"
