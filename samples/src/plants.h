#pragma once

#include "painting.h"

namespace pinmora::samples {

/// A spruce with its foot at `foot`, light from the left.
void spruce(Canvas &canvas, QPointF foot, double height, const QColor &colour, Dice &dice);

/// A broad crown around `centre`, made of leaves from dark to light.
void crown(Canvas &canvas, QPointF centre, double radius, const QColor &colour, Dice &dice);

/// The same with a trunk below it.
void broadTree(Canvas &canvas, QPointF centre, double radius, const QColor &colour, Dice &dice);

/// Blades of grass with their feet between `top` and `bottom`, taller towards the front.
void grass(Canvas &canvas, double top, double bottom, double tallest, const QColor &dark,
           const QColor &light, Dice &dice);

/// A strip of spruces along a ridge, `count` of them.
void spruceLine(Canvas &canvas, const Ridge &ridge, int count, double height, const QColor &colour,
                Dice &dice);

} // namespace pinmora::samples
