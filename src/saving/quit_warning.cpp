#include "saving/quit_warning.h"

#include <utility>

namespace pinmora {

QuitWarning::QuitWarning(WorkingWindow workingWindow, QuitActions actions)
    : workingWindow_(std::move(workingWindow)), actions_(std::move(actions)) {
    const auto connect = [this](Button &button, void (QuitWarning::*action)()) {
        connections_.push_back(button.pressed.connect([this, action] { (this->*action)(); }));
    };
    connect(saveAndQuitButton, &QuitWarning::saveAndQuit);
    connect(saveDataButton, &QuitWarning::saveDataAction);
    connect(noSaveButton, &QuitWarning::noSaveAndQuit);
    connect(cancelButton, &QuitWarning::cancelQuitWindow);
}

void QuitWarning::openQuitWarning() {
    quitWarning.begin(workingWindow_());
}

void QuitWarning::saveAndQuit() {
    quitWarning.end();
    actions_.updatePicts();
}

void QuitWarning::saveDataAction() {
    actions_.saveAction();
    quitWarning.end();
}

void QuitWarning::noSaveAndQuit() {
    quitWarning.end();
    actions_.forgetUnsaved();
    actions_.terminate();
}

void QuitWarning::cancelQuitWindow() {
    quitWarning.end();
}

} // namespace pinmora
