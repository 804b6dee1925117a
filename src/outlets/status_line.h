#pragma once

#include "outlets/controls.h"

namespace pinmora {

/// A line that tells what is going on.
struct StatusLine : TextField {
    /// Asks for the line to be drawn at once, as Sheet::displayed does.
    Signal<> displayed;

    void show(std::string words) {
        text.set(std::move(words));
        displayed.emit();
    }
};

} // namespace pinmora
