#pragma once

#include "ui/preferences/preference_page.h"

#include <string>

namespace pinmora {

class Preferences;

/// How the program begins and looks, and whether it looks for newer versions.
class GeneralPreferences : public PreferencePage {
    Q_OBJECT

public:
    /// `makersAddress`: that of the version information with which the program was built, or "".
    GeneralPreferences(Preferences &preferences, const std::string &makersAddress,
                       QWidget *parent = nullptr);

private:
    void addVersions(Preferences &preferences, const QString &makersAddress);
};

} // namespace pinmora
