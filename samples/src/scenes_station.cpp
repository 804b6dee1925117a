#include "painting.h"
#include "plants.h"
#include "scenes.h"

#include <cmath>
#include <numbers>

namespace pinmora::samples {

namespace {

const QColor plaster(240, 216, 168);
const QColor stone(206, 188, 158);
const QColor tile(168, 78, 58);

/// A clock that shows 17:36:00: a picture of it tells how wrong the camera's clock is.
void clock(Canvas &canvas, QPointF at, double radius) {
    canvas.ellipse(at + QPointF(4, 8), radius * 1.16, radius * 1.16, QColor(70, 50, 40, 90));
    canvas.ellipse(at, radius * 1.15, radius * 1.15, QColor(52, 60, 72));
    canvas.ellipse(at, radius * 1.07, radius * 1.07, QColor(196, 166, 98));
    canvas.ellipse(at, radius, radius, QColor(252, 250, 242));
    const auto bar = [&](double turns, double from, double to, double half, const QColor &colour) {
        canvas.painter.save();
        canvas.painter.translate(at);
        canvas.painter.rotate(turns * 360);
        canvas.box(-half * radius, -to * radius, 2 * half * radius, (to - from) * radius, colour);
        canvas.painter.restore();
    };
    const QColor ink(34, 36, 44);
    for (int minute = 0; minute < 60; ++minute) {
        const bool hour = minute % 5 == 0;
        bar(minute / 60.0, hour ? (minute % 15 == 0 ? 0.68 : 0.76) : 0.88, 0.94,
            hour ? 0.03 : 0.011, ink);
    }
    clockHands(canvas, at, radius, 17, 36, ink);
    bar(0, -0.24, 0.88, 0.012, QColor(196, 44, 38));
    canvas.ellipse(at, radius * 0.06, radius * 0.06, QColor(196, 44, 38));
}

/// A window with a round head, sandstone frame, panes, and a box of geraniums.
void window(Canvas &canvas, double x, double y, double wide, double tall, bool flowers,
            Dice &dice) {
    const auto arch = [&](double grow, const QBrush &brush) {
        QPainterPath path;
        path.moveTo(x - grow, y + tall + grow);
        path.lineTo(x - grow, y + wide / 2);
        path.arcTo(QRectF(x - grow, y - grow, wide + 2 * grow, wide + 2 * grow), 180, -180);
        path.lineTo(x + wide + grow, y + tall + grow);
        canvas.painter.fillPath(path, brush);
    };
    arch(9, stone.lighter(112));
    arch(0,
         down(y, y + tall,
              {{0, QColor(72, 92, 118)}, {0.5, QColor(128, 158, 182)}, {1, QColor(66, 76, 96)}}));
    canvas.box(x + wide / 2 - 2.5, y, 5, tall, QColor(244, 238, 222));
    for (const double bar : {0.36, 0.68})
        canvas.box(x, y + tall * bar, wide, 4, QColor(244, 238, 222));
    canvas.box(x - 14, y + tall, wide + 28, 9, stone.darker(112));
    for (int i = 0; flowers && i < 46; ++i) {
        const double r = dice.between(3, 6.5);
        canvas.ellipse({x + dice.between(-8, wide + 8), y + tall + dice.between(-14, 6)}, r, r,
                       i % 2 == 0 ? QColor(70, 120, 60) : QColor(214, 52, 60));
    }
}

/// The town's name on an enamel sign; drawn by strokes, so that no font is needed.
void nameSign(Canvas &canvas, double x, double y) {
    canvas.box(x - 4, y - 4, 178, 72, QColor(236, 236, 240));
    canvas.box(x, y, 170, 64, QColor(28, 62, 122));
    canvas.painter.save();
    canvas.painter.setBrush(Qt::NoBrush);
    canvas.painter.setPen(QPen(Qt::white, 8, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    canvas.painter.drawPolyline(
        QPolygonF{{x + 24, y + 15}, {x + 54, y + 15}, {x + 24, y + 49}, {x + 54, y + 49}});
    QPainterPath u(QPointF(x + 72, y + 15));
    u.lineTo(x + 72, y + 34);
    u.arcTo(QRectF(x + 72, y + 19, 28, 30), 180, 180);
    u.lineTo(x + 100, y + 15);
    canvas.painter.drawPath(u);
    QPainterPath g;
    g.arcMoveTo(QRectF(x + 117, y + 15, 33, 34), 45);
    g.arcTo(QRectF(x + 117, y + 15, 33, 34), 45, 300);
    g.lineTo(x + 150, y + 34);
    g.lineTo(x + 138, y + 34);
    canvas.painter.drawPath(g);
    canvas.painter.restore();
}

void wings(Canvas &canvas, Dice &dice) {
    for (const double x : {-20.0, 805.0}) {
        canvas.box(x, 330, 415, 300, down(330, 630, {{0, plaster}, {1, plaster.darker(112)}}));
        canvas.shape(QPolygonF{{x - 16, 332}, {x + 44, 246}, {x + 371, 246}, {x + 431, 332}},
                     down(246, 332, {{0, tile}, {1, tile.darker(118)}}));
        canvas.box(x - 16, 328, 447, 12, stone);
        for (int i = 0; i < 4; ++i)
            window(canvas, x + 48 + 92 * i, 380, 50, 100, true, dice);
        for (double row = 256; row < 326; row += 11)
            canvas.box(x + 2, row, 411, 1.5, QColor(90, 34, 28, 60));
    }
}

void pavilion(Canvas &canvas, Dice &dice) {
    canvas.box(372, 250, 456, 380, down(250, 630, {{0, plaster.lighter(106)}, {1, plaster}}));
    canvas.shape(QPolygonF{{346, 258}, {600, 66}, {854, 258}}, tile.darker(130));
    canvas.shape(QPolygonF{{384, 252}, {600, 90}, {816, 252}}, plaster.lighter(109));
    canvas.box(346, 250, 508, 15, stone.lighter(108));
    for (const double x : {372.0, 806.0})
        for (double y = 268; y < 620; y += 40)
            canvas.box(x, y, 22, 30, stone);
    for (int i = 0; i < 3; ++i)
        window(canvas, 426 + 136 * i, 470, 76, i == 1 ? 148 : 130, i != 1, dice);
    clock(canvas, {600, 310}, 118);
}

/// The roof over the platform with its iron posts, and the platform itself.
void platform(Canvas &canvas, Dice &dice) {
    canvas.box(0, 618, 1200, 182,
               down(618, 800, {{0, QColor(176, 170, 164)}, {1, QColor(122, 116, 114)}}));
    for (int i = 0; i < 24; ++i) {
        const double x = 600 + (i - 11.5) * 58;
        canvas.shape(QPolygonF{{x, 620},
                               {x + 2, 620},
                               {600 + (x - 600) * 1.55, 742},
                               {597 + (x - 600) * 1.55, 742}},
                     QColor(96, 90, 88, 90));
    }
    canvas.box(0, 716, 1200, 14, QColor(244, 214, 90));
    canvas.box(0, 744, 1200, 56, QColor(86, 78, 76));
    canvas.box(0, 742, 1200, 6, QColor(206, 200, 192));
    for (int i = 0; i < 260; ++i)
        canvas.ellipse({dice.between(0, 1200), dice.between(756, 800)}, dice.between(3, 8),
                       dice.between(2, 4),
                       mixed(QColor(70, 60, 58), QColor(150, 140, 132), dice.between(0, 1)));
    canvas.box(0, 772, 1200, 7, QColor(176, 170, 172));
    const QColor iron(44, 72, 68);
    for (const double x : {60.0, 292.0, 900.0, 1132.0}) {
        canvas.box(x - 6, 530, 12, 178, iron);
        canvas.box(x - 11, 700, 22, 10, iron);
        for (const double side : {-1.0, 1.0})
            canvas.shape(QPolygonF{{x, 574}, {x + 44 * side, 532}, {x + 34 * side, 532}, {x, 564}},
                         iron);
    }
    for (const double x : {-10.0, 845.0}) {
        canvas.box(x, 516, 365, 18, iron.lighter(125));
        for (double tooth = x; tooth + 14 < x + 366; tooth += 14)
            canvas.shape(QPolygonF{{tooth, 534}, {tooth + 14, 534}, {tooth + 7, 546}},
                         iron.lighter(125));
    }
    for (const double x : {440.0, 690.0}) {
        canvas.box(x, 664, 90, 9, QColor(140, 88, 52));
        canvas.box(x, 642, 90, 8, QColor(158, 100, 58));
        canvas.box(x + 8, 642, 6, 60, iron);
        canvas.box(x + 76, 642, 6, 60, iron);
    }
}

/// A walker with rucksack and stick who waits for the others.
void walker(Canvas &canvas, double x, double y) {
    canvas.ellipse({x + 8, y + 2}, 40, 6, QColor(50, 40, 40, 90));
    canvas.box(x - 14, y - 62, 13, 62, QColor(66, 74, 92));
    canvas.box(x + 2, y - 62, 13, 62, QColor(58, 64, 82));
    canvas.shape(
        QPolygonF{{x - 20, y - 56}, {x - 17, y - 122}, {x + 17, y - 122}, {x + 20, y - 56}},
        QColor(38, 116, 128));
    canvas.painter.setBrush(QColor(220, 104, 44));
    canvas.painter.drawRoundedRect(QRectF(x - 38, y - 120, 30, 56), 9, 9);
    canvas.ellipse({x, y - 138}, 14, 16, QColor(226, 178, 142));
    canvas.shape(
        QPolygonF{{x - 24, y - 142}, {x - 12, y - 158}, {x + 12, y - 158}, {x + 24, y - 142}},
        QColor(204, 176, 112));
    canvas.box(x + 30, y - 92, 4, 92, QColor(120, 84, 54));
    canvas.shape(
        QPolygonF{{x + 14, y - 116}, {x + 34, y - 88}, {x + 29, y - 82}, {x + 10, y - 100}},
        QColor(32, 100, 112));
}

} // namespace

QImage station() {
    Canvas canvas(1200, 800);
    Dice dice(412);
    canvas.box(0, 0, 1200, 800,
               down(0, 420, {{0, QColor(70, 136, 204)}, {1, QColor(196, 222, 236)}}));
    cloud(canvas, {190, 190}, 330, QColor(255, 255, 255), QColor(206, 218, 234), dice);
    cloud(canvas, {1040, 150}, 360, QColor(255, 255, 255), QColor(206, 218, 234), dice);
    const Ridge hill{216, 46, 420, 41};
    canvas.shape(hill.outline(canvas),
                 down(210, 330, {{0, QColor(98, 136, 116)}, {1, QColor(132, 164, 120)}}));
    wings(canvas, dice);
    pavilion(canvas, dice);
    platform(canvas, dice);
    nameSign(canvas, 92, 424 + 128);
    walker(canvas, 986, 700);

    return canvas.finish();
}

} // namespace pinmora::samples
