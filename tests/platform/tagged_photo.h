#pragma once

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <exiv2/exiv2.hpp>

#include <bit>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace pinmora {

/// Exiv2's keys with values as text, which the entry "raw UserComment" or "raw ImageDescription"
/// has byte for byte.
using Tags = std::vector<std::pair<std::string, std::string>>;

inline void addBytes(Exiv2::ExifData &exif, const char *key, Exiv2::TypeId type,
                     const std::string &bytes) {
    Exiv2::DataValue value(type);
    value.read(reinterpret_cast<const Exiv2::byte *>(bytes.data()), std::ssize(bytes));
    exif.add(Exiv2::ExifKey(key), &value);
}

/// A date and a place.
inline const Tags southEast{
    {"Exif.GPSInfo.GPSLatitudeRef", "S"},
    {"Exif.GPSInfo.GPSLatitude", "33/1 52/1 3/1"},
    {"Exif.GPSInfo.GPSLongitudeRef", "E"},
    {"Exif.GPSInfo.GPSLongitude", "151/1 1242/100 0/1"},
    {"Exif.Photo.DateTimeOriginal", "2008:06:21 14:03:59"},
};

/// The bytes of a file of one of Qt's formats with that picture.
inline std::string encoded(const QImage &image, const char *format) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, 95);
    return buffer.data().toStdString();
}

/// A black picture, 20 by 10 pixels at 72 to the inch, in one of Qt's formats.
inline std::string picture(const char *format) {
    QImage image(20, 10, std::string(format) == "xbm" ? QImage::Format_Mono : QImage::Format_RGB32);
    image.fill(0);
    image.setDotsPerMeterX(2835);
    image.setDotsPerMeterY(2835);
    return encoded(image, format);
}

/// A picture with a red, a green, a blue and a white quarter, in the order of reading.
inline QImage quarters(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    QPainter painter(&image);
    const int x = width / 2;
    const int y = height / 2;
    painter.fillRect(0, 0, x, y, Qt::red);
    painter.fillRect(x, 0, width - x, y, Qt::green);
    painter.fillRect(0, y, x, height - y, Qt::blue);
    painter.fillRect(x, y, width - x, height - y, Qt::white);
    return image;
}

/// The size and the first letters of the colours of the four quarters: "64x32 RGBW".
inline QByteArray described(const QImage &image) {
    const auto letter = [&image](int quarterX, int quarterY) {
        const QColor colour =
            image.pixelColor(image.width() * quarterX / 4, image.height() * quarterY / 4);
        const bool red = colour.red() > 120;
        const bool green = colour.green() > 120;
        const bool blue = colour.blue() > 120;
        return red && green && blue     ? 'W'
               : red && !green && !blue ? 'R'
               : green && !red && !blue ? 'G'
               : blue && !red && !green ? 'B'
                                        : '?';
    };
    return QByteArray::number(image.width()) + 'x' + QByteArray::number(image.height()) + ' ' +
           letter(1, 1) + letter(3, 1) + letter(1, 3) + letter(3, 3);
}

inline void tag(const std::filesystem::path &file, const Tags &tags,
                std::endian order = std::endian::little) {
    const auto image = Exiv2::ImageFactory::open(file.string());
    image->readMetadata();
    image->setByteOrder(order == std::endian::big ? Exiv2::bigEndian : Exiv2::littleEndian);
    for (const auto &[key, value] : tags) {
        if (key == "raw UserComment") {
            addBytes(image->exifData(), "Exif.Photo.UserComment", Exiv2::undefined, value);
        } else if (key == "raw ImageDescription") {
            addBytes(image->exifData(), "Exif.Image.ImageDescription", Exiv2::asciiString, value);
        } else if (key.starts_with("Iptc")) {
            image->iptcData()[key] = value;
        } else {
            image->exifData()[key] = value;
        }
    }
    image->writeMetadata();
}

/// A folder for files of pictures, which goes with the object.
class PhotoFolder {
public:
    std::filesystem::path write(const std::string &name, const std::string &bytes) const {
        const std::filesystem::path file =
            std::filesystem::path(folder_.path().toStdString()) / name;
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }

    /// A JPEG file with these tags.
    std::filesystem::path photo(const Tags &tags, std::endian order = std::endian::little) const {
        return photo(picture("jpg"), tags, order);
    }
    std::filesystem::path photo(const std::string &bytes, const Tags &tags,
                                std::endian order = std::endian::little) const {
        const std::filesystem::path file = write("photo.jpg", bytes);
        tag(file, tags, order);
        return file;
    }

private:
    QTemporaryDir folder_;
};

} // namespace pinmora
