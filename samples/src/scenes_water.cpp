#include "painting.h"
#include "plants.h"
#include "scenes.h"

#include <cmath>

namespace pinmora::samples {

namespace {

/// A tower of granite: lit flank, shadow flank, snow in the steps of its foot.
void tower(Canvas &canvas, double x, double foot, double tall, double half, unsigned seed) {
    const double tip = foot - tall;
    QPolygonF left{{x, tip}};
    QPolygonF right{{x, tip}};
    QPolygonF edge;
    for (int step = 1; step <= 14; ++step) {
        const double part = step / 14.0;
        const double spread = half * (0.55 * part + 0.45 * part * part);
        const double y = tip + tall * part;
        left << QPointF(x - half * 0.05 - spread * (1 + 0.22 * noise(step * 0.9, seed)), y);
        right << QPointF(x + half * 0.07 + spread * (1 + 0.22 * noise(step * 0.9, seed + 1)), y);
        edge << QPointF(x + half * (0.02 + 0.15 * part * noise(step * 0.8, seed + 2)), y);
    }
    QPolygonF lit = left;
    QPolygonF dark = right;
    for (auto i = edge.size() - 1; i >= 0; --i) {
        lit << edge[i];
        dark << edge[i];
    }
    canvas.shape(lit, down(tip, foot,
                           {{0, QColor(236, 190, 150)},
                            {0.6, QColor(196, 160, 142)},
                            {1, QColor(168, 152, 150)}}));
    canvas.shape(dark, down(tip, foot, {{0, QColor(128, 106, 116)}, {1, QColor(112, 112, 130)}}));
    for (int crack = 0; crack < 5; ++crack) {
        const double y = tip + tall * (0.35 + 0.12 * crack);
        const double at = x - half * (0.04 + 0.05 * crack);
        canvas.shape(
            QPolygonF{{at, y - tall * 0.12}, {at + 5, y}, {at - 7, y + tall * 0.14}, {at - 4, y}},
            QColor(244, 244, 250, 190));
    }
}

void sunGlitter(Canvas &canvas, double x, double line, Dice &dice) {
    for (int i = 0; i < 300; ++i) {
        const double nearness = std::pow(dice.between(0, 1), 1.4);
        const double spread = 14 + 120 * nearness;
        canvas.ellipse({x + dice.between(-1, 1) * spread * dice.between(0.2, 1),
                        line + 2 + nearness * (canvas.height - line)},
                       5 + 26 * nearness * dice.between(0.3, 1), 0.8 + 1.8 * nearness,
                       QColor(255, 226, 160, 120));
    }
}

/// Two people on a bench, seen from behind against the light.
void benchWithTwo(Canvas &canvas, double x, double y, const QColor &dark) {
    canvas.box(x - 74, y - 42, 148, 9, dark);
    canvas.box(x - 74, y - 27, 148, 9, dark);
    canvas.box(x - 78, y - 8, 156, 8, dark);
    for (const double leg : {-64.0, 56.0})
        canvas.box(x + leg, y - 44, 8, 78, dark);
    for (const double seat : {-28.0, 22.0}) {
        const double tall = seat < 0 ? 0 : 9;
        canvas.shape(QPolygonF{{x + seat - 23, y},
                               {x + seat - 21, y - 50 + tall},
                               {x + seat - 9, y - 62 + tall},
                               {x + seat + 9, y - 62 + tall},
                               {x + seat + 21, y - 50 + tall},
                               {x + seat + 23, y}},
                     dark);
        canvas.ellipse({x + seat + (seat < 0 ? 3 : -4), y - 77 + tall}, 13, 15, dark);
    }
}

} // namespace

QImage patagonia() {
    Canvas canvas(1200, 800);
    Dice dice(371);
    canvas.box(
        0, 0, 1200, 800,
        down(
            0, 480,
            {{0, QColor(62, 124, 190)}, {0.6, QColor(146, 190, 222)}, {1, QColor(226, 232, 230)}}));
    for (int i = 0; i < 5; ++i) {
        const QPointF at(170 + 230 * i + dice.between(-40, 40), 70 + dice.between(0, 90));
        for (int veil = 0; veil < 4; ++veil)
            canvas.ellipse(at + QPointF(18 * veil, -9 * veil), 150 - 26 * veil, 13 - 2 * veil,
                           QColor(255, 255, 255, 70));
    }
    tower(canvas, 372, 452, 150, 120, 11);
    tower(canvas, 838, 452, 186, 130, 12);
    tower(canvas, 742, 452, 262, 120, 13);
    tower(canvas, 486, 452, 236, 128, 14);
    tower(canvas, 610, 452, 372, 176, 15);
    const Ridge snow{436, 46, 210, 26, true};
    canvas.shape(snow.outline(canvas),
                 down(360, 480, {{0, QColor(250, 250, 253)}, {1, QColor(196, 212, 228)}}));
    const Ridge moraine{455, 40, 240, 24};
    canvas.shape(moraine.outline(canvas),
                 down(420, 500, {{0, QColor(142, 122, 108)}, {1, QColor(112, 98, 84)}}));
    const Ridge wood{492, 26, 150, 25};
    canvas.shape(wood.outline(canvas), QColor(98, 92, 56));
    for (int i = 0; i < 90; ++i) {
        const double x = dice.between(-10, 1210);
        broadTree(canvas, {x, wood.top(x) + 6}, dice.between(7, 15),
                  i % 3 == 0 ? QColor(176, 92, 52) : QColor(120, 122, 62), dice);
    }
    water(canvas, 512, QColor(38, 142, 152), QColor(206, 240, 236), dice);
    const Ridge shore{716, 60, 420, 27};
    canvas.shape(shore.outline(canvas),
                 down(660, 800, {{0, QColor(196, 168, 104)}, {1, QColor(128, 100, 60)}}));
    for (int i = 0; i < 26; ++i) {
        const double x = dice.between(0, 1200);
        const double y = shore.top(x) + dice.between(-4, 40);
        const double r = dice.between(7, 24);
        canvas.ellipse({x, y}, r * 1.4, r, QColor(122, 116, 116));
        canvas.ellipse({x - r * 0.25, y - r * 0.25}, r, r * 0.62, QColor(166, 160, 156));
    }
    grass(canvas, 735, 812, 62, QColor(142, 110, 58), QColor(226, 196, 120), dice);
    return canvas.finish();
}

QImage sunset() {
    Canvas canvas(1200, 800);
    Dice dice(418);
    const QPointF sun(705, 372);
    canvas.box(0, 0, 1200, 800,
               down(0, 430,
                    {{0, QColor(58, 60, 118)},
                     {0.35, QColor(150, 92, 142)},
                     {0.66, QColor(238, 130, 98)},
                     {0.9, QColor(255, 194, 108)},
                     {1, QColor(255, 222, 150)}}));
    canvas.box(0, 0, 1200, 800,
               glow(sun, 430,
                    {{0, QColor(255, 240, 190, 230)},
                     {0.25, QColor(255, 205, 120, 130)},
                     {1, QColor(255, 170, 90, 0)}}));
    for (int i = 0; i < 46; ++i) {
        const double y = dice.between(50, 300);
        const double x = dice.between(0, 1200);
        const double length = dice.between(60, 210);
        for (int strand = 0; strand < 3; ++strand)
            canvas.ellipse({x + dice.between(-40, 40), y + 6 * strand},
                           length * dice.between(0.5, 1), dice.between(2, 5.5),
                           strand == 2 ? QColor(255, 216, 150, 58) : QColor(190, 84, 110, 46));
    }
    canvas.ellipse(sun, 40, 40,
                   glow(sun, 40,
                        {{0, QColor(255, 255, 236)},
                         {0.85, QColor(255, 244, 196)},
                         {1, QColor(255, 226, 150)}}));
    const Ridge jura{398, 34, 330, 31};
    canvas.shape(jura.outline(canvas),
                 down(360, 440, {{0, QColor(196, 106, 104)}, {1, QColor(236, 150, 112)}}));
    const Ridge hills{424, 30, 260, 33};
    canvas.shape(hills.outline(canvas),
                 down(395, 460, {{0, QColor(134, 76, 104)}, {1, QColor(190, 108, 110)}}));
    const Ridge bank{450, 16, 180, 34};
    canvas.shape(bank.outline(canvas), QColor(92, 54, 88));
    water(canvas, 458, QColor(120, 66, 104), QColor(255, 206, 150), dice);
    sunGlitter(canvas, sun.x(), 458, dice);
    const Ridge near{694, 40, 420, 37};
    canvas.shape(near.outline(canvas),
                 down(600, 800, {{0, QColor(52, 34, 58)}, {1, QColor(26, 18, 36)}}));
    spruceLine(canvas, Ridge{728, 36, 300, 36}, 60, 62, QColor(38, 26, 48), dice);
    const Ridge lawn{748, 14, 500, 38};
    canvas.shape(lawn.outline(canvas), QColor(24, 17, 32));
    grass(canvas, 750, 800, 22, QColor(24, 17, 32), QColor(58, 38, 56), dice);
    canvas.shape(QPolygonF{{122, 752}, {140, 470}, {166, 470}, {186, 752}}, QColor(24, 17, 32));
    for (const QPointF bough :
         {QPointF(60, 520), QPointF(236, 500), QPointF(30, 420), QPointF(256, 400),
          QPointF(150, 470), QPointF(110, 350), QPointF(196, 340), QPointF(150, 420)})
        crown(canvas, bough, 92, QColor(36, 26, 46), dice);
    benchWithTwo(canvas, 470, 722, QColor(20, 14, 28));
    return canvas.finish();
}

} // namespace pinmora::samples
