#include "platform/decoded_picture.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/tagged_photo.h"
#include "rows.h"

using namespace pinmora;

namespace {

/// Builds a file of the TIFF kind, little endian.
class TiffBytes {
public:
    enum Type : std::uint16_t { Byte = 1, Ascii = 2, Short = 3, Long = 4 };
    struct Entry {
        std::uint16_t tag;
        Type type;
        std::vector<std::uint32_t> values;
    };

    std::uint32_t add(const std::string &bytes) {
        const auto offset = static_cast<std::uint32_t>(bytes_.size());
        bytes_ += bytes;
        bytes_.resize((bytes_.size() + 1) / 2 * 2);
        return offset;
    }

    /// A directory; the entries' values that need more than four bytes go before it.
    std::uint32_t addDirectory(std::vector<Entry> entries) {
        std::sort(entries.begin(), entries.end(),
                  [](const Entry &one, const Entry &other) { return one.tag < other.tag; });
        std::string directory = number(static_cast<std::uint32_t>(entries.size()), 2);
        for (const Entry &entry : entries) {
            std::string values;
            for (const std::uint32_t value : entry.values) {
                values += number(value, entry.type == Long ? 4 : entry.type == Short ? 2 : 1);
            }
            if (values.size() > 4) {
                values = number(add(values), 4);
            }
            values.resize(4);
            directory += number(entry.tag, 2) + number(entry.type, 2) +
                         number(static_cast<std::uint32_t>(entry.values.size()), 4) + values;
        }
        return add(directory + number(0, 4));
    }

    std::string finish(std::uint32_t firstDirectory) {
        return bytes_.replace(4, 4, number(firstDirectory, 4));
    }

private:
    static std::string number(std::uint32_t value, int size) {
        std::string bytes;
        for (int i = 0; i < size; ++i, value >>= 8U) {
            bytes.push_back(static_cast<char>(value & 0xFFU));
        }
        return bytes;
    }

    std::string bytes_ = std::string("II*\0\0\0\0\0", 8);
};

std::vector<std::uint32_t> text(std::string_view characters) {
    std::vector<std::uint32_t> values(characters.begin(), characters.end());
    values.push_back(0);
    return values;
}

/// What a sensor behind red, green and blue filters sees of the picture.
std::string sensorValues(const QImage &picture) {
    std::string bytes;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour = picture.pixelColor(x, y);
            const int light = (x + y) % 2 == 1 ? colour.green()
                              : y % 2 == 0     ? colour.red()
                                               : colour.blue();
            bytes.push_back('\0');
            bytes.push_back(static_cast<char>(light / 8));
        }
    }
    return bytes;
}

/// A DNG file with the picture, in which the preview, a JPEG, comes first.
std::string rawFile(const QImage &picture, const QImage &preview) {
    const auto size = [](int pixels) {
        return std::vector<std::uint32_t>{static_cast<std::uint32_t>(pixels)};
    };
    TiffBytes file;
    const std::string sensor = sensorValues(picture);
    const std::uint32_t raw = file.addDirectory({
        {254, TiffBytes::Long, {0}},
        {256, TiffBytes::Long, size(picture.width())},
        {257, TiffBytes::Long, size(picture.height())},
        {258, TiffBytes::Short, {16}},
        {259, TiffBytes::Short, {1}},
        {262, TiffBytes::Short, {32803}}, // colour filter array
        {273, TiffBytes::Long, {file.add(sensor)}},
        {277, TiffBytes::Short, {1}},
        {278, TiffBytes::Long, size(picture.height())},
        {279, TiffBytes::Long, {static_cast<std::uint32_t>(sensor.size())}},
        {33421, TiffBytes::Short, {2, 2}},
        {33422, TiffBytes::Byte, {0, 1, 1, 2}},
        {50717, TiffBytes::Long, {8192}}, // the white level
    });
    const std::string jpeg = encoded(preview, "jpg");
    return file.finish(file.addDirectory({
        {254, TiffBytes::Long, {1}},
        {256, TiffBytes::Long, size(preview.width())},
        {257, TiffBytes::Long, size(preview.height())},
        {258, TiffBytes::Short, {8, 8, 8}},
        {259, TiffBytes::Short, {7}},
        {262, TiffBytes::Short, {6}},
        {271, TiffBytes::Ascii, text("Larch")},
        {272, TiffBytes::Ascii, text("Field 20")},
        {273, TiffBytes::Long, {file.add(jpeg)}},
        {274, TiffBytes::Short, {6}}, // a quarter clockwise
        {277, TiffBytes::Short, {3}},
        {278, TiffBytes::Long, size(preview.height())},
        {279, TiffBytes::Long, {static_cast<std::uint32_t>(jpeg.size())}},
        {330, TiffBytes::Long, {raw}},
        {50706, TiffBytes::Byte, {1, 4, 0, 0}}, // the version of DNG
        {50708, TiffBytes::Ascii, text("Larch Field 20")},
    }));
}

} // namespace

/// What is shown of a camera's raw file: in the tests here the preview is of one colour.
class RawPictureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void preview_data() {
        const auto row = test::rows<QSize, int, QByteArray>();
        row("a mere thumbnail: developed", QSize(160, 120), 0, "1200x900 RGBW");
        row("developed at half size", QSize(160, 120), 300, "300x225 RGBW");
        row("a thumbnail is enough", QSize(160, 120), 160, "160x120 WWWW");
        row("a preview worth the name", QSize(1000, 750), 0, "1000x750 WWWW");
        row("made smaller", QSize(1000, 750), 500, "500x375 WWWW");
    }

    void preview() {
        const auto [preview, fit, expected] = test::fetch<QSize, int, QByteArray>();
        QImage white(preview, QImage::Format_RGB32);
        white.fill(Qt::white);
        PhotoFolder folder;
        const auto file = folder.write("photo.dng", rawFile(quarters(1200, 900), white));
        const auto shown =
            decodePicture(file, fit > 0 ? std::optional(PixelSize{fit, fit}) : std::nullopt);
        QVERIFY(shown);
        QCOMPARE(described(*shown), expected);
    }
};

QTEST_GUILESS_MAIN(RawPictureTest)

#include "raw_picture_test.moc"
