#pragma once

#include "outlets/observable.h"

#include <string>

namespace pinmora {

/// Pages of which one is seen, each known by its identifier.
struct TabView {
    Observable<std::string> selectedIdentifier;
};

} // namespace pinmora
