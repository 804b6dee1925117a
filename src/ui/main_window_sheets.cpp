#include "ui/main_window.h"

#include "shell/pinmora_app_delegate.h"
#include "shell/subsystems.h"
#include "ui/error_dialog.h"
#include "ui/file_names.h"
#include "ui/full_view_window.h"
#include "ui/log_window.h"
#include "ui/missing_dialog.h"
#include "ui/open_panel_dialog.h"
#include "ui/progress_dialog.h"
#include "ui/quit_dialog.h"
#include "ui/remove_all_dialog.h"
#include "ui/rename_dialog.h"
#include "ui/save_dialog.h"

#include <QDesktopServices>
#include <QUrl>

#include <utility>

namespace pinmora {
namespace {

constexpr std::string_view saveFolderKey = "saveDir";     ///< where copies were last put
constexpr std::string_view searchFolderKey = "searchDir"; ///< where photos were last looked for

} // namespace

/// What is not seen at first is made when it is first needed, and finds its outlets as they are
/// then.
void MainWindow::whenUp(Sheet &sheet, std::function<SheetDialog *()> make) {
    bindings_.watch(sheet.host(), [make = std::move(make), made = false](Window *host) mutable {
        if (host && !std::exchange(made, true)) {
            make()->showIfUp();
        }
    });
}

void MainWindow::addSheets() {
    const WidgetOf widgetOf = [this](const Window &window) -> QWidget * {
        return &window == &delegate_.interface.window ? this : nullptr;
    };
    whenUp(delegate_.interface.progress.progressWindow, [this, widgetOf] {
        return new ProgressDialog(delegate_.interface.progress, widgetOf, this);
    });
    whenUp(delegate_.interface.errors.errorWindow, [this, widgetOf] {
        return new ErrorDialog(delegate_.interface.errors, widgetOf, this);
    });
    whenUp(parts_.quitWarning.quitWarning,
           [this, widgetOf] { return new QuitDialog(parts_.quitWarning, widgetOf, this); });
    whenUp(parts_.renamingOutlets.nameChange, [this, widgetOf] {
        return new RenameDialog(parts_.renamingOutlets, parts_.renaming, delegate_.notifications,
                                widgetOf, this);
    });
    new OpenPanelDialog(parts_.photoIntake.panel, widgetOf, this);
    new OpenPanelDialog(parts_.gpsIntake.panel, widgetOf, this);
    addSavingSheets(widgetOf);
    addWindows();
}

void MainWindow::addSavingSheets(const WidgetOf &widgetOf) {
    new OpenPanelDialog(parts_.saveOutlets.folderChooser, widgetOf, this,
                        FolderSetting{delegate_.defaults, saveFolderKey});
    whenUp(parts_.saveOutlets.saveWindow,
           [this, widgetOf] { return new SaveDialog(parts_.saveOutlets, widgetOf, this); });
    whenUp(parts_.removeAllPhotos.removeAllWindow, [this, widgetOf] {
        return new RemoveAllDialog(parts_.removeAllPhotos, widgetOf, this);
    });
    whenUp(parts_.missingOutlets.pictErrorWindow, [this, widgetOf] {
        auto *const dialog = new MissingDialog(parts_.missingOutlets, parts_.missingPhotos,
                                               parts_.fileBrowser, widgetOf, this);
        new OpenPanelDialog(
            parts_.missingOutlets.findInFolderPanel, [dialog](const Window &) { return dialog; },
            dialog, FolderSetting{delegate_.defaults, searchFolderKey});
        return dialog;
    });
}

void MainWindow::addWindows() {
    bindings_.watch(delegate_.interface.fullView.visible, [this](bool visible) {
        if (visible && !fullView_) {
            fullView_ =
                new FullViewWindow(delegate_.interface.fullView,
                                   delegate_.interface.preview.theImageViewLarge, parts_.preview);
        }
    });
    bindings_.watch(parts_.logWindow.visible, [this](bool visible) {
        if (visible && !log_) {
            log_ = new LogWindow(parts_.logWindow, parts_.log, delegate_.interface.workspace);
        }
    });
    bindings_.keep(delegate_.interface.workspace.opened.connect(
        [](const std::string &path) { QDesktopServices::openUrl(fileUrl(path)); }));
}

} // namespace pinmora
