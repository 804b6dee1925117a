#pragma once

#include "outlets/observable.h"

namespace pinmora {

/// A place that shows, while files are dragged over its window, that they may be dropped.
struct dragDropArea {
    Observable<bool> hasShadow{false};

    void setHasShadow(bool yes) { hasShadow.set(yes); }
};

} // namespace pinmora
