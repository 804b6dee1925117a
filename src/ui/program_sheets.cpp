#include "ui/program_sheets.h"

#include "shell/pinmora_app_delegate.h"
#include "shell/subsystems.h"
#include "ui/cameras_dialog.h"
#include "ui/error_dialog.h"
#include "ui/file_names.h"
#include "ui/full_view_window.h"
#include "ui/log_window.h"
#include "ui/manual_window.h"
#include "ui/missing_dialog.h"
#include "ui/open_panel_dialog.h"
#include "ui/preferences/preferences_window.h"
#include "ui/progress_dialog.h"
#include "ui/quit_dialog.h"
#include "ui/remove_all_dialog.h"
#include "ui/rename_dialog.h"
#include "ui/save_dialog.h"
#include "ui/true_time_dialog.h"
#include "ui/update_window.h"

#include <QDesktopServices>
#include <QUrl>

#include <utility>

namespace pinmora {
namespace {

constexpr std::string_view saveFolderKey = "saveDir";     ///< where copies were last put
constexpr std::string_view searchFolderKey = "searchDir"; ///< where photos were last looked for

} // namespace

ProgramSheets::ProgramSheets(Pinmora_AppDelegate &delegate, WidgetOf widgetOf)
    : delegate_(delegate), parts_(delegate.subsystems()), widgetOf_(std::move(widgetOf)) {
    addSheets();
    addSavingSheets();
    addWindows();
}

ProgramSheets::~ProgramSheets() = default;

/// The dialog finds its outlets as they are when it is made.
void ProgramSheets::whenUp(Sheet &sheet, std::function<SheetDialog *()> make) {
    bindings_.watch(sheet.host(), [make = std::move(make), made = false](Window *host) mutable {
        if (host && !std::exchange(made, true)) {
            make()->showIfUp();
        }
    });
}

void ProgramSheets::addSheets() {
    whenUp(delegate_.interface.progress.progressWindow,
           [this] { return new ProgressDialog(delegate_.interface.progress, widgetOf_, &owner_); });
    whenUp(delegate_.interface.errors.errorWindow,
           [this] { return new ErrorDialog(delegate_.interface.errors, widgetOf_, &owner_); });
    whenUp(parts_.quitWarning.quitWarning,
           [this] { return new QuitDialog(parts_.quitWarning, widgetOf_, &owner_); });
    whenUp(parts_.renamingOutlets.nameChange, [this] {
        return new RenameDialog(parts_.renamingOutlets, parts_.renaming, delegate_.notifications,
                                widgetOf_, &owner_);
    });
    whenUp(parts_.trueTime.sheet, [this] {
        return new TrueTimeDialog(parts_.trueTime, delegate_.interface.preview.theImageViewLarge,
                                  parts_.preview.loading, widgetOf_, &owner_);
    });
    whenUp(parts_.cameras.sheet, [this] {
        return new CamerasDialog(parts_.cameras, delegate_.editing, widgetOf_, &owner_);
    });
    new OpenPanelDialog(parts_.photoIntake.panel, widgetOf_, &owner_);
    new OpenPanelDialog(parts_.gpsIntake.panel, widgetOf_, &owner_);
}

void ProgramSheets::addSavingSheets() {
    new OpenPanelDialog(parts_.saveOutlets.folderChooser, widgetOf_, &owner_,
                        FolderSetting{delegate_.defaults, saveFolderKey});
    whenUp(parts_.saveOutlets.saveWindow,
           [this] { return new SaveDialog(parts_.saveOutlets, widgetOf_, &owner_); });
    whenUp(parts_.removeAllPhotos.removeAllWindow,
           [this] { return new RemoveAllDialog(parts_.removeAllPhotos, widgetOf_, &owner_); });
    whenUp(parts_.missingOutlets.pictErrorWindow, [this] {
        auto *const dialog = new MissingDialog(parts_.missingOutlets, parts_.missingPhotos,
                                               parts_.fileBrowser, widgetOf_, &owner_);
        new OpenPanelDialog(
            parts_.missingOutlets.findInFolderPanel, [dialog](const Window &) { return dialog; },
            dialog, FolderSetting{delegate_.defaults, searchFolderKey});
        return dialog;
    });
}

void ProgramSheets::addWindows() {
    bindings_.watch(delegate_.interface.fullView.visible, [this](bool visible) {
        if (visible && !fullView_) {
            fullView_ = std::make_unique<FullViewWindow>(
                delegate_.interface.fullView, delegate_.interface.preview.theImageViewLarge,
                parts_.preview);
        }
    });
    bindings_.watch(parts_.logWindow.visible, [this](bool visible) {
        if (visible && !log_) {
            log_ = std::make_unique<LogWindow>(parts_.logWindow, parts_.log,
                                               delegate_.interface.workspace);
        }
    });
    bindings_.watch(parts_.manualWindow.visible, [this](bool visible) {
        if (visible && !manual_) {
            manual_ = std::make_unique<ManualWindow>(parts_.manualWindow);
        }
    });
    bindings_.watch(parts_.preferencesWindow.visible, [this](bool visible) {
        if (visible && !preferences_) {
            preferences_ = std::make_unique<PreferencesWindow>(
                parts_.preferencesWindow, parts_.preferences,
                parts_.versionCheck.build().versionInfoUrl,
                [this] { return widgetOf_(delegate_.interface.workingWindow()); });
        }
    });
    bindings_.watch(parts_.versionCheck.testUpdate, [this](updateTest *update) {
        if (update && !update_) {
            update_ = std::make_unique<UpdateWindow>(*update);
        }
    });
    bindings_.keep(delegate_.interface.workspace.opened.connect(
        [](const std::string &path) { QDesktopServices::openUrl(fileUrl(path)); }));
    bindings_.keep(
        delegate_.interface.workspace.addressOpened.connect([](const std::string &address) {
            QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
        }));
}

} // namespace pinmora
