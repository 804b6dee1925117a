#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImageWriter>
#include <QTransform>
#include <cstdio>
#include <stdexcept>

#include "route.h"
#include "scenes.h"

namespace {

using namespace pinmora::samples;

constexpr qsizetype largestPhoto = 47'000; // bytes; eight photos stay below 400 kB

struct Photo {
    const char *name;
    QImage (*scene)();
    int storedTurn; // degrees clockwise from upright to the pixels as stored
};

const Photo photos[] = {
    {"IMG_0371.JPG", patagonia, 0},   {"IMG_0412.JPG", station, 0}, {"IMG_0413.JPG", pier, 180},
    {"IMG_0414.JPG", church, 270},    {"IMG_0415.jpg", meadow, 0},  {"IMG_0416.JPG", forest, 90},
    {"IMG_0417.JPG", summitCross, 0}, {"IMG_0418.JPG", sunset, 0},
};

/// The picture as JPEG in the best quality that keeps within `largestPhoto`.
QByteArray encoded(const QImage &image) {
    for (int quality = 94; quality > 0; quality -= 2) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QImageWriter writer(&buffer, "jpeg");
        writer.setQuality(quality);
        writer.setOptimizedWrite(true);
        if (writer.write(image) && buffer.data().size() <= largestPhoto)
            return buffer.data();
    }
    throw std::runtime_error("a picture cannot be written as JPEG");
}

void write(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        throw std::runtime_error(qPrintable(path + QStringLiteral(": ") + file.errorString()));
}

} // namespace

/// make_outing FOLDER: draws the photos (without metadata) and writes the two logs.
int main(int argc, char **argv) {
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: make_outing FOLDER\n", stderr);
        return 2;
    }
    try {
        const QString folder = QFile::decodeName(argv[1]) + QLatin1Char('/');
        for (const Photo &photo : photos) {
            const QImage stored = photo.scene().transformed(QTransform().rotate(photo.storedTurn));
            write(folder + QLatin1String(photo.name), encoded(stored));
        }
        write(folder + QStringLiteral("zugerberg.gpx"), QByteArray::fromStdString(gpxLog()));
        write(folder + QStringLiteral("ship.nmea"), QByteArray::fromStdString(nmeaLog()));
    } catch (const std::exception &error) {
        std::fprintf(stderr, "make_outing: %s\n", error.what());
        return 1;
    }
    return 0;
}
