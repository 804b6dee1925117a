#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <initializer_list>
#include <utility>

#include "dice.h"

namespace pinmora::samples {

/// A picture and the brush on it. Pens are off: everything is made of filled shapes.
struct Canvas {
    Canvas(int width, int height);

    /// Takes the finished picture out, with corners a little darker, as lenses make them.
    QImage finish();

    /// Fills the polygon or the ellipse with one brush.
    void shape(const QPolygonF &points, const QBrush &brush);
    void ellipse(QPointF centre, double rx, double ry, const QBrush &brush);
    void box(double x, double y, double width, double height, const QBrush &brush);

    double width;
    double height;
    QImage image;
    QPainter painter;
};

using Stops = std::initializer_list<std::pair<double, QColor>>;

/// A gradient from `top` down to `bottom`.
QLinearGradient down(double top, double bottom, Stops stops);

/// A gradient from the centre outwards.
QRadialGradient glow(QPointF centre, double radius, Stops stops);

QColor faded(QColor colour, double alpha);
QColor mixed(const QColor &from, const QColor &to, double part);

/// The hands of a clock face at `at`: the hour hand 0.55, the minute hand 0.85 of `radius` long.
void clockHands(Canvas &canvas, QPointF at, double radius, int hour, int minute,
                const QColor &colour);

/// Smooth noise in [-1, 1] over the line, with finer and finer detail.
double noise(double x, unsigned seed);

/// The outline of land: `height` around `base`, hills `wave` pixels long; with `peaks`, crests are
/// sharp and valleys wide.
struct Ridge {
    double base;
    double height;
    double wave;
    unsigned seed;
    bool peaks = false;

    double top(double x) const;
    QPolygonF outline(const Canvas &canvas) const; ///< closed along the lower edge of the picture
};

/// A heap of cloud with a flat floor; `at` is the middle of the floor.
void cloud(Canvas &canvas, QPointF at, double width, const QColor &lit, const QColor &shade,
           Dice &dice);

/// Turns everything below `line` into water that mirrors what is above, tinted towards `deep`, with
/// glints of the colour `glint`.
void water(Canvas &canvas, double line, const QColor &deep, const QColor &glint, Dice &dice);

} // namespace pinmora::samples
