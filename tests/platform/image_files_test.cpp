#include "platform/image_source.h"

#include <QTest>

#include <fstream>
#include <sys/stat.h>

#include "platform/tagged_photo.h"

using namespace pinmora;
namespace fs = std::filesystem;

namespace {

std::string bytesOf(const fs::path &file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::size_t openHandles() {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator()));
}

} // namespace

/// Which files are read as pictures, and that none is harmed by it.
class ImageFilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void format_data();
    void format();
    void fileName_data();
    void fileName();
    void noImage_data();
    void noImage();
    void cutAnywhere();
    void manyFilesLeaveNothingBehind();

private:
    PhotoFolder folder_;
};

void ImageFilesTest::format_data() {
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<bool>("tagged");
    for (const char *format : {"jpg", "tif", "png"})
        QTest::newRow(format) << QByteArray(format) << true;
    for (const char *format : {"xbm", "ico", "bmp"})
        QTest::newRow(format) << QByteArray(format) << false;
}

void ImageFilesTest::format() {
    QFETCH(QByteArray, format);
    QFETCH(bool, tagged);
    // The name does not matter, the content does.
    const fs::path file = folder_.write("format.jpg", picture(format.constData()));
    if (tagged)
        tag(file, southEast);
    const auto properties = readImageProperties(file);
    QVERIFY(properties);
    QVERIFY(properties->top.number("PixelWidth") > 0);
    QCOMPARE(properties->exif.contains("DateTimeOriginal"), tagged);
    QCOMPARE(properties->gps.contains("Latitude"), tagged);
}

void ImageFilesTest::fileName_data() {
    QTest::addColumn<QByteArray>("name");
    for (const char *name :
         {"http:photo.jpg", "data:photo.jpg", "file:photo.jpg", "-", "\xE9t\xE9.jpg", "日本.jpg"})
        QTest::newRow(QByteArray(name).toPercentEncoding().constData()) << QByteArray(name);
}

void ImageFilesTest::fileName() {
    QFETCH(QByteArray, name);
    const fs::path plain = folder_.photo(southEast);
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

void ImageFilesTest::noImage_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("Shopping: bread, butter.\n");
    QTest::newRow("text that begins like a bitmap") << QByteArray(200, 'x').prepend("BMW ");
    QTest::newRow("drawing") << QByteArray(
        "<?xml version=\"1.0\"?><svg width=\"9\" height=\"9\"/>");
    QTest::newRow("archive") << QByteArray("PK\x03\x04\x14\0\0\0\x08\0", 10).append(300, '\x7');
    QTest::newRow("film") << QByteArray("RIFF\x64\0\0\0AVI LIST\0\0\0\0", 20);
}

void ImageFilesTest::noImage() {
    QFETCH(QByteArray, content);
    QVERIFY(!readImageProperties(folder_.write("no.jpg", content.toStdString())));
}

void ImageFilesTest::cutAnywhere() {
    Tags tags = southEast;
    tags.emplace_back("Iptc.Application2.City", "Sydney");
    const std::string whole = bytesOf(folder_.photo(tags));
    std::size_t withDate = 0;
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const auto properties =
            readImageProperties(folder_.write("cut.jpg", whole.substr(0, size)));
        const bool hasDate =
            properties && properties->exif.text("DateTimeOriginal") == "2008:06:21 14:03:59";
        QVERIFY2(hasDate || withDate == 0, "more bytes, but less was read");
        withDate += hasDate;
    }
    QVERIFY(withDate > whole.size() / 2); // the metadata lie at the front
}

void ImageFilesTest::manyFilesLeaveNothingBehind() {
    const fs::path file = folder_.photo(southEast);
    const std::string before = bytesOf(file);
    const fs::path text = folder_.write("text.jpg", "no picture");
    const fs::path pipe = folder_.write("x", "").replace_filename("pipe.jpg");
    QCOMPARE(::mkfifo(pipe.c_str(), 0600), 0);
    const fs::path icon = folder_.write("icon.jpg", picture("ico"));
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

QTEST_GUILESS_MAIN(ImageFilesTest)

#include "image_files_test.moc"
