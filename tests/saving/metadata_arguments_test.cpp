#include "saving/metadata_arguments.h"

#include <QTest>

using namespace pinmora;

using List = std::vector<std::string>;

class MetadataArgumentsTest : public QObject {
    Q_OBJECT

    static PhotoSnapshot sydney() {
        PhotoSnapshot photo;
        photo.lat = "-33.8568";
        photo.lon = "151.2153";
        photo.latRef = "S";
        photo.lonRef = "E";
        photo.mapDatum = "WGS-84";
        return photo;
    }

private Q_SLOTS:
    void listsArguments_data() {
        QTest::addColumn<PhotoSnapshot>("photo");
        QTest::addColumn<IptcEncoding>("iptc");
        QTest::addColumn<bool>("positionInXmp");
        QTest::addColumn<List>("between"); // what stands between the comment and the path
        const auto row = [](const char *what, const PhotoSnapshot &photo, List between,
                            IptcEncoding iptc = IptcEncoding::Other, bool positionInXmp = false) {
            QTest::newRow(what) << photo << iptc << positionInXmp << std::move(between);
        };
        const auto changed = [](PhotoSnapshot photo, auto change) {
            change(photo);
            return photo;
        };
        const auto altitude = [&](std::string text) {
            return changed({}, [&](auto &photo) { photo.alt = std::move(text); });
        };
        const auto places = [&](std::string country, std::string prov, std::string city) {
            return changed({}, [&](auto &photo) {
                photo.country = std::move(country);
                photo.prov = std::move(prov);
                photo.city = std::move(city);
            });
        };

        row("nothing known", {}, {});
        row("position, in single precision", sydney(),
            {"-GPSLatitude=33.856800", "-GPSLatitudeRef=S", "-GPSLongitude=151.215302",
             "-GPSLongitudeRef=E", "-GPSMapDatum=WGS-84"});
        row("south, in XMP too", sydney(),
            {"-GPSLatitude=33.856800", "-GPSLatitudeRef=S", "-GPSLongitude=151.215302",
             "-GPSLongitudeRef=E", "-GPSMapDatum=WGS-84", "-XMP-exif:GPSLatitude=33.856800 S",
             "-XMP-exif:GPSLongitude=151.215302 E"},
            IptcEncoding::Absent, true);
        row("north and east, in XMP too", changed(sydney(), [](auto &p) { p.latRef = "N"; }),
            {"-GPSLatitude=33.856800", "-GPSLatitudeRef=N", "-GPSLongitude=151.215302",
             "-GPSLongitudeRef=E", "-GPSMapDatum=WGS-84"},
            IptcEncoding::Absent, true);
        row("no letters, no datum",
            changed(sydney(), [](auto &p) { p.latRef = p.lonRef = p.mapDatum = ""; }),
            {"-GPSLatitude=33.856800", "-GPSLongitude=151.215302"});
        row("signed and padded",
            changed(sydney(),
                    [](auto &p) {
                        p.lat = "+0.5000000000";
                        p.lon = "-0";
                    }),
            {"-GPSLatitude=0.500000", "-GPSLatitudeRef=S", "-GPSLongitude=0.000000",
             "-GPSLongitudeRef=E", "-GPSMapDatum=WGS-84"});
        row("no longitude", changed(sydney(), [](auto &p) { p.lon = ""; }), {});
        row("no latitude", changed(sydney(), [](auto &p) { p.lat = ""; }), {});
        row("below the sea", altitude("-12.5"),
            {"-GPSAltitude=12.500000", "-GPSAltitudeRef=Below Sea Level"});
        row("at the sea", altitude("0"), {"-GPSAltitude=0", "-GPSAltitudeRef=Above Sea Level"});
        row("altitude as it is", altitude("\n\t 410.20 \r\n"),
            {"-GPSAltitude=410.20", "-GPSAltitudeRef=Above Sea Level"});
        row("blank altitude", altitude(" \n"), {});
        row("places in order", places("Schweiz", "Zürich", "Zürich"),
            {"-Country-PrimaryLocationName=Schweiz", "-Province-State=Zürich", "-City=Zürich"});
        row("one place", places("", "Bern", ""), {"-Province-State=Bern"});
        const List lodz{"-CodedCharacterSet=UTF8", "-Country-PrimaryLocationName=Polska",
                        "-City=Łódź"};
        row("outside Latin-1, no IPTC", places("Polska", "", "Łódź"), lodz, IptcEncoding::Absent);
        row("outside Latin-1, UTF-8", places("Polska", "", "Łódź"), lodz, IptcEncoding::Utf8);
        List converted{"-tagsfromfile", "@", "-iptc:all"};
        converted.insert(converted.end(), lodz.begin(), lodz.end());
        row("outside Latin-1, converted", places("Polska", "", "Łódź"), converted);
        const PhotoSnapshot removing = changed({}, [](auto &p) { p.removeOldPosition = true; });
        const List emptied{"-Country-PrimaryLocationName=", "-Province-State=", "-City="};
        List removed{"-GPS:all="};
        removed.insert(removed.end(), emptied.begin(), emptied.end());
        row("removing the old position", removing, removed);
        row("removing without a longitude", changed(removing, [](auto &p) { p.lat = "1"; }),
            removed);
        removed.insert(removed.begin() + 1, "-XMP-exif:GPS*=");
        row("removing, in XMP too", removing, removed, IptcEncoding::Absent, true);
        row("removing, with a place and an altitude",
            changed(removing,
                    [](auto &p) {
                        p.prov = "Bern";
                        p.alt = "5";
                    }),
            {"-GPS:all=", "-Country-PrimaryLocationName=", "-Province-State=Bern",
             "-City=", "-GPSAltitude=5", "-GPSAltitudeRef=Above Sea Level"});
        row("nothing to remove for", changed(sydney(), [](auto &p) { p.removeOldPosition = true; }),
            {"-GPSLatitude=33.856800", "-GPSLatitudeRef=S", "-GPSLongitude=151.215302",
             "-GPSLongitudeRef=E", "-GPSMapDatum=WGS-84"});
        row("all in order",
            changed(sydney(),
                    [](auto &p) {
                        p.country = "日本";
                        p.alt = "5";
                    }),
            {"-GPSLatitude=33.856800", "-GPSLatitudeRef=S", "-GPSLongitude=151.215302",
             "-GPSLongitudeRef=E", "-GPSMapDatum=WGS-84", "-tagsfromfile", "@", "-iptc:all",
             "-CodedCharacterSet=UTF8", "-Country-PrimaryLocationName=日本", "-GPSAltitude=5",
             "-GPSAltitudeRef=Above Sea Level"});
    }
    void listsArguments() {
        QFETCH(PhotoSnapshot, photo);
        QFETCH(IptcEncoding, iptc);
        QFETCH(bool, positionInXmp);
        QFETCH(List, between);
        photo.description = "On the <quay>";
        List expected{"-overwrite_original_in_place", "-ImageDescription=On the <quay>",
                      "-UserComment="};
        expected.insert(expected.end(), between.begin(), between.end());
        expected.emplace_back("/out/a.jpg");
        QCOMPARE(metadataArguments(photo, {iptc, positionInXmp}, "/out/a.jpg"), expected);
    }

    void asksForTheLayoutOnlyWhenItMatters() {
        PhotoSnapshot photo;
        photo.description = "Łódź";
        photo.city = "Genève";
        photo.lat = photo.lon = "1";
        photo.latRef = "N";
        photo.lonRef = "E";
        QVERIFY(!needsLayout(photo));
        photo.lonRef = "W";
        QVERIFY(needsLayout(photo));
        photo.lon = "";
        QVERIFY(!needsLayout(photo));
        photo.removeOldPosition = true;
        QVERIFY(needsLayout(photo));
        photo.removeOldPosition = false;
        photo.prov = "Łódź";
        QVERIFY(needsLayout(photo));
    }
};

QTEST_APPLESS_MAIN(MetadataArgumentsTest)
#include "metadata_arguments_test.moc"
