// With the real tool: what is saved is what a reader finds in the copy.
#include "platform/image_source.h"
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
    void textsArriveAsTheyAre() {
        const Texts texts{"<Make",
                          "<=/etc/hostname",
                          "=",
                          "@",
                          "-City=x",
                          "a<b>c = d",
                          "+=^-=",
                          "$Make ${Model} %d%f",
                          "two\nlines\r\n",
                          "\\n \"quoted\" 'too'\\",
                          "&lt;&#x41;;",
                          "  blanks before",
                          "Zürich Łódź 日本 \U0001F600"};
        Folders folders;
        std::vector<PhotoSnapshot> photos;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            photos.push_back(folders.photo("t" + std::to_string(i)));
            photos.back().description = photos.back().comments = texts[i];
            photos.back().city = texts[i].substr(0, 30);
        }
        for (const SavedPhoto &photo : save(folders, photos).photos) {
            QCOMPARE(photo.status, SavedPhoto::Status::Saved);
            const auto properties = readImageProperties(*photo.savedAs).value();
            const std::string &text = texts[photo.index];
            QCOMPARE(properties.tiff.text("ImageDescription"), text);
            QCOMPARE(properties.exif.text("UserComment"), text);
            QCOMPARE(properties.iptc.text("City"), text.substr(0, 30));
        }
    }

    /// Beyond 64 KiB the tool uses more than one segment of the JPEG file; beyond 128 KiB the text
    /// does not fit into an argument.
    void longTextsArrive() {
        Folders folders;
        const auto temporaries = folders.root / "temporaries";
        std::filesystem::create_directory(temporaries);
        qputenv("TMPDIR", temporaries.c_str());
        for (const std::size_t length : {70'000, 131'072, 300'000}) {
            PhotoSnapshot photo = folders.photo(std::to_string(length));
            photo.description = "$x @\n" + std::string(length, '<');
            photo.comments = "Łódź" + photo.description;
            const SavedPhoto saved = save(folders, {photo}).photos.at(0);
            QCOMPARE(saved.status, SavedPhoto::Status::Saved);
            QCOMPARE(exiftool({"-b", "-ImageDescription", "-UserComment", *saved.savedAs}),
                     photo.description + photo.comments);
        }
        QVERIFY(std::filesystem::is_empty(temporaries));
    }

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

    void aFormatThatCannotBeTaggedIsCopied() {
        Folders folders;
        const std::string bitmap = "BM" + std::string(60, '\0');
        PhotoSnapshot photo = folders.photo("a", bitmap);
        photo.extension = "bmp";
        const SavedPhoto saved = save(folders, {photo}).photos.at(0);
        QCOMPARE(saved.status, SavedPhoto::Status::Failed);
        QCOMPARE(saved.message,
                 "Copied, but not tagged: Writing of BMP files is not yet supported");
        QCOMPARE(bytesOf(folders.copies / "a.bmp"), bitmap);
    }
};

QTEST_GUILESS_MAIN(ExiftoolTest)
#include "exiftool_test.moc"
