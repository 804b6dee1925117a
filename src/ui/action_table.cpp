#include "ui/action_table.h"

#include "ui/icons.h"

#include <QAction>
#include <QCoreApplication>
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
        ActionRow{AddPhotos, MenuName::File, QT_TRANSLATE_NOOP("ui", "&Add Photos…"), "Ctrl+O",
                  "add-photos", QT_TRANSLATE_NOOP("ui", "Add photos or a folder of photos"), false,
                  false, QT_TRANSLATE_NOOP("ui", "Add Photos")},
        ActionRow{LoadGpsData, MenuName::File, QT_TRANSLATE_NOOP("ui", "&Load GPS Data…"), "Ctrl+L",
                  "load-gps", QT_TRANSLATE_NOOP("ui", "Load GPS logs (GPX or NMEA)"), false, false,
                  QT_TRANSLATE_NOOP("ui", "Load GPS Data")},
        ActionRow{SaveLibrary, MenuName::File, QT_TRANSLATE_NOOP("ui", "&Save Library"), "Ctrl+S",
                  "",
                  QT_TRANSLATE_NOOP(
                      "ui", "Keep photos, tracks and positions as they are for the next start"),
                  true},
        ActionRow{SavePhotos, MenuName::File, QT_TRANSLATE_NOOP("ui", "Save &Photos…"),
                  "Ctrl+Shift+S", "save",
                  QT_TRANSLATE_NOOP(
                      "ui", "Save tagged copies of the photos; the originals stay as they are"),
                  false, false, QT_TRANSLATE_NOOP("ui", "Save Photos")},
        ActionRow{RemoveAllPhotos, MenuName::File, QT_TRANSLATE_NOOP("ui", "&Remove All Photos…"),
                  "Ctrl+Shift+Backspace", "",
                  QT_TRANSLATE_NOOP("ui", "Empty the list; the photo files stay"), true},
        ActionRow{Quit, MenuName::File, QT_TRANSLATE_NOOP("ui", "&Quit"), "Ctrl+Q", "",
                  QT_TRANSLATE_NOOP("ui", "End Pinmora"), true},

        ActionRow{Undo, MenuName::Edit, QT_TRANSLATE_NOOP("ui", "&Undo"), "Ctrl+Z", "undo",
                  QT_TRANSLATE_NOOP("ui", "Take back the last step"), false, false,
                  QT_TRANSLATE_NOOP("ui", "Undo")},
        ActionRow{Redo, MenuName::Edit, QT_TRANSLATE_NOOP("ui", "&Redo"), "Ctrl+Shift+Z", "redo",
                  QT_TRANSLATE_NOOP("ui", "Do again what was taken back"), false, false,
                  QT_TRANSLATE_NOOP("ui", "Redo")},
        ActionRow{SelectAll, MenuName::Edit, QT_TRANSLATE_NOOP("ui", "Select &All Photos"),
                  "Ctrl+A", "", QT_TRANSLATE_NOOP("ui", "Select all photos that are seen"), true},
        ActionRow{ShowPreferences, MenuName::Edit, QT_TRANSLATE_NOOP("ui", "Pr&eferences…"),
                  "Ctrl+,", "",
                  QT_TRANSLATE_NOOP("ui", "What Pinmora does by itself, and whom it asks"), true},

        ActionRow{FullSize, MenuName::Photo, QT_TRANSLATE_NOOP("ui", "&Full Size"), "Ctrl+F",
                  "full-size",
                  QT_TRANSLATE_NOOP("ui", "Show the selected photo in a window of its own")},
        ActionRow{Rename, MenuName::Photo, QT_TRANSLATE_NOOP("ui", "Re&name…"), "F2", "rename",
                  QT_TRANSLATE_NOOP("ui", "Give the copies of the photos other names"), true},
        ActionRow{OriginalNames, MenuName::Photo, QT_TRANSLATE_NOOP("ui", "Use &Original Names"),
                  "Shift+F2", "",
                  QT_TRANSLATE_NOOP("ui", "Give all photos the names of their files again")},
        ActionRow{LookUpPlaces, MenuName::Photo, QT_TRANSLATE_NOOP("ui", "Look &Up Place Names"),
                  "F4", "",
                  QT_TRANSLATE_NOOP("ui", "Find city, province and country of each new position"),
                  true, true},
        ActionRow{
            RemovePictures, MenuName::Photo, QT_TRANSLATE_NOOP("ui", "&Remove Picture"), "Del",
            "remove",
            QT_TRANSLATE_NOOP("ui", "Take the selected photos off the list; their files stay"),
            true},

        ActionRow{ApplyToAll, MenuName::Gps, QT_TRANSLATE_NOOP("ui", "&Apply to All"),
                  "Ctrl+Return", "apply",
                  QT_TRANSLATE_NOOP(
                      "ui", "Give every photo the position of the track point nearest in time"),
                  false, false, QT_TRANSLATE_NOOP("ui", "Apply to All")},
        ActionRow{
            ApplyToSelected, MenuName::Gps, QT_TRANSLATE_NOOP("ui", "Apply to Se&lected"),
            "Ctrl+Shift+Return", "",
            QT_TRANSLATE_NOOP(
                "ui",
                "Give the selected photos the positions of the track points nearest in time")},
        ActionRow{
            ApplyToUnplaced, MenuName::Gps,
            QT_TRANSLATE_NOOP("ui", "Apply to Photos &Without Position"), "Ctrl+Alt+Return", "",
            QT_TRANSLATE_NOOP(
                "ui",
                "The same for photos that have no position yet; the others stay where they are")},
        ActionRow{
            MatchPhoto, MenuName::Gps, QT_TRANSLATE_NOOP("ui", "&Match Photo"), "Ctrl+M", "",
            QT_TRANSLATE_NOOP(
                "ui", "Give the selected photo the position of the track point nearest in time"),
            true},
        ActionRow{
            PlaceAtNearestPoint, MenuName::Gps,
            QT_TRANSLATE_NOOP("ui", "&Nearest Point of the Log"), "Ctrl+Shift+M", "",
            QT_TRANSLATE_NOOP(
                "ui",
                "Put the selected photo at the track point nearest in time; the clock stays")},
        ActionRow{PlaceBetweenNeighbours, MenuName::Gps,
                  QT_TRANSLATE_NOOP("ui", "Place &Between Neighbours"), "Ctrl+B", "",
                  QT_TRANSLATE_NOOP(
                      "ui",
                      "Put the selected photos between the track points, or the photos, before and "
                      "after them")},
        ActionRow{ToggleMarker, MenuName::Gps, QT_TRANSLATE_NOOP("ui", "Add Mar&ker"), "Ctrl+P",
                  "marker",
                  QT_TRANSLATE_NOOP(
                      "ui", "Place the selected photos on the map, or take their position away")},
        ActionRow{
            SetFromPosition, MenuName::Gps,
            QT_TRANSLATE_NOOP("ui", "&Set Clock From This Position"), "Ctrl+K", "",
            QT_TRANSLATE_NOOP(
                "ui", "Set the camera clock by the track point nearest to the photo's position"),
            true},
        ActionRow{
            PickTrackPoint, MenuName::Gps,
            QT_TRANSLATE_NOOP("ui", "Set Clock by a &Track Point on the Map…"), "Ctrl+Shift+T", "",
            QT_TRANSLATE_NOOP(
                "ui",
                "Click on the map where one selected photo was taken; the clock is set by the "
                "nearest track point"),
            false, true},
        ActionRow{
            PhotoWasTakenAt, MenuName::Gps, QT_TRANSLATE_NOOP("ui", "&Photo Was Taken At…"),
            "Ctrl+T", "",
            QT_TRANSLATE_NOOP(
                "ui",
                "Set the camera clock by one selected photo whose true time is known: it shows a "
                "clock, for example")},
        ActionRow{ShowCameras, MenuName::Gps, QT_TRANSLATE_NOOP("ui", "&Cameras…"), "Ctrl+Shift+K",
                  "",
                  QT_TRANSLATE_NOOP(
                      "ui", "Which cameras took the photos, and which have a clock of their own")},
        ActionRow{RemoveGpsData, MenuName::Gps, QT_TRANSLATE_NOOP("ui", "Remove All &GPS Data"),
                  "Ctrl+Shift+Del", "",
                  QT_TRANSLATE_NOOP("ui", "Remove all tracks from the library; the log files stay"),
                  true},

        ActionRow{ShowPosition, MenuName::View, QT_TRANSLATE_NOOP("ui", "&Position"), "Ctrl+1", "",
                  QT_TRANSLATE_NOOP("ui", "Map, coordinates and camera clock")},
        ActionRow{ShowDetails, MenuName::View, QT_TRANSLATE_NOOP("ui", "&Details"), "Ctrl+2", "",
                  QT_TRANSLATE_NOOP("ui", "Large picture, description and place names")},
        ActionRow{OnlyWithoutPosition, MenuName::View,
                  QT_TRANSLATE_NOOP("ui", "Only &Without Position"), "Ctrl+3", "",
                  QT_TRANSLATE_NOOP("ui", "Show only photos that have no position yet"), true,
                  true},
        ActionRow{FollowDesktop, MenuName::View, QT_TRANSLATE_NOOP("ui", "Look of the D&esktop"),
                  "Ctrl+Alt+1", "", QT_TRANSLATE_NOOP("ui", "Light or dark, as the desktop is"),
                  true, true},
        ActionRow{LightLook, MenuName::View, QT_TRANSLATE_NOOP("ui", "&Light Look"), "Ctrl+Alt+2",
                  "", QT_TRANSLATE_NOOP("ui", "Always light"), false, true},
        ActionRow{DarkLook, MenuName::View, QT_TRANSLATE_NOOP("ui", "Dar&k Look"), "Ctrl+Alt+3", "",
                  QT_TRANSLATE_NOOP("ui", "Always dark"), false, true},
        ActionRow{ShowWizard, MenuName::View, QT_TRANSLATE_NOOP("ui", "Wi&zard"), "Ctrl+W",
                  "wizard", QT_TRANSLATE_NOOP("ui", "The same work, one question at a time"), true,
                  false, QT_TRANSLATE_NOOP("ui", "Wizard")},
        ActionRow{ShowMainWindow, MenuName::View, QT_TRANSLATE_NOOP("ui", "&Main Window"),
                  "Ctrl+Shift+W", "",
                  QT_TRANSLATE_NOOP("ui", "The same work, everything on one surface")},

        ActionRow{Manual, MenuName::Help, QT_TRANSLATE_NOOP("ui", "&Manual"), "F1", "",
                  QT_TRANSLATE_NOOP("ui", "How Pinmora is used")},
        ActionRow{SampleOuting, MenuName::Help,
                  QT_TRANSLATE_NOOP("ui", "&Try It With the Sample Outing"), "Ctrl+Alt+T", "",
                  QT_TRANSLATE_NOOP(
                      "ui", "Load eight photos and the logs of an outing to try Pinmora with")},
        ActionRow{ShowLog, MenuName::Help, QT_TRANSLATE_NOOP("ui", "Show &Log"), "Ctrl+Shift+L", "",
                  QT_TRANSLATE_NOOP("ui", "What could not be saved, and why")},
        ActionRow{CheckVersion, MenuName::Help,
                  QT_TRANSLATE_NOOP("ui", "Check for a &New Version…"), "Ctrl+Alt+N", "",
                  QT_TRANSLATE_NOOP("ui", "Ask whether there is a newer Pinmora, and fetch it"),
                  true},
        ActionRow{WebSite, MenuName::Help, QT_TRANSLATE_NOOP("ui", "&Web Site"), "Ctrl+Alt+W", "",
                  QT_TRANSLATE_NOOP("ui", "Open Pinmora's web site in the browser")},
        ActionRow{ReportProblem, MenuName::Help, QT_TRANSLATE_NOOP("ui", "&Report a Problem…"),
                  "Ctrl+Alt+R", "",
                  QT_TRANSLATE_NOOP("ui", "Tell the makers of Pinmora what went wrong")},
        ActionRow{About, MenuName::Help, QT_TRANSLATE_NOOP("ui", "&About Pinmora"), "Shift+F1", "",
                  QT_TRANSLATE_NOOP("ui", "Version and licence"), true},
    };
};

constexpr const auto &table = Table::rows;

QString shown(const char *text) {
    return QCoreApplication::translate("ui", text);
}

QString titleOf(MenuName menu) {
    static constexpr std::array titles{
        QT_TRANSLATE_NOOP("ui", "&File"),  QT_TRANSLATE_NOOP("ui", "&Edit"),
        QT_TRANSLATE_NOOP("ui", "&Photo"), QT_TRANSLATE_NOOP("ui", "&GPS"),
        QT_TRANSLATE_NOOP("ui", "&View"),  QT_TRANSLATE_NOOP("ui", "&Help")};
    return shown(titles.at(static_cast<std::size_t>(menu)));
}

} // namespace

std::span<const ActionRow> actionTable() {
    return table;
}

Actions::Actions(QObject *parent) {
    for (const ActionRow &row : table) {
        auto *action = new QAction(shown(row.text), parent);
        const QKeySequence keys(QLatin1StringView(row.shortcut).toString());
        action->setShortcut(keys);
        action->setToolTip(shown(row.tip) + QStringLiteral(" (") +
                           keys.toString(QKeySequence::NativeText) + QStringLiteral(")"));
        action->setStatusTip(QString());
        action->setCheckable(row.checkable);
        if (row.shortText) {
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
