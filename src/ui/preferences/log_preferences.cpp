#include "ui/preferences/log_preferences.h"

#include "shell/preferences.h"

namespace pinmora {

LogPreferences::LogPreferences(Preferences &preferences, QWidget *parent)
    : PreferencePage(tr("GPS Logs"), parent) {
    addHeading(tr("How logs are read"));
    addChoices<LogReading>(
        preferences.logReading, tr("How logs are read"),
        {{LogReading::Exact, tr("Exactly"),
          tr("Takes whole-second times, and reads those of a GPX file as clock time, as they "
             "stand.")},
         {LogReading::Tolerant, tr("Tolerantly"),
          tr("Takes times as universal time, with fractions and zones, and copes with what modern "
             "receivers and phones write.")}});
    addSentence(tr("Holds for logs that you load from now on; those in the list stay as they were "
                   "read."));
}

} // namespace pinmora
