#pragma once

#include "ui/side_window.h"

#include <string>

class QLabel;
class QListWidget;
class QStackedWidget;

namespace pinmora {

class PreferencePage;
class Preferences;

/// The window of the preferences: its pages by name at the side, and the one that is seen. What is
/// chosen holds at once; the window stays open while something is typed that cannot be stored.
class PreferencesWindow : public SideWindow {
    Q_OBJECT

public:
    /// All but the parent must outlive the window. `makersAddress` is that of the version
    /// information with which the program was built, or "".
    PreferencesWindow(Window &window, Preferences &preferences, const std::string &makersAddress,
                      Over over, QWidget *parent = nullptr);

protected:
    void closeAsked() override;

private:
    void addPage(PreferencePage *page);
    QLayout *makeFoot();
    void turnToUnfit();

    Preferences &preferences_;
    QListWidget *names_;
    QStackedWidget *stack_;
    QList<PreferencePage *> pages_;
    QLabel *unfit_; ///< says why the window is still there
};

} // namespace pinmora
