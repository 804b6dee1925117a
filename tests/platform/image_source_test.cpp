#include "platform/image_source.h"

#include <QBuffer>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <exiv2/exiv2.hpp>
#include <fstream>
#include <sys/stat.h>
#include <utility>
#include <vector>

using namespace pinmora;
using namespace std::string_literals;
namespace fs = std::filesystem;

namespace {

/// Exiv2's keys with values as text, which the entry "raw UserComment" or "raw ImageDescription"
/// has byte for byte.
using Tags = std::vector<std::pair<std::string, std::string>>;

const Tags southEast{
    {"Exif.GPSInfo.GPSLatitudeRef", "S"},
    {"Exif.GPSInfo.GPSLatitude", "33/1 52/1 3/1"},
    {"Exif.GPSInfo.GPSLongitudeRef", "E"},
    {"Exif.GPSInfo.GPSLongitude", "151/1 1242/100 0/1"},
    {"Exif.Photo.DateTimeOriginal", "2008:06:21 14:03:59"},
};

std::string picture(const char *format) {
    QImage image(20, 10, format == "xbm"s ? QImage::Format_Mono : QImage::Format_RGB32);
    image.fill(0);
    image.setDotsPerMeterX(2835);
    image.setDotsPerMeterY(2835);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return buffer.data().toStdString();
}

std::string bytesOf(const fs::path &file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void addBytes(Exiv2::ExifData &exif, const char *key, Exiv2::TypeId type,
              const std::string &bytes) {
    Exiv2::DataValue value(type);
    value.read(reinterpret_cast<const Exiv2::byte *>(bytes.data()), bytes.size());
    exif.add(Exiv2::ExifKey(key), &value);
}

void tag(const fs::path &file, const Tags &tags, Exiv2::ByteOrder order = Exiv2::littleEndian) {
    const auto image = Exiv2::ImageFactory::open(file.string());
    image->readMetadata();
    image->setByteOrder(order);
    for (const auto &[key, value] : tags) {
        if (key == "raw UserComment")
            addBytes(image->exifData(), "Exif.Photo.UserComment", Exiv2::undefined, value);
        else if (key == "raw ImageDescription")
            addBytes(image->exifData(), "Exif.Image.ImageDescription", Exiv2::asciiString, value);
        else if (key.starts_with("Iptc"))
            image->iptcData()[key] = value;
        else
            image->exifData()[key] = value;
    }
    image->writeMetadata();
}

std::size_t openHandles() {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator()));
}

/// The texts under some keys, with "-" for none.
QByteArray texts(const PropertyDictionary &dictionary, std::initializer_list<const char *> keys) {
    QByteArrayList list;
    for (const char *key : keys)
        list << QByteArray::fromStdString(dictionary.text(key).value_or("-"));
    return list.join(' ');
}

} // namespace

Q_DECLARE_METATYPE(Tags)

class ImageSourceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void position_data();
    void position();
    void text_data();
    void text();
    void header_data();
    void header();
    void format_data();
    void format();
    void fileName_data();
    void fileName();
    void noImage_data();
    void noImage();
    void cutAnywhere();
    void manyFilesLeaveNothingBehind();
    void iptcEncoding();
    void dictionary();

private:
    fs::path write(const std::string &name, const std::string &bytes) const {
        const fs::path file = fs::path(folder_.path().toStdString()) / name;
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }
    fs::path photo(const Tags &tags, Exiv2::ByteOrder order = Exiv2::littleEndian) const {
        const fs::path file = write("photo.jpg", picture("jpg"));
        tag(file, tags, order);
        return file;
    }

    QTemporaryDir folder_;
};

void ImageSourceTest::position_data() {
    QTest::addColumn<Tags>("tags");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *name, Tags tags, const char *expected) {
        for (auto &[key, value] : tags)
            key.insert(0, "Exif.GPSInfo.GPS");
        QTest::newRow(name) << tags << QByteArray(expected);
    };
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

