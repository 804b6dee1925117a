#include "plants.h"

#include <cmath>
#include <numbers>

namespace pinmora::samples {

void spruce(Canvas &canvas, QPointF foot, double height, const QColor &colour, Dice &dice) {
    canvas.box(foot.x() - height * 0.02, foot.y() - height * 0.1, height * 0.04, height * 0.1,
               colour.lightness() < 40 ? colour : QColor(70, 50, 40));
    constexpr int tiers = 7;
    for (int tier = 0; tier < tiers; ++tier) {
        const double part = static_cast<double>(tier) / tiers;
        const double y = foot.y() - height * (0.06 + 0.72 * part);
        const double half = height * 0.21 * (1 - part * 0.82) * dice.between(0.86, 1.1);
        const double tip = y - height * (0.3 - 0.08 * part);
        const QPointF top(foot.x(), tip);
        canvas.shape(QPolygonF{top,
                               {foot.x() + half, y + height * 0.02},
                               {foot.x(), y - height * 0.03},
                               {foot.x() - half, y + height * 0.02}},
                     mixed(colour, Qt::white, 0.05 * part));
        canvas.shape(QPolygonF{top,
                               {foot.x() + half, y + height * 0.02},
                               {foot.x() + half * 0.1, y - height * 0.03}},
                     faded(QColor(10, 20, 35), 0.28));
    }
}

void crown(Canvas &canvas, QPointF centre, double radius, const QColor &colour, Dice &dice) {
    constexpr int leaves = 140;
    for (int i = 0; i < leaves; ++i) {
        const double light = static_cast<double>(i) / leaves;
        const double angle = dice.between(0, 2 * std::numbers::pi);
        const double away = std::sqrt(dice.between(0, 1)) * radius * (0.8 - 0.3 * light);
        const QPointF leaf(centre.x() - radius * 0.26 * light + std::cos(angle) * away * 1.08,
                           centre.y() - radius * 0.3 * light + std::sin(angle) * away * 0.9);
        const double size = radius * dice.between(0.13, 0.27) * (1.15 - 0.5 * light);
        const QColor shade = mixed(colour.darker(165), colour.lighter(128), light);
        canvas.ellipse(leaf, size, size * 0.86, shade);
    }
}

void broadTree(Canvas &canvas, QPointF centre, double radius, const QColor &colour, Dice &dice) {
    canvas.shape(QPolygonF{{centre.x() - radius * 0.09, centre.y() + radius * 1.5},
                           {centre.x() - radius * 0.05, centre.y()},
                           {centre.x() + radius * 0.05, centre.y()},
                           {centre.x() + radius * 0.1, centre.y() + radius * 1.5}},
                 colour.lightness() < 40 ? colour.darker(150) : QColor(84, 62, 46));
    crown(canvas, centre, radius, colour, dice);
}

void grass(Canvas &canvas, double top, double bottom, double tallest, const QColor &dark,
           const QColor &light, Dice &dice) {
    constexpr int blades = 900;
    for (int i = 0; i < blades; ++i) {
        const double nearness = static_cast<double>(i) / blades;
        const double y = top + (bottom - top) * nearness;
        const double x = dice.between(-10, canvas.width + 10);
        const double tall = tallest * (0.25 + 0.75 * nearness) * dice.between(0.6, 1.1);
        const double lean = tall * dice.between(-0.35, 0.45);
        const double half = 1 + 2.2 * nearness;
        canvas.shape(QPolygonF{{x - half, y},
                               {x + lean * 0.4 - half * 0.5, y - tall * 0.6},
                               {x + lean, y - tall},
                               {x + lean * 0.4 + half * 0.6, y - tall * 0.55},
                               {x + half, y}},
                     mixed(dark, light, dice.between(0, 1)));
    }
}

void spruceLine(Canvas &canvas, const Ridge &ridge, int count, double height, const QColor &colour,
                Dice &dice) {
    for (int i = 0; i < count; ++i) {
        const double x = dice.between(-10, canvas.width + 10);
        spruce(canvas, {x, ridge.top(x) + height * dice.between(0.1, 0.5)},
               height * dice.between(0.6, 1.1),
               colour.lighter(static_cast<int>(dice.between(92, 112))), dice);
    }
}

} // namespace pinmora::samples
