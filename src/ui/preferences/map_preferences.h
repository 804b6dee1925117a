#pragma once

#include "ui/preferences/preference_page.h"

namespace pinmora {

class Preferences;

/// Where the map and its tiles come from.
class MapPreferences : public PreferencePage {
    Q_OBJECT

public:
    explicit MapPreferences(Preferences &preferences, QWidget *parent = nullptr);
};

} // namespace pinmora
