#pragma once

#include "outlets/signal.h"

#include <string>

namespace pinmora {

/// The page that shows the map; it is spoken to in scripts.
struct MapView {
    /// What the page is to run. The page is responsible for scripts that come before it is ready.
    Signal<const std::string &> scripts;

    void evaluate(const std::string &script) const { scripts.emit(script); }
};

} // namespace pinmora
