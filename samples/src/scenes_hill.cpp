#include "painting.h"
#include "plants.h"
#include "scenes.h"

#include <cmath>
#include <numbers>

namespace pinmora::samples {

namespace {

/// Snow mountains: white crests over blue rock.
void alps(Canvas &canvas, double base, double height, unsigned seed, const QColor &snow,
          const QColor &rock) {
    const Ridge crest{base, height, 190, seed, true};
    canvas.shape(crest.outline(canvas),
                 down(base - height, base + height * 0.5,
                      {{0, snow}, {0.55, mixed(snow, rock, 0.35)}, {1, rock}}));
    for (double x = 0; x < canvas.width; x += 17) {
        const double y = crest.top(x);
        const double long_ =
            (base + height * 0.4 - y) * (0.35 + 0.3 * std::abs(noise(x / 40, seed + 1)));
        const double lean = 26 * noise(x / 60, seed + 2) + 12;
        canvas.shape(
            QPolygonF{{x, y + 3}, {x + lean + 12, y + long_}, {x + lean - 4, y + long_ * 0.8}},
            faded(rock, 0.5));
    }
}

void flowers(Canvas &canvas, int count, double top, double bottom, Dice &dice) {
    const QColor petals[] = {QColor(252, 250, 244), QColor(250, 210, 60), QColor(222, 70, 90),
                             QColor(136, 96, 190)};
    for (int i = 0; i < count; ++i) {
        const double nearness = static_cast<double>(i) / count;
        const double r = 1.6 + 7.5 * nearness * nearness;
        const QPointF at(dice.between(0, canvas.width),
                         top + (bottom - top) * nearness + dice.between(-14, 4));
        const QColor petal = petals[static_cast<int>(dice.between(0, 3.999))];
        if (r > 4) {
            canvas.box(at.x() - 0.8, at.y(), 1.8, r * 4, QColor(70, 112, 48));
            for (int leaf = 0; leaf < 6; ++leaf) {
                const double angle = leaf * std::numbers::pi / 3;
                canvas.ellipse(at + QPointF(std::cos(angle), std::sin(angle) * 0.8) * r * 0.75,
                               r * 0.55, r * 0.5, petal);
            }
            canvas.ellipse(at, r * 0.45, r * 0.4,
                           petal == petals[0] ? petals[1] : petal.darker(150));
        } else {
            canvas.ellipse(at, r, r * 0.85, petal);
        }
    }
}

/// A brown cow that grazes, `size` pixels long, looking left.
void cow(Canvas &canvas, double x, double y, double size, const QColor &hide) {
    canvas.ellipse({x, y + size * 0.02}, size * 0.55, size * 0.06, QColor(40, 60, 30, 90));
    for (const double leg : {-0.36, -0.24, 0.24, 0.35})
        canvas.box(x + leg * size, y - size * 0.3, size * 0.075, size * 0.31,
                   hide.darker(leg == -0.24 || leg == 0.24 ? 150 : 122));
    canvas.painter.setBrush(
        down(y - size * 0.62, y - size * 0.22, {{0, hide.lighter(118)}, {1, hide.darker(125)}}));
    canvas.painter.drawRoundedRect(QRectF(x - size * 0.44, y - size * 0.62, size * 0.9, size * 0.4),
                                   size * 0.15, size * 0.15);
    canvas.shape(QPolygonF{{x - size * 0.36, y - size * 0.6},
                           {x - size * 0.3, y - size * 0.3},
                           {x - size * 0.56, y - size * 0.12},
                           {x - size * 0.64, y - size * 0.24}},
                 hide);
    canvas.shape(QPolygonF{{x - size * 0.54, y - size * 0.3},
                           {x - size * 0.5, y - size * 0.1},
                           {x - size * 0.62, y + size * 0.02},
                           {x - size * 0.7, y - size * 0.02},
                           {x - size * 0.66, y - size * 0.2}},
                 hide.darker(112));
    canvas.ellipse({x - size * 0.655, y - size * 0.005}, size * 0.05, size * 0.04,
                   QColor(232, 214, 196));
    canvas.ellipse({x - size * 0.5, y - size * 0.27}, size * 0.07, size * 0.03, hide.darker(140));
    canvas.box(x + size * 0.44, y - size * 0.55, size * 0.03, size * 0.34, hide.darker(130));
}

void barn(Canvas &canvas, double x, double foot) {
    canvas.box(x, foot - 44, 116, 44, QColor(116, 78, 52));
    for (int plank = 0; plank < 10; ++plank)
        canvas.box(x + 4 + 11.4 * plank, foot - 44, 1.5, 44, QColor(70, 44, 30, 150));
    canvas.box(x, foot - 12, 116, 12, QColor(190, 184, 174));
    canvas.shape(
        QPolygonF{
            {x - 12, foot - 42}, {x + 20, foot - 86}, {x + 98, foot - 86}, {x + 130, foot - 42}},
        QColor(134, 84, 66));
}

void fence(Canvas &canvas, const Ridge &ridge) {
    QPolygonF rail;
    for (double x = -10; x < canvas.width + 20; x += 74) {
        const double y = ridge.top(x) + 30;
        canvas.box(x, y - 34, 7, 48, QColor(122, 96, 72));
        rail << QPointF(x + 3, y - 22);
    }
    canvas.painter.save();
    canvas.painter.setPen(QPen(QColor(146, 118, 90), 4));
    canvas.painter.drawPolyline(rail);
    canvas.painter.drawPolyline(rail.translated(0, 15));
    canvas.painter.restore();
}

/// The cross of larch beams, lit from the left by the low sun.
void cross(Canvas &canvas, double x, double foot) {
    const QColor lit(218, 152, 92);
    const QColor dark(104, 64, 46);
    canvas.box(x - 15, foot - 470, 30, 470, dark);
    canvas.box(x - 15, foot - 470, 17, 470, lit);
    canvas.box(x - 120, foot - 378, 240, 30, dark);
    canvas.box(x - 120, foot - 378, 240, 17, lit);
    canvas.box(x - 15, foot - 378, 17, 30, lit);
    for (int i = 0; i < 11; ++i) {
        const double r = 30.0 - i;
        canvas.ellipse({x + 46 * noise(i * 1.3, 91), foot - 8 - 5.0 * i}, r * 1.3, r * 0.7,
                       mixed(QColor(96, 84, 84), QColor(210, 178, 150), i / 12.0));
    }
}

/// Somebody who looks at the mountains, seen from behind.
void hiker(Canvas &canvas, double x, double foot) {
    canvas.shape(QPolygonF{{x - 15, foot},
                           {x - 14, foot - 78},
                           {x + 14, foot - 78},
                           {x + 17, foot},
                           {x + 4, foot},
                           {x, foot - 52},
                           {x - 4, foot}},
                 QColor(58, 56, 72));
    canvas.shape(
        QPolygonF{
            {x - 22, foot - 70}, {x - 19, foot - 142}, {x + 19, foot - 142}, {x + 22, foot - 70}},
        QColor(46, 104, 122));
    canvas.painter.setBrush(
        down(foot - 140, foot - 80, {{0, QColor(232, 120, 58)}, {1, QColor(168, 66, 40)}}));
    canvas.painter.drawRoundedRect(QRectF(x - 17, foot - 140, 34, 62), 10, 10);
    canvas.ellipse({x, foot - 158}, 13, 15, QColor(90, 58, 42));
    canvas.shape(
        QPolygonF{
            {x - 22, foot - 136}, {x - 36, foot - 96}, {x - 29, foot - 93}, {x - 17, foot - 124}},
        QColor(70, 130, 146));
    canvas.shape(
        QPolygonF{
            {x + 22, foot - 136}, {x + 38, foot - 98}, {x + 31, foot - 94}, {x + 17, foot - 124}},
        QColor(36, 84, 100));
    canvas.box(x - 36, foot - 98, 3.5, 98, QColor(60, 56, 60));
    canvas.box(x + 34, foot - 98, 3.5, 98, QColor(60, 56, 60));
}

} // namespace

QImage meadow() {
    Canvas canvas(1200, 800);
    Dice dice(415);
    canvas.box(0, 0, 1200, 800,
               down(0, 430, {{0, QColor(58, 132, 208)}, {1, QColor(206, 228, 240)}}));
    cloud(canvas, {260, 170}, 420, QColor(255, 255, 255), QColor(200, 216, 236), dice);
    cloud(canvas, {900, 138}, 330, QColor(255, 255, 255), QColor(204, 220, 238), dice);
    cloud(canvas, {1130, 220}, 220, QColor(255, 255, 255), QColor(208, 222, 238), dice);
    alps(canvas, 340, 120, 81, QColor(250, 252, 255), QColor(120, 148, 186));
    const Ridge far{388, 56, 360, 82};
    canvas.shape(far.outline(canvas),
                 down(340, 500, {{0, QColor(96, 136, 142)}, {1, QColor(130, 168, 134)}}));
    const Ridge middle{452, 56, 420, 83};
    canvas.shape(middle.outline(canvas),
                 down(400, 560, {{0, QColor(104, 150, 84)}, {1, QColor(146, 184, 96)}}));
    spruceLine(canvas, middle, 46, 58, QColor(48, 96, 72), dice);
    const Ridge slope{520, 46, 620, 84};
    canvas.shape(
        slope.outline(canvas),
        down(480, 800,
             {{0, QColor(168, 204, 92)}, {0.5, QColor(122, 174, 68)}, {1, QColor(74, 128, 48)}}));
    barn(canvas, 846, slope.top(900) + 26);
    broadTree(canvas, {1040, slope.top(1040) - 84}, 62, QColor(92, 146, 62), dice);
    fence(canvas, slope);
    grass(canvas, 650, 815, 70, QColor(62, 116, 42), QColor(168, 206, 84), dice);
    flowers(canvas, 420, 560, 800, dice);
    cow(canvas, 420, 632, 128, QColor(158, 104, 66));
    cow(canvas, 640, 606, 96, QColor(134, 90, 62));
    cow(canvas, 196, 600, 88, QColor(178, 126, 84));
    return canvas.finish();
}

QImage summitCross() {
    Canvas canvas(1200, 800);
    Dice dice(417);
    canvas.box(0, 0, 1200, 800,
               down(0, 480,
                    {{0, QColor(74, 116, 178)},
                     {0.55, QColor(170, 184, 206)},
                     {1, QColor(255, 222, 176)}}));
    canvas.box(0, 0, 1200, 800,
               glow({-60, 440}, 640,
                    {{0, QColor(255, 232, 170, 235)},
                     {0.5, QColor(255, 214, 160, 90)},
                     {1, QColor(255, 200, 120, 0)}}));
    for (int i = 0; i < 26; ++i)
        canvas.ellipse({dice.between(0, 1200), dice.between(40, 250)}, dice.between(60, 190),
                       dice.between(3, 9),
                       i % 2 == 0 ? QColor(255, 232, 206, 66) : QColor(255, 255, 255, 46));
    alps(canvas, 412, 128, 92, QColor(255, 226, 200), QColor(140, 130, 168));
    const QColor haze(250, 214, 176);
    for (int layer = 0; layer < 4; ++layer) {
        const Ridge ridge{440 + 34.0 * layer, 44, 300 - 20.0 * layer,
                          static_cast<unsigned>(93 + layer)};
        const QColor colour = mixed(QColor(152, 150, 178), QColor(74, 104, 92), layer / 3.0);
        canvas.shape(ridge.outline(canvas),
                     down(ridge.base - 40, ridge.base + 90,
                          {{0, colour}, {1, mixed(colour, haze, 0.55 - 0.1 * layer)}}));
    }
    canvas.shape(
        QPolygonF{
            {-10, 560}, {140, 546}, {330, 552}, {430, 566}, {300, 580}, {80, 592}, {-10, 596}},
        down(546, 596, {{0, QColor(255, 232, 190)}, {1, QColor(176, 176, 190)}}));
    const Ridge wood{622, 40, 360, 98};
    canvas.shape(wood.outline(canvas),
                 down(580, 700, {{0, QColor(96, 122, 92)}, {1, QColor(70, 92, 62)}}));
    spruceLine(canvas, wood, 120, 66, QColor(50, 82, 64), dice);
    QPainterPath knoll(QPointF(-10, 720));
    knoll.cubicTo(260, 690, 520, 590, 770, 588);
    knoll.cubicTo(960, 588, 1090, 640, 1210, 668);
    knoll.lineTo(1210, 810);
    knoll.lineTo(-10, 810);
    canvas.painter.fillPath(
        knoll,
        down(588, 800,
             {{0, QColor(206, 186, 92)}, {0.4, QColor(150, 146, 68)}, {1, QColor(72, 84, 44)}}));
    cross(canvas, 770, 606);
    hiker(canvas, 560, 632);
    grass(canvas, 690, 812, 54, QColor(84, 88, 40), QColor(230, 204, 104), dice);
    return canvas.finish();
}

} // namespace pinmora::samples
