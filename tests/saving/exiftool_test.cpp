// With the real tool: what is saved is what a reader finds in the copy.
#include "platform/process.h"
#include "saving/folders.h"
#include "saving/save_run.h"

#include <QTest>

using namespace pinmora;

using Texts = std::vector<std::string>;

class ExiftoolTest : public QObject {
    Q_OBJECT

    static SaveOutcome save(const Folders &folders, const std::vector<PhotoSnapshot> &photos) {
        return SaveRun{MetadataTool{folders.resources}, folders.copies}.run(photos);
    }

    static std::string exiftool(const std::vector<std::string> &arguments) {
        return runProcess(*findOnPath("exiftool"), arguments, {.output = 1'000'000}).output;
    }

private Q_SLOTS:
    void positionsAndPlacesArrive() {
        Folders folders;
        PhotoSnapshot sydney = folders.photo("sydney");
        sydney.lat = "-33.8568";
        sydney.lon = "151.2153";
        sydney.latRef = "S";
        sydney.lonRef = "E";
        sydney.mapDatum = "WGS-84";
        sydney.alt = "-12.5";
        sydney.prov = "New South Wales";
        const std::string before = bytesOf(sydney.source);

        const SavedPhoto saved = save(folders, {sydney}).photos.at(0);

        QCOMPARE(saved.message, "");
        QCOMPARE(exiftool({"-n", "-s3", "-sep", "|", "-GPSPosition", "-GPSAltitude", "-GPSMapDatum",
                           "-Province-State", *saved.savedAs}),
                 "-33.8568 151.215302\n-12.5\nWGS-84\nNew South Wales\n");
        QCOMPARE(bytesOf(sydney.source), before);
    }

    /// The tool writes the unsigned numbers into XMP too, where they would be north and east.
    void aPositionInXmpKeepsItsHemisphere() {
        Folders folders;
        PhotoSnapshot photo = folders.photo("a");
        exiftool({"-overwrite_original", "-XMP-exif:GPSLatitude=1 N", "-XMP-exif:GPSLongitude=1 E",
                  photo.source});
        photo.lat = "-49.33";
        photo.lon = "-72.88";
        photo.latRef = "S";
        photo.lonRef = "W";
        const SavedPhoto saved = save(folders, {photo}).photos.at(0);
        QCOMPARE(saved.message, "");
        QCOMPARE(exiftool({"-n", "-s3", "-XMP-exif:GPSLatitude", "-XMP-exif:GPSLongitude",
                           *saved.savedAs}),
                 "-49.330002\n-72.879997\n");
    }

    void nothingOfAnOldPositionIsLeft() {
        Folders folders;
        PhotoSnapshot photo =
            folders.photo("a", bytesOf(folders.sample.parent_path() / "IMG_0371.JPG")); // has one
        exiftool({"-overwrite_original", "-XMP-exif:GPSLatitude=1 N", "-XMP-exif:GPSLongitude=1 E",
                  "-IPTC:City=Ushuaia", photo.source});
        const std::vector<std::string> look{"-s", "-G1", "-a", "-GPS*", "-City"};
        const auto lookAt = [&](const std::filesystem::path &file) {
            std::vector<std::string> arguments = look;
            arguments.push_back(file);
            return exiftool(arguments);
        };
        QVERIFY(lookAt(photo.source).find("[GPS]") != std::string::npos);
        photo.removeOldPosition = true;
        QCOMPARE(lookAt(*save(folders, {photo}).photos.at(0).savedAs), "");
        photo.alt = "5";
        const std::string found = lookAt(*save(folders, {photo}).photos.at(0).savedAs);
        QVERIFY(found.find("GPSAltitude") != std::string::npos);
        QVERIFY(found.find("GPSLatitude") == std::string::npos);
    }

    void otherIptcTextsSurvive_data() {
        QTest::addColumn<Texts>("preparation");
        QTest::newRow("Latin-1") << Texts{"-charset", "iptc=Latin"};
        QTest::newRow("UTF-8") << Texts{"-IPTC:CodedCharacterSet=UTF8"};
    }
    void otherIptcTextsSurvive() {
        QFETCH(Texts, preparation);
        Folders folders;
        PhotoSnapshot photo = folders.photo("a");
        preparation.insert(preparation.end(),
                           {"-overwrite_original", "-IPTC:By-line=Jürg Müller",
                            "-IPTC:Keywords=Höhe", "-IPTC:Keywords=Öl", photo.source});
        exiftool(preparation);
        photo.city = "Łódź";

        const SavedPhoto saved = save(folders, {photo}).photos.at(0);

        QCOMPARE(saved.message, "");
        QCOMPARE(exiftool({"-s3", "-sep", "|", "-IPTC:By-line", "-IPTC:Keywords", "-IPTC:City",
                           *saved.savedAs}),
                 "Jürg Müller\nHöhe|Öl\nŁódź\n");
    }
};

QTEST_GUILESS_MAIN(ExiftoolTest)
#include "exiftool_test.moc"
