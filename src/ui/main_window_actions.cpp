#include "ui/main_window.h"

#include "places/place_settings.h"
#include "platform/defaults.h"
#include "shell/pinmora_app_delegate.h"
#include "shell/subsystems.h"
#include "ui/file_names.h"
#include "ui/photo_drag.h"
#include "ui/photo_panel.h"
#include "ui/theme.h"
#include "ui/undo_keys.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QDragEnterEvent>
#include <QEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>

#include <array>
#include <utility>

namespace pinmora {
namespace {

constexpr std::string_view lookKey = "appearance";
constexpr std::string_view geometryKey = "windowGeometry";
constexpr std::string_view columnsKey = "windowColumns";
constexpr std::string_view listsKey = "windowLists";

constexpr std::array looks{
    std::pair(ActionName::FollowDesktop, Appearance::System),
    std::pair(ActionName::LightLook, Appearance::Light),
    std::pair(ActionName::DarkLook, Appearance::Dark),
};

std::string_view wordFor(Appearance look) {
    return look == Appearance::Light ? "light" : look == Appearance::Dark ? "dark" : "desktop";
}

constexpr int messageTime = 5'000; // ms

/// Settings are texts.
QByteArray storedBytes(const Defaults &defaults, std::string_view key) {
    return QByteArray::fromBase64(QByteArray::fromStdString(defaults.text(key).value_or("")));
}

void storeBytes(Defaults &defaults, std::string_view key, const QByteArray &bytes) {
    defaults.setText(key, bytes.toBase64().toStdString());
}

DragInfo dragInfo(const QDropEvent &event, const QObject *mainWindow) {
    bool offersFiles = false;
    for (const QUrl &url : event.mimeData()->urls()) {
        offersFiles = offersFiles || url.isLocalFile();
    }
    const auto *source = qobject_cast<const QWidget *>(event.source());
    return {.offersFiles = offersFiles,
            .fromMainWindow = source && source->window() == mainWindow,
            .sourceOperations = static_cast<unsigned>(event.possibleActions().toInt())};
}

/// Whatever the source would like to do with its files: they are only read.
void answerDrag(QDropEvent &event, unsigned operations) {
    event.setDropAction(operations != 0 ? Qt::CopyAction : Qt::IgnoreAction);
    event.setAccepted(operations != 0);
}

} // namespace

Appearance appearanceFrom(const Defaults &defaults) {
    const std::string word = defaults.text(lookKey).value_or("");
    return word == "light"  ? Appearance::Light
           : word == "dark" ? Appearance::Dark
                            : Appearance::System;
}

void MainWindow::connectActions() {
    using enum ActionName;
    const auto on = [this](ActionName name, std::function<void()> act) {
        connect(actions_[name], &QAction::triggered, this, [act = std::move(act)] { act(); });
    };
    on(AddPhotos, [this] { parts_.photoIntake.menuLoadPhotos(); });
    on(LoadGpsData, [this] { parts_.gpsIntake.menuLoadGPSData(); });
    on(SaveLibrary, [this] {
        if (delegate_.library.saveAction()) {
            statusBar()->showMessage(tr("Library saved"), messageTime);
        }
    });
    on(RemoveAllPhotos, [this] { parts_.removeAllPhotos.openRemoveAll(); });
    on(Quit, [this] { quit(); });
    on(SelectAll, [this] { photos_->selectAll(); });
    on(SavePhotos, [this] { parts_.savePipeline.updatePicts(); });
    on(FullSize, [this] { parts_.inspector.imageFullView(); });
    on(Rename, [this] { parts_.renaming.photoNameChange(); });
    on(OriginalNames, [this] { parts_.renaming.revertPhotoNames(); });
    on(ApplyToAll, [this] { parts_.matcher.applyToAllPictures(); });
    on(RemoveGpsData, [this] { delegate_.library.removeAllGPSData(); });
    on(ShowPosition, [this] { delegate_.interface.mainTabs.selectedIdentifier.set("1"); });
    on(ShowDetails, [this] { delegate_.interface.mainTabs.selectedIdentifier.set("2"); });
    on(ActionName::SampleOuting, [this] { parts_.sampleOuting.load(); });
    on(ShowLog, [this] { parts_.logWindow.makeKeyAndOrderFront(); });
    on(About, [this] {
        QMessageBox::about(this, tr("About Pinmora"),
                           tr("<h3>Pinmora</h3><p>Puts photographs on the map.</p><p>Your photos "
                              "are only ever read; what Pinmora writes are copies.</p>"
                              "<p>Place names: GeoNames, CC BY 4.0. Bundled map: Natural "
                              "Earth.</p>"));
    });
    // Elsewhere the key means something else, or nothing.
    actions_[RemovePictures]->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    photos_->addAction(actions_[RemovePictures]);
    new UndoKeys(this);
    bindings_.tie(parts_.undoCommands.undoItem, actions_[Undo]);
    bindings_.tie(parts_.undoCommands.redoItem, actions_[Redo]);
    bindings_.tie(parts_.inspectorOutlets.removePictButton, actions_[RemovePictures]);
    bindings_.tie(parts_.matching.matchButton, actions_[MatchPhoto]);
    bindings_.tie(parts_.matching.offsetButton, actions_[SetFromPosition]);
    bindings_.tie(delegate_.interface.addRemoveMarker, actions_[ToggleMarker]);
    actions_[ActionName::Wizard]->setEnabled(false); // there is none yet
    actions_[ActionName::SampleOuting]->setEnabled(parts_.sampleOuting.isThere());
    bindings_.watch(parts_.saveOutlets.savePhotosButton.enabled, [this](bool) { enableSave(); });
    bindings_.watch(parts_.counts.counts, [this](const Counts &now) {
        for (const ActionName name : {Rename, OriginalNames, SelectAll, RemoveAllPhotos}) {
            actions_[name]->setEnabled(now.photos > 0);
        }
        enableSave();
        actions_[ApplyToAll]->setEnabled(now.photos > 0 && now.points > 0);
        actions_[RemoveGpsData]->setEnabled(now.tracks > 0);
    });
    actions_.addMenu(MenuName::View, photos_->sortMenu());
    QAction *const only = actions_[OnlyWithoutPosition];
    QAction *const filter = photos_->onlyWithoutPosition();
    connect(only, &QAction::toggled, filter, &QAction::setChecked);
    connect(filter, &QAction::toggled, only, &QAction::setChecked);
    connectPlaceNames();
}

void MainWindow::enableSave() {
    actions_[ActionName::SavePhotos]->setEnabled(parts_.counts.counts.get().photos > 0 &&
                                                 parts_.saveOutlets.savePhotosButton.enabled.get());
}

void MainWindow::connectPlaceNames() {
    QAction *const action = actions_[ActionName::LookUpPlaces];
    action->setChecked(looksUpPlaces(delegate_.defaults));
    connect(action, &QAction::toggled, this, [this](bool on) {
        delegate_.defaults.setText(lookUpPlacesKey, on ? "1" : "0");
        delegate_.defaults.synchronize();
        parts_.placeNames.setEnabled(on);
    });
}

void MainWindow::connectLooks(Appearance inForce) {
    auto *group = new QActionGroup(this);
    for (const auto &[name, look] : looks) {
        QAction *const action = actions_[name];
        group->addAction(action);
        action->setChecked(look == inForce);
        connect(action, &QAction::triggered, this, [this, chosen = look] { chooseLook(chosen); });
    }
}

void MainWindow::chooseLook(Appearance look) {
    delegate_.defaults.setText(lookKey, wordFor(look));
    delegate_.defaults.synchronize();
    applyTheme(*qApp, look);
}

void MainWindow::changeEvent(QEvent *event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ThemeChange) {
        applyTheme(*qApp, appearanceFrom(delegate_.defaults));
    } else if (event->type() == QEvent::PaletteChange) {
        actions_.refreshIcons();
    }
}

