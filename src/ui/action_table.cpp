#include "ui/action_table.h"

#include "ui/icons.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <array>

namespace pinmora {
namespace {

/// The names of actions hold in here alone: some subsystems have the same.
struct Table {
    using enum ActionName;

    static constexpr std::array rows{
        ActionRow{AddPhotos, MenuName::File, "&Add Photos…", "Ctrl+O", "add-photos",
                  "Add photos or a folder of photos", false, false, "Add Photos"},
        ActionRow{LoadGpsData, MenuName::File, "&Load GPS Data…", "Ctrl+L", "load-gps",
                  "Load GPS logs (GPX or NMEA)", false, false, "Load GPS Data"},
        ActionRow{SaveLibrary, MenuName::File, "&Save Library", "Ctrl+S", "",
                  "Keep photos, tracks and positions as they are for the next start", true},
        ActionRow{SavePhotos, MenuName::File, "Save &Photos…", "Ctrl+Shift+S", "save",
                  "Save tagged copies of the photos; the originals stay as they are", false, false,
                  "Save Photos"},
        ActionRow{RemoveAllPhotos, MenuName::File, "&Remove All Photos…", "Ctrl+Shift+Backspace",
                  "", "Empty the list; the photo files stay", true},
        ActionRow{Quit, MenuName::File, "&Quit", "Ctrl+Q", "", "End Pinmora", true},

        ActionRow{Undo, MenuName::Edit, "&Undo", "Ctrl+Z", "undo", "Take back the last step", false,
                  false, "Undo"},
        ActionRow{Redo, MenuName::Edit, "&Redo", "Ctrl+Shift+Z", "redo",
                  "Do again what was taken back", false, false, "Redo"},
        ActionRow{SelectAll, MenuName::Edit, "Select &All Photos", "Ctrl+A", "",
                  "Select all photos that are seen", true},

        ActionRow{FullSize, MenuName::Photo, "&Full Size", "Ctrl+F", "full-size",
                  "Show the selected photo in a window of its own"},
        ActionRow{Rename, MenuName::Photo, "Re&name…", "F2", "rename",
                  "Give the copies of the photos other names", true},
        ActionRow{OriginalNames, MenuName::Photo, "Use &Original Names", "Shift+F2", "",
                  "Give all photos the names of their files again"},
        ActionRow{LookUpPlaces, MenuName::Photo, "Look &Up Place Names", "F4", "",
                  "Find city, province and country of each new position", true, true},
        ActionRow{RemovePictures, MenuName::Photo, "&Remove Picture", "Del", "remove",
                  "Take the selected photos off the list; their files stay", true},

        ActionRow{ApplyToAll, MenuName::Gps, "&Apply to All", "Ctrl+Return", "apply",
                  "Give every photo the position of the track point nearest in time", false, false,
                  "Apply to All"},
        ActionRow{ApplyToSelected, MenuName::Gps, "Apply to Se&lected", "Ctrl+Shift+Return", "",
                  "Give the selected photos the positions of the track points nearest in time"},
        ActionRow{ApplyToUnplaced, MenuName::Gps, "Apply to Photos &Without Position",
                  "Ctrl+Alt+Return", "",
                  "The same for photos that have no position yet; the others stay where they are"},
        ActionRow{MatchPhoto, MenuName::Gps, "&Match Photo", "Ctrl+M", "",
                  "Give the selected photo the position of the track point nearest in time", true},
        ActionRow{PlaceAtNearestPoint, MenuName::Gps, "&Nearest Point of the Log", "Ctrl+Shift+M",
                  "", "Put the selected photo at the track point nearest in time; the clock stays"},
        ActionRow{PlaceBetweenNeighbours, MenuName::Gps, "Place &Between Neighbours", "Ctrl+B", "",
                  "Put the selected photos between the track points, or the photos, before and "
                  "after them"},
        ActionRow{ToggleMarker, MenuName::Gps, "Add Mar&ker", "Ctrl+P", "marker",
                  "Place the selected photos on the map, or take their position away"},
        ActionRow{SetFromPosition, MenuName::Gps, "&Set Clock From This Position", "Ctrl+K", "",
                  "Set the camera clock by the track point nearest to the photo's position", true},
        ActionRow{PickTrackPoint, MenuName::Gps, "Set Clock by a &Track Point on the Map…",
                  "Ctrl+Shift+T", "",
                  "Click on the map where one selected photo was taken; the clock is set by the "
                  "nearest track point",
                  false, true},
        ActionRow{PhotoWasTakenAt, MenuName::Gps, "&Photo Was Taken At…", "Ctrl+T", "",
                  "Set the camera clock by one selected photo whose true time is known: it shows a "
                  "clock, for example"},
        ActionRow{ShowCameras, MenuName::Gps, "&Cameras…", "Ctrl+Shift+K", "",
                  "Which cameras took the photos, and which have a clock of their own"},
        ActionRow{RemoveGpsData, MenuName::Gps, "Remove All &GPS Data", "Ctrl+Shift+Del", "",
                  "Remove all tracks from the library; the log files stay", true},

        ActionRow{ShowPosition, MenuName::View, "&Position", "Ctrl+1", "",
                  "Map, coordinates and camera clock"},
        ActionRow{ShowDetails, MenuName::View, "&Details", "Ctrl+2", "",
                  "Large picture, description and place names"},
        ActionRow{OnlyWithoutPosition, MenuName::View, "Only &Without Position", "Ctrl+3", "",
                  "Show only photos that have no position yet", true, true},
        ActionRow{FollowDesktop, MenuName::View, "Look of the D&esktop", "Ctrl+Alt+1", "",
                  "Light or dark, as the desktop is", true, true},
        ActionRow{LightLook, MenuName::View, "&Light Look", "Ctrl+Alt+2", "", "Always light", false,
                  true},
        ActionRow{DarkLook, MenuName::View, "Dar&k Look", "Ctrl+Alt+3", "", "Always dark", false,
                  true},
        ActionRow{ShowWizard, MenuName::View, "Wi&zard", "Ctrl+W", "wizard",
                  "The same work, one question at a time", true, false, "Wizard"},
        ActionRow{ShowMainWindow, MenuName::View, "&Main Window", "Ctrl+Shift+W", "",
                  "The same work, everything on one surface"},

        ActionRow{SampleOuting, MenuName::Help, "&Try It With the Sample Outing", "Ctrl+Alt+T", "",
                  "Load eight photos and the logs of an outing to try Pinmora with"},
        ActionRow{ShowLog, MenuName::Help, "Show &Log", "Ctrl+Shift+L", "",
                  "What could not be saved, and why"},
        ActionRow{CheckVersion, MenuName::Help, "Check for a &New Version…", "Ctrl+Alt+N", "",
                  "Ask whether there is a newer Pinmora, and fetch it", true},
        ActionRow{WebSite, MenuName::Help, "&Web Site", "Ctrl+Alt+W", "",
                  "Open Pinmora's web site in the browser"},
        ActionRow{ReportProblem, MenuName::Help, "&Report a Problem…", "Ctrl+Alt+R", "",
                  "Tell the makers of Pinmora what went wrong"},
        ActionRow{About, MenuName::Help, "&About Pinmora", "F1", "", "Version and licence", true},
    };
};

constexpr const auto &table = Table::rows;

QString shown(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString titleOf(MenuName menu) {
    static constexpr std::array titles{"&File", "&Edit", "&Photo", "&GPS", "&View", "&Help"};
    return shown(titles.at(static_cast<std::size_t>(menu)));
}

} // namespace

std::span<const ActionRow> actionTable() {
    return table;
}

Actions::Actions(QObject *parent) {
    for (const ActionRow &row : table) {
        auto *action = new QAction(shown(row.text), parent);
        const QKeySequence keys(shown(row.shortcut));
        action->setShortcut(keys);
        action->setToolTip(shown(row.tip) + QStringLiteral(" (") +
                           keys.toString(QKeySequence::NativeText) + QStringLiteral(")"));
        action->setStatusTip(QString());
        action->setCheckable(row.checkable);
        if (!row.shortText.empty()) {
            action->setIconText(shown(row.shortText));
        }
        actions_.push_back(action);
    }
    refreshIcons();
}

QAction *Actions::operator[](ActionName name) const {
    const auto row = std::find_if(table.begin(), table.end(),
                                  [name](const ActionRow &one) { return one.name == name; });
    return actions_.at(static_cast<std::size_t>(row - table.begin()));
}

std::vector<QMenu *> Actions::fill(QMenuBar &bar,
                                   const std::function<bool(ActionName)> &has) const {
    std::vector<QMenu *> menus;
    for (std::size_t i = 0; i < table.size(); ++i) {
        const ActionRow &row = table.at(i);
        if (i == 0 || row.menu != table.at(i - 1).menu) {
            menus.push_back(bar.addMenu(titleOf(row.menu)));
            menus.back()->setToolTipsVisible(true);
        }
        if (row.separatorBefore) {
            menus.back()->addSeparator(); // one that has nothing above it is not shown
        }
        if (has(row.name)) {
            menus.back()->addAction(actions_[i]);
        }
    }
    return menus;
}

void Actions::refreshIcons() const {
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (!table.at(i).icon.empty()) {
            actions_[i]->setIcon(icon(table.at(i).icon));
        }
    }
}

} // namespace pinmora
