#pragma once

#include "ui/preferences/preference_page.h"

namespace pinmora {

class Preferences;
struct Stepper;

/// Which files are photos, and how their copies are tagged.
class SavingPreferences : public PreferencePage {
    Q_OBJECT

public:
    explicit SavingPreferences(Preferences &preferences, QWidget *parent = nullptr);

private:
    void addPatience(Stepper &patience);
};

} // namespace pinmora
