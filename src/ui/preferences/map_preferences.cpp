#include "ui/preferences/map_preferences.h"

#include "shell/preferences.h"

namespace pinmora {

MapPreferences::MapPreferences(Preferences &preferences, QWidget *parent)
    : PreferencePage(tr("Map"), parent) {
    addHeading(tr("Tiles"));
    addChoices(
        preferences.tiles, tr("Tiles"),
        {{QStringLiteral("OpenStreetMap"),
          tr("Streets and names everywhere; OpenStreetMap learns which part of the map you look "
             "at, and from which network address.")},
         {tr("No tiles"), tr("The map is Pinmora’s own, with coasts, borders and places, and "
                             "nothing is fetched.")},
         {tr("Another tile server"), tr("The server at this address learns which part of the map "
                                        "you look at, and from which network address.")}},
        {.label = tr("Address of the tiles"),
         .example = QStringLiteral("https://tiles.example.org/{z}/{x}/{y}.png")});
    addHeading(tr("Page of the map"));
    addChoices(
        preferences.mapPage, tr("Page of the map"),
        {{tr("Pinmora’s own"), tr("It is served on this machine, and no other can reach it.")},
         {tr("A page from another server"),
          tr("It comes from this server with tiles of its own, and is told the positions "
             "of your photos and tracks so that it can draw them.")}},
        {.label = tr("Address of the server"),
         .example = QStringLiteral("https://maps.example.org")});
}

} // namespace pinmora
