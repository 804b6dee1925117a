#include "platform/decoded_picture.h"

#include <QColorSpace>
#include <exiv2/exiv2.hpp>
#include <libheif/heif.h>

#include <sys/stat.h>

#include "platform/image_source.h"
#include "platform/tagged_photo.h"
#include "rows.h"

using namespace pinmora;
namespace fs = std::filesystem;

/// What the encoder of HEIC keeps for itself is no leak of this program.
extern "C" const char *__lsan_default_suppressions() {
    return "leak:libx265";
}

namespace {

const Tags turned{{"Exif.Image.Orientation", "6"}};

QByteArray shown(const std::optional<QImage> &image) {
    return image ? described(*image) : QByteArray("none");
}

/// A HEIF file with that picture, of which the container says that it is to be turned by a quarter
/// clockwise, and so does Exif; false when there is nothing at hand that encodes it.
bool writeHeif(const fs::path &file, const QImage &picture, heif_compression_format format) {
    const std::unique_ptr<heif_context, decltype(&heif_context_free)> context(heif_context_alloc(),
                                                                              heif_context_free);
    heif_encoder *encoder = nullptr;
    if (heif_context_get_encoder_for_format(context.get(), format, &encoder).code !=
        heif_error_Ok) {
        return false;
    }
    heif_encoder_set_lossy_quality(encoder, 95);
    heif_image *pixels = nullptr;
    heif_image_create(picture.width(), picture.height(), heif_colorspace_RGB,
                      heif_chroma_interleaved_RGB, &pixels);
    heif_image_add_plane(pixels, heif_channel_interleaved, picture.width(), picture.height(), 8);
    int line = 0;
    uint8_t *const bytes = heif_image_get_plane(pixels, heif_channel_interleaved, &line);
    const QImage source = picture.convertToFormat(QImage::Format_RGB888);
    for (int y = 0; y < source.height(); ++y) {
        memcpy(bytes + y * line, source.constScanLine(y), static_cast<size_t>(3 * source.width()));
    }
    heif_encoding_options *const options = heif_encoding_options_alloc();
    options->image_orientation = heif_orientation_rotate_90_cw;
    heif_image_handle *handle = nullptr;
    heif_context_encode_image(context.get(), pixels, encoder, options, &handle);
    Exiv2::ExifData exif;
    exif["Exif.Image.Orientation"] = std::uint16_t{6};
    Exiv2::Blob blob;
    Exiv2::ExifParser::encode(blob, Exiv2::littleEndian, exif);
    heif_context_add_exif_metadata(context.get(), handle, blob.data(),
                                   static_cast<int>(blob.size()));
    const bool isWritten =
        heif_context_write_to_file(context.get(), file.c_str()).code == heif_error_Ok;
    heif_image_handle_release(handle);
    heif_encoding_options_free(options);
    heif_image_release(pixels);
    heif_encoder_release(encoder);
    return isWritten;
}

} // namespace

