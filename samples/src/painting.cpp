#include "painting.h"

#include <algorithm>
#include <cmath>

namespace pinmora::samples {

namespace {

double hashed(int n, unsigned seed) {
    std::uint32_t h = static_cast<std::uint32_t>(n) * 374'761'393U + seed * 668'265'263U;
    h = (h ^ (h >> 13U)) * 1'274'126'177U;
    h ^= h >> 16U;
    return static_cast<double>(h) / 4294967295.0 * 2 - 1;
}

double smooth(double x, unsigned seed) {
    const double floor = std::floor(x);
    const double t = x - floor;
    const int n = static_cast<int>(floor);
    const double ease = t * t * (3 - 2 * t);
    return hashed(n, seed) * (1 - ease) + hashed(n + 1, seed) * ease;
}

} // namespace

Canvas::Canvas(int pixelsWide, int pixelsHigh)
    : width(pixelsWide), height(pixelsHigh), image(pixelsWide, pixelsHigh, QImage::Format_RGB32) {
    image.fill(Qt::white);
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
}

QImage Canvas::finish() {
    box(0, 0, width, height,
        glow({width / 2, height / 2}, std::hypot(width, height) * 0.56,
             {{0, QColor(20, 15, 30, 0)},
              {0.62, QColor(20, 15, 30, 0)},
              {1, QColor(20, 15, 30, 70)}}));
    painter.end();
    return image;
}

void Canvas::shape(const QPolygonF &points, const QBrush &brush) {
    painter.setBrush(brush);
    painter.drawPolygon(points);
}

void Canvas::ellipse(QPointF centre, double rx, double ry, const QBrush &brush) {
    painter.setBrush(brush);
    painter.drawEllipse(centre, rx, ry);
}

void Canvas::box(double x, double y, double boxWidth, double boxHeight, const QBrush &brush) {
    painter.fillRect(QRectF(x, y, boxWidth, boxHeight), brush);
}

QLinearGradient down(double top, double bottom, Stops stops) {
    QLinearGradient gradient(0, top, 0, bottom);
    for (const auto &[place, colour] : stops)
        gradient.setColorAt(place, colour);
    return gradient;
}

QRadialGradient glow(QPointF centre, double radius, Stops stops) {
    QRadialGradient gradient(centre, radius);
    for (const auto &[place, colour] : stops)
        gradient.setColorAt(place, colour);
    return gradient;
}

QColor faded(QColor colour, double alpha) {
    colour.setAlphaF(static_cast<float>(alpha));
    return colour;
}

QColor mixed(const QColor &from, const QColor &to, double part) {
    const auto blend = [part](int a, int b) {
        return static_cast<int>(std::lround(a + (b - a) * part));
    };
    return QColor(blend(from.red(), to.red()), blend(from.green(), to.green()),
                  blend(from.blue(), to.blue()));
}

void clockHands(Canvas &canvas, QPointF at, double radius, int hour, int minute,
                const QColor &colour) {
    const auto hand = [&](double turns, double length, double half) {
        canvas.painter.save();
        canvas.painter.translate(at);
        canvas.painter.rotate(turns * 360);
        canvas.box(-half * radius, -length * radius, 2 * half * radius, (length + 0.16) * radius,
                   colour);
        canvas.painter.restore();
    };
    hand((hour % 12 + minute / 60.0) / 12, 0.55, 0.05);
    hand(minute / 60.0, 0.85, 0.036);
}

double noise(double x, unsigned seed) {
    double sum = 0;
    double weight = 0.5;
    for (unsigned octave = 0; octave < 6; ++octave) {
        sum += weight * smooth(x, seed * 31 + octave);
        x *= 2.03;
        weight *= 0.5;
    }
    return sum;
}

double Ridge::top(double x) const {
    const double rough = noise(x / wave, seed);
    return base - height * (peaks ? 1 - 2.4 * std::abs(rough) : rough);
}

QPolygonF Ridge::outline(const Canvas &canvas) const {
    QPolygonF points;
    for (double x = -4; x <= canvas.width + 4; x += 3)
        points << QPointF(x, top(x));
    points << QPointF(canvas.width + 4, canvas.height + 4) << QPointF(-4, canvas.height + 4);
    return points;
}

void cloud(Canvas &canvas, QPointF at, double width, const QColor &lit, const QColor &shade,
           Dice &dice) {
    canvas.painter.save();
    canvas.painter.setClipRect(QRectF(0, 0, canvas.width, at.y()));
    for (int layer = 0; layer < 2; ++layer) {
        for (int i = 0; i < 26; ++i) {
            const double t = dice.between(-1, 1);
            const double heap = (1 - t * t) * (0.75 + 0.25 * noise(t * 3, 77));
            const double radius = width * (0.05 + 0.11 * heap) * dice.between(0.8, 1.1);
            const double rise = layer == 0 ? dice.between(0, 0.12) : dice.between(0.1, 0.26);
            const QPointF centre(at.x() + t * width * 0.5, at.y() - heap * width * rise);
            const QColor colour = layer == 0 ? shade : lit;
            canvas.ellipse(
                centre, radius, radius * 0.82,
                glow(centre, radius,
                     {{0, faded(colour, 0.85)}, {0.7, faded(colour, 0.5)}, {1, faded(colour, 0)}}));
        }
    }
    canvas.painter.restore();
}

void water(Canvas &canvas, double line, const QColor &deep, const QColor &glint, Dice &dice) {
    const int top = static_cast<int>(line);
    const int depth = static_cast<int>(canvas.height) - top;
    const QImage land = canvas.image.copy();
    const int pixels = static_cast<int>(canvas.width);
    for (int row = 0; row < depth; ++row) {
        const double nearness = static_cast<double>(row) / depth;
        const double ripple = std::sin(22 * std::sqrt(nearness) * 6 + 2 * noise(row * 0.11, 5));
        const int from =
            std::clamp(top - 1 - static_cast<int>(row * 0.92 + ripple * 5 * nearness), 0, top - 1);
        const double shift = (1 + 9 * nearness) * ripple;
        canvas.painter.drawImage(QRectF(shift - 12, top + row, pixels + 24, 1.5), land,
                                 QRectF(0, from, pixels, 1));
    }
    canvas.box(0, top, canvas.width, depth,
               down(line, canvas.height,
                    {{0, faded(deep, 0.22)}, {0.35, faded(deep, 0.5)}, {1, faded(deep, 0.86)}}));
    canvas.box(0, top, canvas.width, 2, faded(glint, 0.35));
    for (int i = 0; i < 420; ++i) {
        const double nearness = dice.between(0, 1) * dice.between(0.1, 1);
        const double length = 6 + 90 * nearness * dice.between(0.3, 1);
        canvas.ellipse({dice.between(0, canvas.width), line + 3 + nearness * depth}, length,
                       0.6 + 2.2 * nearness, faded(i % 3 == 0 ? deep : glint, 0.16));
    }
}

} // namespace pinmora::samples