void MainWindow::restoreLayout() {
    const QByteArray geometry = storedBytes(delegate_.defaults, geometryKey);
    if (geometry.isEmpty() || !restoreGeometry(geometry)) {
        constexpr QSize frame(2, 38); // of a usual window manager: ours is known only later
        resize(QSize(1280, 800).boundedTo(screen()->availableSize() - frame));
    }
    if (!columns_->restoreState(storedBytes(delegate_.defaults, columnsKey))) {
        columns_->setSizes({width() * 13 / 32, width() * 19 / 32});
    }
    if (!lists_->restoreState(storedBytes(delegate_.defaults, listsKey))) {
        lists_->setSizes({440, 170});
    }
}

void MainWindow::keepLayout() {
    storeBytes(delegate_.defaults, geometryKey, saveGeometry());
    storeBytes(delegate_.defaults, columnsKey, columns_->saveState());
    storeBytes(delegate_.defaults, listsKey, lists_->saveState());
    delegate_.defaults.synchronize();
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event) {
    if (!isBusy() && !carriesPhotos(*event)) { // those are the map's
        answerDrag(*event, parts_.photoIntake.draggingEntered(dragInfo(*event, this)));
    }
}

void MainWindow::dragMoveEvent(QDragMoveEvent *event) {
    answerDrag(*event, parts_.photoIntake.draggingUpdated(dragInfo(*event, this)));
}

void MainWindow::dragLeaveEvent(QDragLeaveEvent *) {
    parts_.photoIntake.draggingExited();
}

/// The load waits until the drag has ended: its source is held up meanwhile.
void MainWindow::dropEvent(QDropEvent *event) {
    std::vector<std::string> paths;
    for (const QUrl &url : event->mimeData()->urls()) {
        if (std::string path = filePath(url); !path.empty()) {
            paths.push_back(std::move(path));
        }
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    whenIdle([this, paths = std::move(paths)] { parts_.photoIntake.performDragOperation(paths); });
}

} // namespace pinmora
