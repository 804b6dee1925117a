#include "ui/preferences/place_preferences.h"

#include "shell/preferences.h"

namespace pinmora {

PlacePreferences::PlacePreferences(Preferences &preferences, QWidget *parent)
    : PreferencePage(tr("Place Names"), parent) {
    addHeading(tr("Names of new positions"));
    addBox(preferences.looksUpPlaces, tr("Look up place names"),
           tr("Each new position brings city, province or state, and country along; else you "
              "type them yourself."));
    addHeading(tr("Who is asked"));
    ChoiceList *const services = addChoices(
        preferences.placeService, tr("Who is asked"),
        {{tr("Pinmora’s gazetteer"),
          tr("It lies on this machine, with 171,000 places: no position leaves it.")},
         {tr("A place-name service (SOAP)"),
          tr("The position of each photo is sent to this server, which learns your network "
             "address as well.")}},
        {.label = tr("Address of the service"),
         .example = QStringLiteral("https://places.example.org")});
    addField(*services, preferences.placeHost,
             {.label = tr("Host name that it expects"),
              .example = tr("that of the address"),
              .sentence = tr("Stands in the head of each request, where it is not that of the "
                             "address.")});
    addField(*services, preferences.placeNamespace,
             {.label = tr("Namespace of its names"),
              .example = QStringLiteral("urn:pinmora:places/"),
              .sentence = tr("Stands in each request; it ends in a slash.")});
}

} // namespace pinmora
