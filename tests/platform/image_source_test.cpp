#include "platform/image_source.h"

#include <QColorSpace>
#include <QImage>

#include "platform/tagged_photo.h"
#include "rows.h"

using namespace pinmora;
using namespace std::string_literals;

namespace {

/// The texts under some keys, with "-" for none.
QByteArray texts(const PropertyDictionary &dictionary, std::initializer_list<const char *> keys) {
    QByteArrayList list;
    for (const char *key : keys)
        list << QByteArray::fromStdString(dictionary.text(key).value_or("-"));
    return list.join(' ');
}

} // namespace

/// What is read of the properties of a picture.
class ImageSourceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void position_data() {
        const auto row = test::rows<Tags, QByteArray>();
        row("south, east, zeros trimmed",
            {{"LatitudeRef", "S"},
             {"Latitude", "33/1 52/1 3/1"},
             {"LongitudeRef", "E"},
             {"Longitude", "151/1 1242/100 0/1"}},
            "S 33.8675 E 151.207 -");
        row("no reference letter", {{"Latitude", "33/1 30/1 0/1"}}, "- 33.5 - - -");
        row("blank reference letter", {{"LatitudeRef", " "}}, "- - - - -");
        row("letter as spelled", {{"LatitudeRef", "n"}}, "n - - - -");
        row("eight decimals", {{"Latitude", "1/3"}}, "- 0.33333333 - - -");
        row("seconds 0/0", {{"Latitude", "47/1 30/1 0/0"}}, "- 47.5 - - -");
        row("degrees 0/0", {{"Latitude", "0/0 30/1 0/1"}}, "- - - - -");
        row("beyond the pole", {{"Latitude", "89/1 60/1 1/1"}}, "- - - - -");
        row("the pole and the date line", {{"Latitude", "90/1"}, {"Longitude", "179/1 60/1"}},
            "- 90 - 180 -");
        row("beyond the date line", {{"Longitude", "181/1"}}, "- - - - -");
        row("numbers beyond 31 bits", {{"Latitude", "0/1"}, {"Longitude", "4294967295/4294967295"}},
            "- 0 - 1 -");
        row("above sea level", {{"Altitude", "1234567/1000"}, {"AltitudeRef", "0"}},
            "- - - - 1234.567");
        row("below sea level", {{"Altitude", "4305/10"}, {"AltitudeRef", "1"}}, "- - - - -430.5");
        row("altitude 0/0", {{"Altitude", "0/0"}}, "- - - - -");
    }

    void position() {
        auto [tags, expected] = test::fetch<Tags, QByteArray>();
        for (auto &[key, value] : tags)
            key.insert(0, "Exif.GPSInfo.GPS");
        const auto properties = readImageProperties(folder_.photo(tags));
        QVERIFY(properties);
        QCOMPARE(texts(properties->gps,
                       {"LatitudeRef", "Latitude", "LongitudeRef", "Longitude", "Altitude"}),
                 expected);
    }

    void text_data() {
        const auto add = test::rows<Tags, bool, QByteArray>();
        const auto row = [&](const char *name, const char *key, const std::string &value,
                             const char *expected, const char *characterSet = "",
                             bool bigEndian = false) {
            Tags tags{{key, value}};
            if (*characterSet != '\0')
                tags.emplace_back("Iptc.Envelope.CharacterSet", characterSet);
            add(name, tags, bigEndian, expected);
        };
        const char *description = "raw ImageDescription";
        row("description UTF-8", description, "Caf\xC3\xA9", "Café");
        row("description Latin-1", description, "Caf\xE9", "Café");
        row("description cut at NUL", description, "one\0two"s, "one");
        row("description keeps blanks", description, " SONY DSC   ", " SONY DSC   ");

        const char *comment = "raw UserComment";
        row("comment only NULs", comment, std::string(40, '\0'), "");
        row("comment UNICODE, little", comment, "UNICODE\0\x71\x67\x41\0"s, "東A");
        row("comment UNICODE, big", comment, "UNICODE\0\x67\x71\0\x41"s, "東A", "", true);

        const char *city = "Iptc.Application2.City";
        row("IPTC undeclared", city, "G\xF6teborg", "Göteborg");
        row("IPTC declared UTF-8", city, "G\xC3\xB6teborg", "Göteborg", "\x1b%G");
        row("IPTC declared Latin-1", city, "G\xC3\xB6", "GÃ¶", "\x1b.A");
    }

    void text() {
        const auto [tags, bigEndian, expected] = test::fetch<Tags, bool, QByteArray>();
        const auto properties = readImageProperties(
            folder_.photo(tags, bigEndian ? std::endian::big : std::endian::little));
        QVERIFY(properties);
        const QByteArray found = texts(properties->tiff, {"ImageDescription"}) +
                                 texts(properties->exif, {"UserComment"}) +
                                 texts(properties->iptc, {"City"});
        QCOMPARE(QByteArray(found).replace('-', ""), expected);
    }

    void header_data() {
        const auto row = test::rows<Tags, QByteArray>();
        row("nothing but JFIF", {}, "20 10 72 -");
        row("inches, sideways",
            {{"XResolution", "300/1"}, {"YResolution", "150/1"}, {"Orientation", "6"}},
            "20 10 300 6");
        row("centimetres",
            {{"XResolution", "99/1"}, {"YResolution", "99/1"}, {"ResolutionUnit", "3"}},
            "20 10 251.46 -");
    }

    void header() {
        auto [tags, expected] = test::fetch<Tags, QByteArray>();
        for (auto &[key, value] : tags)
            key.insert(0, "Exif.Image.");
        const auto file = folder_.write("header.jpg", picture("jpg"));
        if (!tags.empty())
            tag(file, tags);
        const auto properties = readImageProperties(file);
        QVERIFY(properties);
        QCOMPARE(texts(properties->top, {"PixelWidth", "PixelHeight", "DPIWidth", "Orientation"}),
                 expected);
    }

    void entries_data() {
        const auto row = test::rows<Tags, int, int>();
        const Tags turned{{"Exif.Image.Orientation", "6"}};
        Tags placed = southEast;
        placed.insert(placed.end(), turned.begin(), turned.end());
        row("nothing stated", {}, 7, 7);
        row("how it lies", turned, 10, 10);
        row("and where it was taken", placed, 10, 11);
        placed.emplace_back("Iptc.Application2.City", "Sydney");
        row("and the name of the place", placed, 10, 12);
        row("all but how it lies", southEast, 8, 9);
    }

    void entries() {
        const auto [tags, light, full] = test::fetch<Tags, int, int>();
        const auto file = folder_.photo(tags);
        const auto count = [&file](ImageRead read) {
            return static_cast<int>(readImageProperties(file, read).value().topLevelNames().size());
        };
        QCOMPARE(count(ImageRead::Light), light);
        QCOMPARE(count(ImageRead::Full), full);
    }

    void colours_data() {
        const auto row = test::rowsByValue<QByteArray, int, QByteArray>();
        row("jpg", QImage::Format_RGB32, "RGB 8 20");
        row("jpg", QImage::Format_Grayscale8, "Gray 8 20");
        row("png", QImage::Format_RGB32, "RGB 8 20");
        row("png", QImage::Format_RGBA64, "RGB 16 20");
        row("png", QImage::Format_Grayscale16, "Gray 16 20");
        row("tif", QImage::Format_RGB888, "RGB 8 20");
        row("tif", QImage::Format_Grayscale16, "Gray 16 20");
        row("bmp", QImage::Format_RGB32, "RGB 8 20");
    }

    void colours() {
        const auto [format, pixels, expected] = test::fetch<QByteArray, int, QByteArray>();
        const auto file = folder_.write("colours", "");
        QImage image(20, 10, static_cast<QImage::Format>(pixels));
        image.fill(Qt::gray);
        QVERIFY(image.save(QString::fromStdString(file.string()), format.constData()));
        const auto properties = readImageProperties(file);
        QVERIFY(properties);
        QCOMPARE(texts(properties->top, {"ColorModel", "Depth", "PixelWidth"}), expected);
        QCOMPARE(properties->top.text("ProfileName"), "sRGB IEC61966-2.1"s);

        image.setColorSpace(QColorSpace(QColorSpace::DisplayP3));
        if (format != "bmp" && image.pixelFormat().colorModel() == QPixelFormat::RGB) {
            QVERIFY(image.save(QString::fromStdString(file.string()), format.constData()));
            QCOMPARE(readImageProperties(file)->top.text("ProfileName"), "Display P3"s);
        }
    }

    void iptcEncoding() {
        const auto encoding = [this](const char *city, const char *characterSet = "") {
            Tags tags{{"Iptc.Application2.City", city}};
            if (*characterSet != '\0') {
                tags.emplace_back("Iptc.Envelope.CharacterSet", characterSet);
            }
            return readMetadataLayout(folder_.photo(tags)).iptc;
        };
        QCOMPARE(readMetadataLayout(folder_.photo(southEast)).iptc, IptcEncoding::Absent);
        QCOMPARE(encoding("Gen\xe8ve"), IptcEncoding::Other);
        QCOMPARE(encoding("Rome", "\x1b.A"), IptcEncoding::Other);
        QCOMPARE(encoding("Rome", "\x1b%G"), IptcEncoding::Utf8);
        QCOMPARE(encoding("Gen\xc3\xa8ve"), IptcEncoding::Utf8);
        QCOMPARE(readMetadataLayout(folder_.write("unknown.jpg", "no picture")).iptc,
                 IptcEncoding::Other);
    }

    void dictionary() {
        PropertyDictionary dictionary;
        dictionary.set("number", 8.50);
        dictionary.set("text", "12.5 m"s);
        dictionary.set("text too", ""s);
        QCOMPARE(dictionary.text("number"), "8.5"s);
        QCOMPARE(dictionary.number("text"), 12.5);
        QCOMPARE(dictionary.text("text too"), ""s);
        QVERIFY(!dictionary.text("absent") && !dictionary.number("absent"));
    }

private:
    PhotoFolder folder_;
};

QTEST_GUILESS_MAIN(ImageSourceTest)

#include "image_source_test.moc"
