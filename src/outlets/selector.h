#pragma once

#include "outlets/controls.h"

namespace pinmora {

/// A choice of one among cells, each known by its tag.
struct Selector : Control {
    Observable<int> selectedTag{0};
    Signal<> chosen;

    /// What a click on the cell with that tag does, also on the one that is selected already;
    /// nothing while the selector is disabled.
    void choose(int cellTag) {
        if (enabled.get()) {
            selectedTag.set(cellTag);
            chosen.emit();
        }
    }
};

} // namespace pinmora
