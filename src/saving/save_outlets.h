#pragma once

#include "outlets/controls.h"
#include "outlets/open_panel.h"
#include "outlets/window.h"

namespace pinmora {

/// What shows a save.
struct SaveOutlets {
    Button savePhotosButton{}; ///< disabled while a run is under way
    OpenPanel folderChooser{};
    Sheet saveWindow{};
    TextField saveWhatDoing{};
    TextField saveProgress{};
    ProgressBar saveIndicator{}; ///< without a range while it is not known how long it takes
    Button cancelSaveButton{};
};

} // namespace pinmora
