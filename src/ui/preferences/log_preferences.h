#pragma once

#include "ui/preferences/preference_page.h"

namespace pinmora {

class Preferences;

/// How GPS logs are read.
class LogPreferences : public PreferencePage {
    Q_OBJECT

public:
    explicit LogPreferences(Preferences &preferences, QWidget *parent = nullptr);
};

} // namespace pinmora