/// Pixels of files of many kinds.
class DecodedPictureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void liesAsStored_data() {
        const auto row = test::rows<QByteArray>();
        for (const char *format : {"jpg", "png", "tif", "webp", "bmp"}) {
            row(format, format);
        }
    }

    void liesAsStored() {
        const auto [format] = test::fetch<QByteArray>();
        const auto file =
            folder_.write("\xE9t\xE9", encoded(quarters(640, 320), format.constData()));
        if (format != "bmp") {
            tag(file, turned);
            QCOMPARE(readImageProperties(file)->top.number("Orientation"), 6.0);
        }
        const auto whole = decodePicture(file);
        const auto larger = decodePicture(file, PixelSize{640, 1000});
        const auto byWidth = decodePicture(file, PixelSize{100, 1000});
        const auto byHeight = decodePicture(file, PixelSize{1000, 100});
        const auto tiny = decodePicture(file, PixelSize{1, 1});
        fs::remove(file); // QTemporaryDir cannot remove a name that is not UTF-8
        QCOMPARE(shown(whole), "640x320 RGBW");
        QCOMPARE(shown(larger), "640x320 RGBW");
        QCOMPARE(shown(byWidth), "100x50 RGBW");
        QCOMPARE(shown(byHeight), "200x100 RGBW");
        QVERIFY(tiny && tiny->size() == QSize(1, 1));
    }

    void heifTurnsItself_data() {
        const auto row = test::rows<int>();
        row("HEIC", static_cast<int>(heif_compression_HEVC));
        row("AVIF", static_cast<int>(heif_compression_AV1));
    }

    void heifTurnsItself() {
        const auto [compression] = test::fetch<int>();
        const auto file = folder_.write("photo.heic", "");
        QVERIFY2(
            writeHeif(file, quarters(640, 320), static_cast<heif_compression_format>(compression)),
            "the encoders that come with libheif on Debian are missing");
        const auto properties = readImageProperties(file, ImageRead::Light);
        QVERIFY(properties);
        QCOMPARE(properties->top.number("Orientation"), 1.0);
        QCOMPARE(properties->topLevelNames().size(), 10U);
        QCOMPARE(shown(decodePicture(file)), "320x640 BRWG");
        QCOMPARE(shown(decodePicture(file, PixelSize{100, 100})), "50x100 BRWG");
    }

    void coloursAreThoseOfTheScreen() {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(QColor(200, 100, 100));
        image.setColorSpace(QColorSpace(QColorSpace::DisplayP3));
        const auto picture = decodePicture(folder_.write("wide.png", encoded(image, "png")));
        QVERIFY(picture);
        // The same red is nearer to the edge of the smaller gamut.
        QVERIFY2(picture->pixelColor(4, 4).red() > 208,
                 qPrintable(picture->pixelColor(4, 4).name()));
    }

    void thumbnail() {
        const auto file = folder_.photo(turned);
        QVERIFY(!embeddedThumbnail(file));
        const std::string small = encoded(quarters(160, 120), "jpg");
        const auto image = Exiv2::ImageFactory::open(file.string());
        image->readMetadata();
        Exiv2::ExifThumb(image->exifData())
            .setJpegThumbnail(reinterpret_cast<const Exiv2::byte *>(small.data()),
                              static_cast<long>(small.size()));
        image->writeMetadata();
        QCOMPARE(shown(embeddedThumbnail(file)), "160x120 RGBW");
        QVERIFY(!embeddedThumbnail(folder_.write("text.jpg", "no picture")));
    }

    void noPicture_data() {
        const auto row = test::rows<QByteArray>();
        row("empty", {});
        row("text", "Shopping: bread, butter.\n");
        row("drawing",
            "<?xml version=\"1.0\"?><svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\"/>");
        row("head of HEIC", QByteArray("\0\0\0\x18"
                                       "ftypheic\0\0\0\0mif1heic",
                                       24));
        QByteArray huge = QByteArray::fromStdString(encoded(quarters(4, 4), "bmp"));
        huge.replace(18, 8, QByteArray("\0\0\1\0\0\0\1\0", 8)); // 65536 by 65536
        row("bitmap beyond all memory", huge);
    }

    void noPicture() {
        const auto [content] = test::fetch<QByteArray>();
        const auto file = folder_.write("no.jpg", content.toStdString());
        QVERIFY(!decodePicture(file));
        QVERIFY(!decodePicture(file, PixelSize{100, 100}));
        QVERIFY(!decodePicture(file.parent_path()));
        QVERIFY(!decodePicture(file.parent_path() / "absent.jpg"));
    }

    void cutAnywhere_data() {
        const auto row = test::rows<QByteArray>();
        for (const char *format : {"jpg", "png", "tif", "webp", "bmp"}) {
            row(format, QByteArray::fromStdString(encoded(quarters(40, 20), format)));
        }
        const auto file = folder_.write("whole.heic", "");
        if (writeHeif(file, quarters(64, 64), heif_compression_HEVC)) {
            QFile whole(QString::fromStdString(file.string()));
            QVERIFY(whole.open(QIODevice::ReadOnly));
            row("heic", whole.readAll());
        }
    }

    void cutAnywhere() {
        const auto [content] = test::fetch<QByteArray>();
        int decoded = 0;
        for (qsizetype size = 0; size < content.size(); size += 7) {
            const auto image = decodePicture(
                folder_.write("cut", content.first(size).toStdString()), PixelSize{10, 10});
            QVERIFY(!image || (image->width() > 0 && image->width() <= 10));
            decoded += image.has_value();
        }
        QVERIFY(decoded < content.size() / 7); // the first bytes are no picture at all
        QVERIFY(decodePicture(folder_.write("cut", content.toStdString())));
    }

private:
    PhotoFolder folder_;
};

QTEST_GUILESS_MAIN(DecodedPictureTest)

#include "decoded_picture_test.moc"
