#pragma once

#include "matching/matching_outlets.h"
#include "outlets/error_sheet.h"
#include "outlets/map_view.h"
#include "outlets/progress_sheet.h"
#include "outlets/quiet_bar.h"
#include "outlets/status_line.h"
#include "outlets/tab_view.h"
#include "outlets/window.h"
#include "outlets/workspace.h"
#include "saving/save_flags.h"
#include "shell/preview.h"

namespace pinmora {

/// What the windows show that belongs to no subsystem in particular, or to several. The other
/// outlets are declared by those who use them.
struct Interface {
    Window window; ///< the main window
    Window wizardWindow;
    Window fullView; ///< one photo at full size
    bool inWizard = false;

    WorkingWindow workingWindow = [this]() -> Window & { return inWizard ? wizardWindow : window; };

    MapView webView1;
    MapView webView2; ///< the wizard's
    TabView mainTabs; ///< "1": position, "2": details
    Button addRemoveMarker;
    Button addRemoveMarker2;
    ObjectController<degrees> degreeObj;

    Workspace workspace;
    QuietBar quietBar;
    StatusLine statusLine;
    ProgressSheet progress{workingWindow};
    ErrorSheet errors{workingWindow};
    PreviewOutlets preview;

    /// Long work that fills the library is under way; no other may begin.
    bool loadRunning = false;
    SaveFlags saveFlags;
};

} // namespace pinmora
