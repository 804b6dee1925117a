#pragma once

#include <QImage>

#include <string>
#include <string_view>

namespace pinmora {

/// What a picture counts as that says nothing else.
inline constexpr std::string_view standardProfileName = "sRGB IEC61966-2.1";

/// The name that an ICC profile gives itself; empty where it cannot be read.
std::string nameOfProfile(std::string_view icc);

/// The picture in the colours of the screen (sRGB), and in a format that is drawn without another
/// conversion.
QImage readyToDraw(QImage image);

} // namespace pinmora
