#pragma once

#include <QString>

#include <chrono>
#include <optional>
#include <string_view>

namespace pinmora {

class image;

/// How a photo came by its position, as lists show it. Nothing for one without a position, or of
/// which that is not known.
namespace position_origin {

/// Name of the icon that stands for it.
std::string_view sign(const image &photo);
/// "From the log, 3 s from the nearest point", "Placed on the map"
QString words(const image &photo);
/// The time between photo and point, for one that has been placed at a point.
std::optional<std::chrono::seconds> gap(const image &photo);
/// Whether no log was running when it was taken.
bool isFar(const image &photo);

} // namespace position_origin

} // namespace pinmora
