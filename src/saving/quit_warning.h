#pragma once

#include "outlets/controls.h"
#include "outlets/signal.h"
#include "outlets/window.h"

#include <functional>
#include <vector>

namespace pinmora {

/// What the quit warning has done by those who can.
struct QuitActions {
    std::function<void()> updatePicts;   ///< the command that saves photos
    std::function<void()> saveAction;    ///< saves the library; tells when it could not
    std::function<void()> terminate;     ///< asks once more to quit
    std::function<void()> forgetUnsaved; ///< what is not saved is not wanted
};

/// The sheet that a person sees who quits while photos have unsaved changes.
class QuitWarning {
public:
    QuitWarning(WorkingWindow workingWindow, QuitActions actions);
    QuitWarning(const QuitWarning &) = delete;
    QuitWarning &operator=(const QuitWarning &) = delete;
    ~QuitWarning() = default;

    void openQuitWarning();
    /// The program does not quit by itself afterwards.
    void saveAndQuit();
    /// Saves the library, and stays.
    void saveDataAction();
    void noSaveAndQuit();
    void cancelQuitWindow();

    Sheet quitWarning;
    Button saveAndQuitButton;
    Button saveDataButton;
    Button noSaveButton;
    Button cancelButton;

private:
    WorkingWindow workingWindow_;
    QuitActions actions_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
