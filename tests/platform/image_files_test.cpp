#include "platform/image_source.h"

#include <sys/stat.h>

#include "files.h"
#include "platform/tagged_photo.h"
#include "rows.h"

using namespace pinmora;
namespace fs = std::filesystem;

namespace {

std::size_t openHandles() {
    return test::entries("/proc/self/fd");
}

} // namespace

/// Which files are read as pictures, and that none is harmed by it.
class ImageFilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void format_data() {
        const auto row = test::rows<QByteArray, bool>();
        for (const char *format : {"jpg", "tif", "png"})
            row(format, format, true);
        for (const char *format : {"xbm", "ico", "bmp"})
            row(format, format, false);
    }

    void format() {
        const auto [format, tagged] = test::fetch<QByteArray, bool>();
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

    void fileName_data() {
        const auto row = test::rows<QByteArray>();
        for (const char *name : {"http:photo.jpg", "data:photo.jpg", "file:photo.jpg", "-",
                                 "\xE9t\xE9.jpg", "日本.jpg"})
            row(QByteArray(name).toPercentEncoding().constData(), name);
    }

    void fileName() {
        const auto [name] = test::fetch<QByteArray>();
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

    void noImage_data() {
        const auto row = test::rows<QByteArray>();
        row("empty", {});
        row("text", "Shopping: bread, butter.\n");
        row("text that begins like a bitmap", QByteArray(200, 'x').prepend("BMW "));
        row("drawing", "<?xml version=\"1.0\"?><svg width=\"9\" height=\"9\"/>");
        row("archive", QByteArray("PK\x03\x04\x14\0\0\0\x08\0", 10).append(300, '\x7'));
        row("film", QByteArray("RIFF\x64\0\0\0AVI LIST\0\0\0\0", 20));
    }

    void noImage() {
        const auto [content] = test::fetch<QByteArray>();
        QVERIFY(!readImageProperties(folder_.write("no.jpg", content.toStdString())));
    }

    void cutAnywhere() {
        Tags tags = southEast;
        tags.emplace_back("Iptc.Application2.City", "Sydney");
        const std::string whole = test::contents(folder_.photo(tags));
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

    void manyFilesLeaveNothingBehind() {
        const fs::path file = folder_.photo(southEast);
        const std::string before = test::contents(file);
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
        QCOMPARE(test::contents(file), before);
    }

private:
    PhotoFolder folder_;
};

QTEST_GUILESS_MAIN(ImageFilesTest)

#include "image_files_test.moc"
