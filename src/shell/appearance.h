#pragma once

#include <string>
#include <string_view>

namespace pinmora {

class Defaults;

/// How the program looks: as the desktop does, or one of the two.
enum class Appearance { System, Light, Dark };

/// The setting that says so: "light" or "dark", else the desktop's.
inline constexpr std::string_view appearanceKey = "appearance";

Appearance appearanceFrom(const Defaults &defaults);
std::string wordFor(Appearance appearance);

} // namespace pinmora