void ImageSourceTest::position() {
    QFETCH(Tags, tags);
    const auto properties = readImageProperties(photo(tags));
    QVERIFY(properties);
    QTEST(texts(properties->gps,
                {"LatitudeRef", "Latitude", "LongitudeRef", "Longitude", "Altitude"}),
          "expected");
}

void ImageSourceTest::text_data() {
    QTest::addColumn<Tags>("tags");
    QTest::addColumn<bool>("bigEndian");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *name, const char *key, const std::string &value,
                        const char *expected, const char *characterSet = "",
                        bool bigEndian = false) {
        Tags tags{{key, value}};
        if (*characterSet != '\0')
            tags.emplace_back("Iptc.Envelope.CharacterSet", characterSet);
        QTest::newRow(name) << tags << bigEndian << QByteArray(expected);
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

void ImageSourceTest::text() {
    QFETCH(Tags, tags);
    QFETCH(bool, bigEndian);
    const auto properties =
        readImageProperties(photo(tags, bigEndian ? Exiv2::bigEndian : Exiv2::littleEndian));
    QVERIFY(properties);
    const QByteArray found = texts(properties->tiff, {"ImageDescription"}) +
                             texts(properties->exif, {"UserComment"}) +
                             texts(properties->iptc, {"City"});
    QTEST(QByteArray(found).replace('-', ""), "expected");
}

void ImageSourceTest::header_data() {
    QTest::addColumn<Tags>("tags");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *name, Tags tags, const char *expected) {
        for (auto &[key, value] : tags)
            key.insert(0, "Exif.Image.");
        QTest::newRow(name) << tags << QByteArray(expected);
    };
    row("nothing but JFIF", {}, "20 10 72 -");
    row("inches, sideways",
        {{"XResolution", "300/1"}, {"YResolution", "150/1"}, {"Orientation", "6"}}, "20 10 300 6");
    row("centimetres", {{"XResolution", "99/1"}, {"YResolution", "99/1"}, {"ResolutionUnit", "3"}},
        "20 10 251.46 -");
}

void ImageSourceTest::header() {
    QFETCH(Tags, tags);
    const fs::path file = write("header.jpg", picture("jpg"));
    if (!tags.empty())
        tag(file, tags);
    const auto properties = readImageProperties(file);
    QVERIFY(properties);
    QTEST(texts(properties->top, {"PixelWidth", "PixelHeight", "DPIWidth", "Orientation"}),
          "expected");
}

void ImageSourceTest::format_data() {
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<bool>("tagged");
    for (const char *format : {"jpg", "tif", "png"})
        QTest::newRow(format) << QByteArray(format) << true;
    for (const char *format : {"xbm", "ico", "bmp"})
        QTest::newRow(format) << QByteArray(format) << false;
}

void ImageSourceTest::format() {
    QFETCH(QByteArray, format);
    QFETCH(bool, tagged);
    // The name does not matter, the content does.
    const fs::path file = write("format.jpg", picture(format.constData()));
    if (tagged)
        tag(file, southEast);
    const auto properties = readImageProperties(file);
    QVERIFY(properties);
    QVERIFY(properties->top.number("PixelWidth") > 0);
    QCOMPARE(properties->exif.contains("DateTimeOriginal"), tagged);
    QCOMPARE(properties->gps.contains("Latitude"), tagged);
}

void ImageSourceTest::fileName_data() {
    QTest::addColumn<QByteArray>("name");
    for (const char *name :
         {"http:photo.jpg", "data:photo.jpg", "file:photo.jpg", "-", "\xE9t\xE9.jpg", "日本.jpg"})
        QTest::newRow(QByteArray(name).toPercentEncoding().constData()) << QByteArray(name);
}

void ImageSourceTest::fileName() {
    QFETCH(QByteArray, name);
    const fs::path plain = photo(southEast);
    const fs::path file = plain.parent_path() / name.toStdString();
    fs::rename(plain, file);
    const fs::path previous = fs::current_path();
    fs::current_path(file.parent_path()); // a bare name looks most like an address
    const auto properties = readImageProperties(file.filename());
    fs::current_path(previous);
    fs::remove(file); // QTemporaryDir cannot remove a name that is not UTF-8
    QVERIFY(properties);
    QVERIFY(properties->exif.contains("DateTimeOriginal"));
}

