#pragma once

#include "outlets/controls.h"

#include <string>
#include <vector>

namespace pinmora {

/// A browser in columns, one for each level below a folder. Paths are bytes and begin at that
/// folder: "/Pictures/lake.jpg".
struct BrowserView : Control {
    /// The entries that are selected in the column that has the keyboard.
    Observable<std::vector<std::string>> selection;
    /// An entry was clicked twice or confirmed with the keyboard; it is selected.
    Signal<> doubleClicked;
    /// Asks for all columns to be read anew from the first, nothing selected.
    Signal<> columnZeroLoaded;

    /// The selected entry; "" for none and for several.
    std::string path() const {
        return selection.get().size() == 1 ? selection.get().front() : std::string();
    }
    void loadColumnZero() {
        selection.set({});
        columnZeroLoaded.emit();
    }
};

} // namespace pinmora
