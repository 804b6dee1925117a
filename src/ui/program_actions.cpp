#include "ui/program_actions.h"

#include "shell/pinmora_app_delegate.h"
#include "shell/subsystems.h"
#include "ui/help_actions.h"
#include "ui/look_setting.h"
#include "ui/map_escape.h"
#include "ui/photo_panel.h"
#include "ui/undo_keys.h"
#include "ui/work_window.h"

#include <QAction>
#include <QMessageBox>
#include <QStatusBar>

#include <utility>

namespace pinmora {
namespace {

constexpr int messageTime = 5'000; // ms

} // namespace

ProgramActions::ProgramActions(Pinmora_AppDelegate &delegate, Surroundings surroundings,
                               QObject *parent)
    : QObject(parent), delegate_(delegate), parts_(delegate.subsystems()),
      surroundings_(std::move(surroundings)), actions_(this),
      endOfTurn_([this] { enableApplying(); }) {
    connectFiles();
    connectPhotos();
    connectClock();
    connectViews();
    connectPlaceNames();
    connectLooks(actions_, parts_.preferences.appearance, bindings_);
    connectHelpActions(actions_, parts_.versionCheck, delegate.interface.workspace);
    followOutlets();
    followCounts();
    followSelection();
    new UndoKeys(this);
}

void ProgramActions::on(ActionName name, std::function<void()> act) {
    connect(actions_[name], &QAction::triggered, this, [act = std::move(act)] { act(); });
}

void ProgramActions::connectFiles() {
    using enum ActionName;
    on(AddPhotos, [this] { parts_.photoIntake.menuLoadPhotos(); });
    on(LoadGpsData, [this] { parts_.gpsIntake.menuLoadGPSData(); });
    on(SaveLibrary, [this] {
        if (delegate_.library.saveAction()) {
            surroundings_.windowInFront()->statusBar()->showMessage(tr("Library saved"),
                                                                    messageTime);
        }
    });
    on(SavePhotos, [this] { parts_.savePipeline.updatePicts(); });
    on(RemoveAllPhotos, [this] { parts_.removeAllPhotos.openRemoveAll(); });
    on(RemoveGpsData, [this] { delegate_.library.removeAllGPSData(); });
    on(ActionName::SampleOuting, [this] { parts_.sampleOuting.load(); });
    on(Quit, [this] { surroundings_.quit(); });
    actions_[Quit]->setShortcutContext(Qt::ApplicationShortcut); // windows without the menus, too
}

void ProgramActions::connectPhotos() {
    using enum ActionName;
    on(SelectAll, [this] {
        if (PhotoPanel *const photos = surroundings_.windowInFront()->photos()) {
            photos->selectAll();
        }
    });
    on(FullSize, [this] { parts_.inspector.imageFullView(); });
    on(Rename, [this] { parts_.renaming.photoNameChange(); });
    on(OriginalNames, [this] { parts_.renaming.revertPhotoNames(); });
    on(ApplyToAll, [this] { parts_.matcher.applyToAllPictures(); });
    on(ApplyToSelected, [this] { parts_.matcher.applyToSelected(); });
    on(ApplyToUnplaced, [this] { parts_.matcher.applyToPhotosWithoutPosition(); });
    on(PlaceAtNearestPoint, [this] { parts_.neighbours.placeAtNearestPoint(); });
    on(PlaceBetweenNeighbours, [this] { parts_.neighbours.placeBetweenNeighbours(); });
    new MapEscape(
        parts_.markers.adding, [this] { parts_.markers.giveUpAdding(); }, this);
}

void ProgramActions::connectClock() {
    using enum ActionName;
    QAction *const pick = actions_[PickTrackPoint];
    bindings_.tie(parts_.pointPicking.pickPoint, pick);
    // After a press, too, which ticks it even where it cannot be armed.
    const auto tick = [this, pick](bool) { pick->setChecked(parts_.pointPicking.armed.get()); };
    bindings_.watch(parts_.pointPicking.armed, tick);
    connect(pick, &QAction::triggered, this, tick);
    new MapEscape(
        parts_.pointPicking.armed, [this] { parts_.pointPicking.disarm(); }, this);
    bindings_.tie(parts_.trueTime.openButton, actions_[PhotoWasTakenAt]);
    on(ShowCameras, [this] { parts_.cameras.open(); });
}

void ProgramActions::connectViews() {
    using enum ActionName;
    on(ShowPosition, [this] { delegate_.interface.mainTabs.selectedIdentifier.set("1"); });
    on(ShowDetails, [this] { delegate_.interface.mainTabs.selectedIdentifier.set("2"); });
    actions_[ShowPreferences]->setMenuRole(QAction::PreferencesRole);
    on(ShowPreferences, [this] { parts_.preferencesWindow.makeKeyAndOrderFront(); });
    on(Manual, [this] { parts_.manualWindow.makeKeyAndOrderFront(); });
    on(ShowLog, [this] { parts_.logWindow.makeKeyAndOrderFront(); });
    on(About, [this] { tellAbout(); });
}

void ProgramActions::tellAbout() {
    QMessageBox::about(surroundings_.windowInFront(), tr("About Pinmora"),
                       tr("<h3>Pinmora</h3><p>Puts photographs on the map.</p><p>Your photos "
                          "are only ever read; what Pinmora writes are copies.</p>"
                          "<p>Place names: GeoNames, CC BY 4.0. Bundled map: Natural "
                          "Earth.</p>"));
}

void ProgramActions::followOutlets() {
    using enum ActionName;
    // Elsewhere than in a list of photos the key means something else, or nothing.
    actions_[RemovePictures]->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    bindings_.tie(parts_.undoCommands.undoItem, actions_[Undo]);
    bindings_.tie(parts_.undoCommands.redoItem, actions_[Redo]);
    bindings_.tie(parts_.inspectorOutlets.removePictButton, actions_[RemovePictures]);
    bindings_.tie(parts_.matching.matchButton, actions_[MatchPhoto]);
    tieInFront(parts_.matching.offsetButton, parts_.matching.offsetButton2,
               actions_[SetFromPosition]);
    tieInFront(delegate_.interface.addRemoveMarker, delegate_.interface.addRemoveMarker2,
               actions_[ToggleMarker]);
    bindings_.tie(parts_.wizardOutlets.useWizard, actions_[ShowWizard]);
    bindings_.tie(parts_.wizardOutlets.useAdvanced, actions_[ShowMainWindow]);
    actions_[ActionName::SampleOuting]->setEnabled(parts_.sampleOuting.isThere());
}

/// Each window has a button of its own for it, which works on its own map.
void ProgramActions::tieInFront(Button &ofMain, Button &ofWizard, QAction *action) {
    const auto inFront = [this, &ofMain, &ofWizard]() -> Button & {
        return delegate_.interface.inWizard ? ofWizard : ofMain;
    };
    const auto show = [inFront, action] {
        const Button &button = inFront();
        action->setEnabled(button.enabled.get());
        if (!button.title.get().empty()) {
            action->setText(QString::fromStdString(button.title.get()));
        }
    };
    for (Button *const button : {&ofMain, &ofWizard}) {
        bindings_.watch(button->enabled, [show](bool) { show(); });
        bindings_.watch(button->title, [show](const std::string &) { show(); });
    }
    for (Window *const window : {&delegate_.interface.window, &delegate_.interface.wizardWindow}) {
        bindings_.keep(window->fronted.connect(show));
    }
    connect(action, &QAction::triggered, this, [inFront] { inFront().press(); });
}

void ProgramActions::followCounts() {
    using enum ActionName;
    bindings_.watch(parts_.saveOutlets.savePhotosButton.enabled, [this](bool) { enableSave(); });
    bindings_.watch(parts_.counts.counts, [this](const Counts &now) {
        for (const ActionName name :
             {Rename, OriginalNames, SelectAll, RemoveAllPhotos, ShowCameras}) {
            actions_[name]->setEnabled(now.photos > 0);
        }
        enableSave();
        enableApplying();
        actions_[RemoveGpsData]->setEnabled(now.tracks > 0);
    });
}

void ProgramActions::followSelection() {
    bindings_.keep(
        parts_.arrays.pictureArray.selectionChanged.connect([this] { endOfTurn_.ask(); }));
}

void ProgramActions::enableApplying() {
    using enum ActionName;
    const Counts &now = parts_.counts.counts.get();
    const std::size_t selected = parts_.arrays.pictureArray.selectedObjects().size();
    actions_[ApplyToAll]->setEnabled(now.photos > 0 && now.points > 0);
    actions_[ApplyToSelected]->setEnabled(selected > 0 && now.points > 0);
    actions_[PlaceAtNearestPoint]->setEnabled(selected == 1 && now.points > 0);
    actions_[PlaceBetweenNeighbours]->setEnabled(selected > 0 && now.points + now.withPosition > 0);
    actions_[ApplyToUnplaced]->setEnabled(now.photos > now.withPosition && now.points > 0);
}

void ProgramActions::enableSave() {
    actions_[ActionName::SavePhotos]->setEnabled(parts_.counts.counts.get().photos > 0 &&
                                                 parts_.saveOutlets.savePhotosButton.enabled.get());
}

void ProgramActions::connectPlaceNames() {
    QAction *const action = actions_[ActionName::LookUpPlaces];
    Preference<bool> &looksUp = parts_.preferences.looksUpPlaces;
    bindings_.watch(looksUp.value(), [action](bool on) { action->setChecked(on); });
    connect(action, &QAction::toggled, this, [&looksUp](bool on) { looksUp.choose(on); });
}

} // namespace pinmora
