#pragma once

#include "outlets/controls.h"

#include <QImage>

#include <memory>

namespace pinmora {

/// A decoded picture, shared by all who show it; null: an empty one.
using Picture = std::shared_ptr<const QImage>;

/// Shows one picture, scaled to fit.
struct ImageWell : Control {
    Observable<Picture> image;
};

} // namespace pinmora
