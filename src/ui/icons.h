#pragma once

#include <QIcon>

#include <string_view>

namespace pinmora {

/// One of the program's own icons (resources/icons/NAME.svg, drawn in "currentColor" and "accent")
/// in the colours in force, crisp at any scale.
QIcon icon(std::string_view name);
/// The same in the colour of quiet text.
QIcon quietIcon(std::string_view name);
/// The same in the accent colour.
QIcon accentIcon(std::string_view name);

} // namespace pinmora
