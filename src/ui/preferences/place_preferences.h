#pragma once

#include "ui/preferences/preference_page.h"

namespace pinmora {

class Preferences;

/// Whether place names are looked up, and who is asked.
class PlacePreferences : public PreferencePage {
    Q_OBJECT

public:
    explicit PlacePreferences(Preferences &preferences, QWidget *parent = nullptr);
};

} // namespace pinmora
