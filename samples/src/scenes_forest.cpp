#include "painting.h"
#include "plants.h"
#include "scenes.h"

#include <cmath>

namespace pinmora::samples {

namespace {

/// A beech: a smooth grey trunk, lit on its left side, wider at the root.
void beech(Canvas &canvas, double x, double foot, double half, const QColor &colour,
           unsigned seed) {
    QPolygonF left;
    QPolygonF right;
    for (double y = -10; y <= foot; y += 20) {
        const double root = std::exp(-(foot - y) / (half * 2.2));
        const double sway = half * 0.5 * noise(y / 240, seed);
        left << QPointF(x + sway - half * (0.75 + 0.25 * y / foot + 0.9 * root), y);
        right << QPointF(x + sway + half * (0.75 + 0.25 * y / foot + 0.9 * root), y);
    }
    QPolygonF trunk = left;
    for (auto i = right.size() - 1; i >= 0; --i)
        trunk << right[i];
    QLinearGradient bark(x - half, 0, x + half, 0);
    bark.setColorAt(0, mixed(colour, QColor(255, 246, 200), 0.35));
    bark.setColorAt(0.35, colour);
    bark.setColorAt(1, colour.darker(165));
    canvas.shape(trunk, bark);
    for (int i = 0; i < 7; ++i)
        canvas.ellipse({x + half * noise(i * 1.7, seed + 3), foot * (0.12 + 0.12 * i)}, half * 0.3,
                       1.5 + half * 0.03, faded(colour.darker(200), 0.35));
}

void leaves(Canvas &canvas, QRectF area, int count, double size, const QColor &dark,
            const QColor &light, Dice &dice) {
    for (int i = 0; i < count; ++i) {
        const double part = static_cast<double>(i) / count;
        const double r = size * dice.between(0.5, 1.2);
        canvas.ellipse({dice.between(area.left(), area.right()),
                        area.top() + area.height() * std::pow(dice.between(0, 1), 1.5)},
                       r, r * 0.7, faded(mixed(dark, light, part * dice.between(0.5, 1)), 0.85));
    }
}

void fern(Canvas &canvas, QPointF root, double size, const QColor &colour, Dice &dice) {
    for (int frond = 0; frond < 7; ++frond) {
        const double angle = -2.75 + frond * 0.4 + dice.between(-0.1, 0.1);
        QPointF at = root;
        for (int step = 0; step < 9; ++step) {
            const double bend = angle + (angle < -1.57 ? -0.07 : 0.07) * step;
            at += QPointF(std::cos(bend), std::sin(bend)) * size * 0.12;
            const double r = size * 0.09 * (1 - step / 10.0);
            canvas.ellipse(at, r * 1.6, r, mixed(colour, QColor(206, 220, 110), frond % 3 * 0.16));
        }
    }
}

/// The yellow diamond that marks footpaths, on its trunk.
void waymark(Canvas &canvas, QPointF at, double size) {
    const auto diamond = [at](double r) {
        return QPolygonF{{at.x(), at.y() - r * 0.72},
                         {at.x() + r, at.y()},
                         {at.x(), at.y() + r * 0.72},
                         {at.x() - r, at.y()}};
    };
    canvas.shape(diamond(size + 3), QColor(40, 36, 28));
    canvas.shape(diamond(size), QColor(250, 206, 40));
}

/// The path that bends towards the light, with spots of sun and shade over it.
void footpath(Canvas &canvas, Dice &dice) {
    QPolygonF path;
    QPolygonF back;
    for (int step = 0; step <= 24; ++step) {
        const double t = step / 24.0;
        const double middle = 430 - 150 * std::sin(t * 3.1) * (1 - t) - 60 * t;
        path << QPointF(middle - 12 - 250 * t * t, 768 + 440 * t);
        back.prepend(QPointF(middle + 12 + 250 * t * t, 768 + 440 * t));
    }
    canvas.shape(
        path + back,
        down(768, 1200,
             {{0, QColor(250, 234, 190)}, {0.3, QColor(206, 176, 128)}, {1, QColor(128, 98, 70)}}));
    for (int i = 0; i < 130; ++i) {
        const double t = std::sqrt(dice.between(0, 1));
        canvas.ellipse({400 + dice.between(-420, 420) * (0.3 + t), 790 + 420 * t}, 10 + 46 * t,
                       3 + 9 * t, i % 2 == 0 ? QColor(255, 240, 170, 50) : QColor(40, 40, 20, 34));
    }
}

} // namespace

QImage forest() {
    Canvas canvas(800, 1200);
    Dice dice(416);
    canvas.box(0, 0, 800, 1200,
               down(0, 800,
                    {{0, QColor(92, 134, 66)},
                     {0.5, QColor(186, 208, 116)},
                     {0.85, QColor(244, 242, 196)},
                     {1, QColor(216, 220, 150)}}));
    const QPointF light(430, 640);
    canvas.box(0, 0, 800, 1200,
               glow(light, 430,
                    {{0, QColor(255, 252, 226, 250)},
                     {0.4, QColor(255, 248, 190, 140)},
                     {1, QColor(255, 240, 160, 0)}}));
    for (int depth = 0; depth < 3; ++depth) {
        const QColor bark = mixed(QColor(190, 200, 140), QColor(104, 106, 84), depth / 3.0);
        for (int i = 0; i < 13 - 3 * depth; ++i) {
            const double x = dice.between(-20, 820);
            if (std::abs(x - light.x()) > 40 + 50 * depth)
                beech(canvas, x, 796 + 16 * depth, 6 + 5 * depth, bark,
                      static_cast<unsigned>(40 + depth * 20 + i));
        }
        leaves(canvas, {-20, 40, 840, 380 - 60.0 * depth}, 150, 34 - 4 * depth,
               mixed(QColor(176, 200, 98), QColor(70, 116, 48), depth / 2.0), QColor(214, 228, 118),
               dice);
    }
    const Ridge floor{772, 24, 380, 61};
    canvas.shape(
        floor.outline(canvas),
        down(740, 1200,
             {{0, QColor(150, 162, 74)}, {0.4, QColor(104, 112, 52)}, {1, QColor(58, 62, 34)}}));
    footpath(canvas, dice);
    beech(canvas, 92, 960, 40, QColor(128, 122, 106), 71);
    beech(canvas, 690, 1040, 54, QColor(112, 106, 94), 72);
    waymark(canvas, {688, 560}, 40);
    for (int ray = 0; ray < 6; ++ray) {
        const double x = 150 + 105 * ray;
        canvas.shape(QPolygonF{{x + 190, -10}, {x + 250, -10}, {x - 60, 1000}, {x - 190, 1000}},
                     down(0, 980, {{0, QColor(255, 250, 200, 38)}, {1, QColor(255, 250, 200, 0)}}));
    }
    for (int i = 0; i < 26; ++i) {
        const bool onLeft = i % 2 == 0;
        const double y = 900 + 12 * i;
        fern(canvas, {onLeft ? dice.between(-20, 150) : dice.between(650, 820), y}, 70 + 3 * i,
             QColor(84, 128, 46), dice);
    }
    leaves(canvas, {-20, -30, 840, 210}, 220, 30, QColor(52, 96, 40), QColor(190, 214, 92), dice);
    return canvas.finish();
}

} // namespace pinmora::samples
