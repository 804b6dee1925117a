#include "photos/photo_files.h"

#include <QBuffer>
#include <QImage>
#include <exiv2/exiv2.hpp>

#include <fstream>

namespace pinmora {

void writePhoto(const std::filesystem::path &file, const Tags &tags) {
    QImage picture(4, 3, QImage::Format_RGB32);
    picture.fill(0);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "jpg");
    std::ofstream(file, std::ios::binary) << buffer.data().toStdString();
    if (!tags.empty()) {
        addTags(file, tags);
    }
}

void addTags(const std::filesystem::path &file, const Tags &tags) {
    const auto image = Exiv2::ImageFactory::open(file.native());
    for (const auto &[key, value] : tags) {
        if (key.starts_with("Iptc")) {
            image->iptcData()[key] = value;
        } else {
            image->exifData()[key] = value;
        }
    }
    image->writeMetadata();
}

} // namespace pinmora
