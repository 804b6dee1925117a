#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>

namespace {

const QRectF frame(170, 130, 300, 220);
const QColor ground(0xDD, 0xDF, 0xE2);
const QColor line(0x8E, 0x94, 0x9A);

QPen linePen(Qt::PenStyle style = Qt::SolidLine) {
    QPen pen(line, 10, style, Qt::RoundCap, Qt::RoundJoin);
    if (style != Qt::SolidLine)
        pen.setDashPattern({3, 2.568}); // in widths of the line; goes evenly round the frame
    return pen;
}

/// Mountains and the sun, in outline.
QPainterPath landscape() {
    QPainterPath path;
    path.addEllipse(QPointF(404, 195), 24, 24);
    path.moveTo(196, 312);
    path.lineTo(268, 222);
    path.lineTo(318, 282);
    path.lineTo(352, 250);
    path.lineTo(444, 312);
    return path;
}

template <class Draw>
QImage picture(Draw draw) {
    QImage image(640, 480, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    painter.end();
    return image.convertToFormat(QImage::Format_Grayscale8);
}

/// An empty place for a picture.
void drawAbsent(QPainter &painter) {
    painter.setPen(linePen(Qt::CustomDashLine));
    painter.drawRoundedRect(frame, 22, 22);
    painter.setPen(linePen());
    painter.drawPath(landscape());
}

/// What lies to one side of the tear; `edge` is the picture's on that side.
QPainterPath sideOfTear(double edge) {
    QPainterPath side(QPointF(edge, 0));
    for (const QPointF point :
         {QPointF(352, 0), QPointF(352, 130), QPointF(314, 190), QPointF(344, 222),
          QPointF(298, 280), QPointF(326, 310), QPointF(312, 350), QPointF(312, 480)})
        side.lineTo(point);
    side.lineTo(edge, 480);
    return side;
}

/// A picture that is torn in two.
void drawBroken(QPainter &painter) {
    painter.setPen(linePen());
    for (const bool isLeft : {true, false}) {
        painter.save();
        painter.translate(isLeft ? QPointF(-14, 7) : QPointF(14, -7));
        painter.setClipPath(sideOfTear(isLeft ? 0 : 640));
        painter.drawRoundedRect(frame, 22, 22);
        painter.drawPath(landscape());
        painter.restore();
    }
}

bool write(const QString &path, const QImage &image) {
    QImageWriter writer(path, "tiff");
    writer.setCompression(1); // LZW
    return writer.write(image);
}

} // namespace

/// make_pictures FOLDER: draws what the program shows in place of a photo.
int main(int argc, char **argv) {
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: make_pictures FOLDER\n", stderr);
        return 2;
    }
    const QString folder = QFile::decodeName(argv[1]) + QLatin1Char('/');
    const bool areWritten = write(folder + QLatin1String("nic.tiff"), picture(drawAbsent)) &&
                            write(folder + QLatin1String("nic2.tiff"), picture(drawBroken));
    return areWritten ? 0 : 1;
}
