#include "painting.h"
#include "plants.h"
#include "scenes.h"

namespace pinmora::samples {

namespace {

/// A house seen from its gable side, with shutters.
void house(Canvas &canvas, double x, double foot, double wide, double tall, const QColor &wall,
           const QColor &roof, const QColor &shutter) {
    const double eaves = foot - tall;
    const double crest = eaves - wide * 0.52;
    canvas.shape(
        QPolygonF{
            {x, foot}, {x, eaves}, {x + wide / 2, crest}, {x + wide, eaves}, {x + wide, foot}},
        wall);
    canvas.box(x + wide * 0.72, eaves, wide * 0.28, tall, QColor(60, 40, 50, 24));
    const double over = wide * 0.09;
    canvas.shape(QPolygonF{{x + wide / 2, crest - over},
                           {x + wide + over, eaves + over * 0.6},
                           {x + wide + over, eaves + over * 1.6},
                           {x + wide / 2, crest + over * 0.3},
                           {x - over, eaves + over * 1.6},
                           {x - over, eaves + over * 0.6}},
                 roof);
    const double pane = wide * 0.1;
    for (double y = eaves + pane * 0.6; y + pane * 1.5 < foot; y += pane * 2.5)
        for (const double part : {0.22, 0.5, 0.78}) {
            const double left = x + wide * part - pane / 2;
            canvas.box(left - pane * 0.55, y, pane * 0.45, pane * 1.4, shutter);
            canvas.box(left + pane * 1.1, y, pane * 0.45, pane * 1.4, shutter);
            canvas.box(left, y, pane, pane * 1.4, QColor(66, 78, 98));
            canvas.box(left + pane * 0.44, y, pane * 0.12, pane * 1.4, QColor(240, 236, 226));
        }
}

/// The old town: gables side by side, and the tower over them.
void oldTown(Canvas &canvas, double foot, Dice &dice) {
    const QColor walls[] = {QColor(246, 232, 202), QColor(238, 206, 160), QColor(232, 184, 150),
                            QColor(226, 222, 212), QColor(214, 196, 142), QColor(240, 220, 214)};
    const QColor shutters[] = {QColor(84, 118, 84), QColor(150, 62, 54), QColor(70, 92, 122)};
    canvas.box(836, foot - 296, 74, 296, QColor(232, 220, 196));
    canvas.box(888, foot - 296, 22, 296, QColor(60, 40, 50, 34));
    for (int i = 0; i < 8; ++i)
        canvas.shape(QPolygonF{{824.0 + 12.25 * i, foot - 288},
                               {836.25 + 12.25 * i, foot - 288},
                               {866 + 2.0 * i, foot - 402},
                               {865 + 2.0 * i, foot - 402}},
                     i % 2 == 0 ? QColor(244, 246, 250) : QColor(62, 116, 180));
    canvas.box(871, foot - 436, 4, 40, QColor(214, 176, 74));
    canvas.ellipse({873, foot - 438}, 6, 6, QColor(232, 196, 92));
    canvas.ellipse({868, foot - 244}, 24, 24, QColor(60, 72, 96));
    canvas.ellipse({868, foot - 244}, 20, 20, QColor(246, 240, 222));
    clockHands(canvas, {868, foot - 244}, 20, 18, 21, QColor(40, 40, 50));
    for (int row = 0; row < 2; ++row)
        for (int i = 0; i < 12; ++i) {
            const double wide = 66 + 12 * row + dice.between(-8, 14);
            house(canvas, 470 + 62 * i + 24 * row + dice.between(-8, 8), foot, wide,
                  (row == 0 ? 128 : 78) + dice.between(-14, 18), walls[(i * 5 + row * 2) % 6],
                  mixed(QColor(150, 74, 56), QColor(176, 100, 72), dice.between(0, 1)),
                  shutters[(i + row) % 3]);
        }
    for (int i = 0; i < 15; ++i)
        broadTree(canvas, {420 + 56 * i + dice.between(-12, 12), foot - 14}, dice.between(15, 25),
                  QColor(84, 136, 70), dice);
}

/// The landing stage on its piles, with the ticket hut, a lamp and a flag.
void landingStage(Canvas &canvas) {
    const QColor wood(128, 92, 64);
    canvas.box(0, 452, 520, 18, wood.lighter(130));
    canvas.box(0, 470, 520, 12, wood.darker(120));
    for (double x = 22; x < 520; x += 78) {
        canvas.box(x, 400, 9, 52, wood);
        canvas.box(x - 3, 482, 16, 84, wood.darker(150));
    }
    canvas.box(0, 408, 500, 6, wood.lighter(112));
    canvas.box(0, 428, 500, 4, wood.lighter(112));
    canvas.box(96, 318, 176, 136, QColor(246, 240, 226));
    canvas.box(96, 392, 176, 62, QColor(48, 104, 128));
    canvas.shape(QPolygonF{{70, 322}, {112, 252}, {256, 252}, {298, 322}}, QColor(88, 96, 104));
    canvas.box(70, 318, 228, 8, QColor(60, 66, 74));
    canvas.box(120, 340, 52, 42, QColor(58, 74, 96));
    canvas.box(198, 340, 52, 114, QColor(120, 74, 48));
    canvas.box(206, 348, 36, 44, QColor(96, 122, 142));
    canvas.box(406, 172, 7, 282, QColor(236, 236, 236));
    QPainterPath flag(QPointF(413, 178));
    flag.cubicTo(450, 160, 480, 200, 532, 178);
    flag.lineTo(532, 244);
    flag.cubicTo(480, 266, 450, 226, 413, 244);
    canvas.painter.fillPath(flag, QColor(246, 248, 250));
    QPainterPath band(QPointF(413, 200));
    band.cubicTo(450, 182, 480, 222, 532, 200);
    band.lineTo(532, 222);
    band.cubicTo(480, 244, 450, 204, 413, 222);
    canvas.painter.fillPath(band, QColor(44, 104, 178));
    for (int ring = 0; ring < 2; ++ring)
        canvas.ellipse({340.0, 432}, 19 - 9 * ring, 19 - 9 * ring,
                       ring == 0 ? QColor(226, 70, 50) : wood.lighter(130));
}

/// The rail of the ship, out of focus at the lower edge, and the lifebuoy on it.
void shipRail(Canvas &canvas) {
    const QColor white(246, 246, 244);
    for (const double x : {60.0, 420.0, 780.0, 1140.0})
        canvas.box(x, 660, 15, 140, white.darker(108));
    canvas.box(0, 648, 1200, 22,
               down(648, 670, {{0, QColor(176, 110, 62)}, {1, QColor(112, 64, 38)}}));
    for (const double y : {706.0, 746.0})
        canvas.box(0, y, 1200, 7, white.darker(104));
    canvas.painter.save();
    canvas.painter.setBrush(Qt::NoBrush);
    const QRectF ring(905, 672, 104, 104);
    canvas.painter.setPen(QPen(QColor(250, 250, 246), 27, Qt::SolidLine, Qt::FlatCap));
    canvas.painter.drawEllipse(ring);
    canvas.painter.setPen(QPen(QColor(212, 60, 44), 27, Qt::SolidLine, Qt::FlatCap));
    for (int part = 0; part < 4; ++part)
        canvas.painter.drawArc(ring, (25 + 90 * part) * 16, 40 * 16);
    canvas.painter.restore();
}

/// The church of the village: white nave, tower with a pointed red roof.
void villageChurch(Canvas &canvas, double x, double foot) {
    const QColor wall(250, 246, 236);
    const QColor roof(170, 70, 54);
    canvas.box(x + 96, foot - 150, 236, 150, wall.darker(105));
    canvas.shape(QPolygonF{{x + 84, foot - 144},
                           {x + 112, foot - 246},
                           {x + 318, foot - 246},
                           {x + 348, foot - 144}},
                 roof);
    for (int i = 0; i < 3; ++i) {
        const double left = x + 132 + 64 * i;
        canvas.painter.setBrush(QColor(72, 84, 106));
        canvas.painter.drawRoundedRect(QRectF(left, foot - 118, 26, 84), 13, 13);
    }
    canvas.box(x, foot - 372, 104, 372, wall);
    canvas.box(x + 74, foot - 372, 30, 372, QColor(70, 60, 90, 34));
    canvas.shape(QPolygonF{{x - 14, foot - 366},
                           {x + 14, foot - 430},
                           {x + 52, foot - 640},
                           {x + 90, foot - 430},
                           {x + 118, foot - 366}},
                 roof);
    canvas.shape(QPolygonF{{x + 52, foot - 640},
                           {x + 90, foot - 430},
                           {x + 118, foot - 366},
                           {x + 66, foot - 366}},
                 QColor(60, 16, 24, 60));
    canvas.box(x + 50, foot - 694, 4, 62, QColor(216, 178, 76));
    canvas.box(x + 40, foot - 678, 24, 4, QColor(216, 178, 76));
    canvas.ellipse({x + 52, foot - 636}, 7, 7, QColor(230, 194, 90));
    canvas.ellipse({x + 52, foot - 300}, 35, 35, QColor(196, 160, 84));
    canvas.ellipse({x + 52, foot - 300}, 31, 31, QColor(48, 66, 108));
    clockHands(canvas, {x + 52, foot - 300}, 31, 18, 31, QColor(240, 214, 120));
    for (const double left : {22.0, 58.0}) {
        canvas.painter.setBrush(QColor(58, 62, 78));
        canvas.painter.drawRoundedRect(QRectF(x + left, foot - 232, 24, 62), 12, 12);
    }
}

} // namespace

QImage pier() {
    Canvas canvas(1200, 800);
    Dice dice(413);
    canvas.box(0, 0, 1200, 800,
               down(0, 440, {{0, QColor(84, 152, 214)}, {1, QColor(222, 234, 236)}}));
    cloud(canvas, {250, 128}, 300, QColor(255, 255, 255), QColor(208, 222, 238), dice);
    cloud(canvas, {690, 176}, 240, QColor(255, 255, 255), QColor(212, 226, 240), dice);
    cloud(canvas, {1090, 120}, 280, QColor(255, 255, 255), QColor(208, 222, 238), dice);
    const Ridge far{252, 74, 520, 51};
    canvas.shape(far.outline(canvas),
                 down(180, 420, {{0, QColor(112, 152, 150)}, {1, QColor(156, 188, 150)}}));
    const Ridge near{330, 56, 380, 52};
    canvas.shape(near.outline(canvas),
                 down(290, 460, {{0, QColor(86, 132, 82)}, {1, QColor(142, 176, 96)}}));
    spruceLine(canvas, near, 60, 34, QColor(58, 98, 70), dice);
    oldTown(canvas, 478, dice);
    canvas.box(0, 472, 1200, 14, QColor(176, 168, 156));
    landingStage(canvas);
    water(canvas, 486, QColor(42, 104, 142), QColor(214, 234, 244), dice);
    for (double x = 22; x < 520; x += 78)
        canvas.box(x - 3, 482, 16, 60,
                   down(482, 542, {{0, QColor(70, 50, 36)}, {1, QColor(70, 50, 36, 0)}}));
    for (int i = 0; i < 90; ++i) {
        const double t = dice.between(0, 1);
        canvas.ellipse({330 + 300 * t + dice.between(-60, 60) * (0.4 + t), 506 + 160 * t},
                       16 + 44 * t, 1.5 + 4 * t, QColor(246, 252, 255, 80));
    }
    shipRail(canvas);
    return canvas.finish();
}

QImage church() {
    Canvas canvas(800, 1200);
    Dice dice(414);
    canvas.box(
        0, 0, 800, 1200,
        down(
            0, 700,
            {{0, QColor(88, 150, 210)}, {0.7, QColor(200, 222, 230)}, {1, QColor(244, 236, 210)}}));
    cloud(canvas, {610, 230}, 380, QColor(255, 253, 246), QColor(210, 220, 234), dice);
    cloud(canvas, {110, 330}, 260, QColor(255, 253, 246), QColor(214, 224, 236), dice);
    const Ridge far{470, 84, 420, 53};
    canvas.shape(far.outline(canvas),
                 down(380, 640, {{0, QColor(92, 134, 122)}, {1, QColor(140, 172, 126)}}));
    spruceLine(canvas, far, 260, 46, QColor(62, 104, 88), dice);
    const Ridge slope{640, 60, 500, 54};
    canvas.shape(slope.outline(canvas),
                 down(590, 860, {{0, QColor(148, 186, 92)}, {1, QColor(112, 152, 72)}}));
    for (int i = 0; i < 14; ++i) {
        const double x = dice.between(0, 800);
        broadTree(canvas, {x, slope.top(x) + dice.between(20, 90)}, dice.between(18, 30),
                  QColor(92, 140, 66), dice);
    }
    house(canvas, 24, 842, 138, 96, QColor(240, 216, 170), QColor(150, 80, 60),
          QColor(84, 118, 84));
    house(canvas, 650, 842, 150, 102, QColor(232, 226, 216), QColor(140, 74, 58),
          QColor(150, 62, 54));
    villageChurch(canvas, 270, 842);
    for (const double x : {196.0, 236.0, 620.0, 648.0, 776.0, 12.0})
        broadTree(canvas, {x + dice.between(-6, 6), 806}, dice.between(34, 48), QColor(84, 134, 62),
                  dice);
    canvas.box(0, 838, 800, 16,
               down(838, 854, {{0, QColor(196, 186, 166)}, {1, QColor(122, 112, 100)}}));
    water(canvas, 854, QColor(44, 102, 128), QColor(222, 238, 236), dice);
    for (int i = 0; i < 70; ++i) {
        const double x = dice.between(-10, 130);
        canvas.shape(QPolygonF{{x, 1210},
                               {x + dice.between(-6, 26), 1210 - dice.between(120, 300)},
                               {x + 7, 1210}},
                     mixed(QColor(72, 96, 44), QColor(168, 178, 92), dice.between(0, 1)));
    }
    return canvas.finish();
}

} // namespace pinmora::samples