void ImageSourceTest::noImage_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("Shopping: bread, butter.\n");
    QTest::newRow("text that begins like a bitmap") << QByteArray(200, 'x').prepend("BMW ");
    QTest::newRow("drawing") << QByteArray(
        "<?xml version=\"1.0\"?><svg width=\"9\" height=\"9\"/>");
    QTest::newRow("archive") << QByteArray("PK\x03\x04\x14\0\0\0\x08\0", 10).append(300, '\x7');
    QTest::newRow("film") << QByteArray("RIFF\x64\0\0\0AVI LIST\0\0\0\0", 20);
}

void ImageSourceTest::noImage() {
    QFETCH(QByteArray, content);
    QVERIFY(!readImageProperties(write("no.jpg", content.toStdString())));
}

void ImageSourceTest::cutAnywhere() {
    Tags tags = southEast;
    tags.emplace_back("Iptc.Application2.City", "Sydney");
    const std::string whole = bytesOf(photo(tags));
    std::size_t withDate = 0;
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const auto properties = readImageProperties(write("cut.jpg", whole.substr(0, size)));
        const bool hasDate =
            properties && properties->exif.text("DateTimeOriginal") == "2008:06:21 14:03:59";
        QVERIFY2(hasDate || withDate == 0, "more bytes, but less was read");
        withDate += hasDate;
    }
    QVERIFY(withDate > whole.size() / 2); // the metadata lie at the front
}

void ImageSourceTest::manyFilesLeaveNothingBehind() {
    const fs::path file = photo(southEast);
    const std::string before = bytesOf(file);
    const fs::path text = write("text.jpg", "no picture");
    const fs::path pipe = write("x", "").replace_filename("pipe.jpg");
    QCOMPARE(::mkfifo(pipe.c_str(), 0600), 0);
    const fs::path icon = write("icon.jpg", picture("ico"));
    const std::size_t handles = openHandles();
    for (int i = 0; i < 100; ++i) {
        QVERIFY(readImageProperties(file) && readImageProperties(icon));
        QVERIFY(!readImageProperties(text) && !readImageProperties(pipe));
        QVERIFY(!readImageProperties(file.parent_path()));
        QVERIFY(!readImageProperties(file.parent_path() / "absent.jpg"));
    }
    QCOMPARE(openHandles(), handles);
    QCOMPARE(bytesOf(file), before);
}

void ImageSourceTest::iptcEncoding() {
    const char *city = "Iptc.Application2.City";
    QCOMPARE(readMetadataLayout(photo(southEast)).iptc, IptcEncoding::Absent);
    QCOMPARE(readMetadataLayout(photo({{city, "Gen\xe8ve"}})).iptc, IptcEncoding::Other);
    QCOMPARE(
        readMetadataLayout(photo({{city, "Rome"}, {"Iptc.Envelope.CharacterSet", "\x1b.A"}})).iptc,
        IptcEncoding::Other);
    QCOMPARE(
        readMetadataLayout(photo({{city, "Rome"}, {"Iptc.Envelope.CharacterSet", "\x1b%G"}})).iptc,
        IptcEncoding::Utf8);
    QCOMPARE(readMetadataLayout(photo({{city, "Gen\xc3\xa8ve"}})).iptc, IptcEncoding::Utf8);
    QCOMPARE(readMetadataLayout(write("unknown.jpg", "no picture")).iptc, IptcEncoding::Other);
}

void ImageSourceTest::dictionary() {
    PropertyDictionary dictionary;
    dictionary.set("number", 8.50);
    dictionary.set("text", "12.5 m"s);
    dictionary.set("text too", ""s);
    QCOMPARE(dictionary.text("number"), "8.5"s);
    QCOMPARE(dictionary.number("text"), 12.5);
    QCOMPARE(dictionary.text("text too"), ""s);
    QVERIFY(!dictionary.text("absent") && !dictionary.number("absent"));
}

QTEST_GUILESS_MAIN(ImageSourceTest)

#include "image_source_test.moc"
