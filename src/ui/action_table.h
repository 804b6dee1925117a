#pragma once

#include <QKeySequence>

#include <functional>
#include <span>
#include <string_view>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class QObject;

namespace pinmora {

struct Button;

/// The menus, in the order of the menu bar.
enum class MenuName { File, Edit, Photo, Gps, View, Help };

/// Everything that a person can do with the windows, each once.
enum class ActionName {
    AddPhotos,
    LoadGpsData,
    SaveLibrary,
    SavePhotos,
    RemoveAllPhotos,
    Quit,
    Undo,
    Redo,
    SelectAll,
    ShowPreferences,
    FullSize,
    Rename,
    OriginalNames,
    LookUpPlaces,
    RemovePictures,
    ApplyToAll,
    ApplyToSelected,
    ApplyToUnplaced,
    MatchPhoto,
    PlaceAtNearestPoint,
    PlaceBetweenNeighbours,
    ToggleMarker,
    SetFromPosition,
    PickTrackPoint,
    PhotoWasTakenAt,
    ShowCameras,
    RemoveGpsData,
    ShowPosition,
    ShowDetails,
    OnlyWithoutPosition,
    FollowDesktop,
    LightLook,
    DarkLook,
    ShowWizard,
    ShowMainWindow,
    Manual,
    SampleOuting,
    ShowLog,
    CheckVersion,
    WebSite,
    ReportProblem,
    About,
};

/// What an action is, without what it does.
struct ActionRow {
    ActionName name;
    MenuName menu;
    const char *text; ///< with a mnemonic; in English, as the tip is
    std::string_view shortcut;
    std::string_view icon; ///< "" for none
    const char *tip;
    bool separatorBefore = false;
    bool checkable = false;
    const char *shortText = nullptr; ///< under an icon, where it differs from the text
};

/// All actions, in the order of their menus.
std::span<const ActionRow> actionTable();

/// The actions, made from the table.
class Actions {
public:
    explicit Actions(QObject *parent);

    QAction *operator[](ActionName name) const;
    /// Puts those into menus that `has` lets through; the menus, in the order of MenuName.
    std::vector<QMenu *> fill(
        QMenuBar &bar,
        const std::function<bool(ActionName)> &has = [](ActionName) { return true; }) const;
    /// Icons in the colours in force.
    void refreshIcons() const;

private:
    std::vector<QAction *> actions_; ///< in the order of the table
};

} // namespace pinmora
