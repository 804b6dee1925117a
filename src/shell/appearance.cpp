#include "shell/appearance.h"

#include "platform/defaults.h"

namespace pinmora {

Appearance appearanceFrom(const Defaults &defaults) {
    const std::string word = defaults.text(appearanceKey).value_or("");
    return word == "light"  ? Appearance::Light
           : word == "dark" ? Appearance::Dark
                            : Appearance::System;
}

std::string wordFor(Appearance appearance) {
    return appearance == Appearance::Light  ? "light"
           : appearance == Appearance::Dark ? "dark"
                                            : "desktop";
}

} // namespace pinmora
