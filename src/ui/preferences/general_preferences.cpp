#include "ui/preferences/general_preferences.h"

#include "shell/preferences.h"

namespace pinmora {

GeneralPreferences::GeneralPreferences(Preferences &preferences, const std::string &makersAddress,
                                       QWidget *parent)
    : PreferencePage(tr("General"), parent) {
    addHeading(tr("Start"));
    addBox(preferences.startsInWizard, tr("Begin with the wizard"),
           tr("From the next start on, the wizard comes up first, one question at a time; else "
              "the main window does."));
    addHeading(tr("Look"));
    addChoices<Appearance>(
        preferences.appearance, tr("Look"),
        {{Appearance::System, tr("As the desktop"), tr("Light or dark, as the desktop is now.")},
         {Appearance::Light, tr("Light"), tr("Dark writing on a light ground, at all times.")},
         {Appearance::Dark, tr("Dark"), tr("Light writing on a dark ground, at all times.")}});
    addVersions(preferences, QString::fromStdString(makersAddress));
}

void GeneralPreferences::addVersions(Preferences &preferences, const QString &makersAddress) {
    addHeading(tr("Newer versions"));
    addBox(preferences.checksVersion, tr("Look for a newer version at start"),
           tr("Once a day, a start asks the address below, which learns that a Pinmora asks, and "
              "from which network address; nothing is fetched unless you say so."));
    addHeading(tr("Who is asked for the newest version"));
    addChoices(
        preferences.versionInfo, tr("Who is asked for the newest version"),
        {{tr("The makers’ address"),
          makersAddress.isEmpty() ? tr("This Pinmora was built without one: nobody is asked.")
                                  : tr("Pinmora’s makers are asked, at %1.").arg(makersAddress)},
         {tr("Another address"), tr("The server at this address is asked in their place.")}},
        {.label = tr("Address"), .example = QStringLiteral("https://example.org/version.plist")});
}

} // namespace pinmora
