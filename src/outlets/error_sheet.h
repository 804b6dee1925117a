#pragma once

#include "outlets/controls.h"
#include "outlets/window.h"

#include <string>

namespace pinmora {

/// The sheet that tells what went wrong: a heading and a message.
class ErrorSheet {
public:
    explicit ErrorSheet(WorkingWindow workingWindow);

    /// Puts the sheet up on the working window with whatever the two texts hold.
    void errorWindowOpen();
    void errorWindowClose();
    /// Fills the texts, then opens.
    void present(const std::string &header, const std::string &text);

    /// Sent for every message, also one that takes the place of another on the open sheet.
    Signal<> opened;

    Sheet errorWindow;
    TextField errorHeader;
    TextField errorText;

private:
    WorkingWindow workingWindow_;
};

} // namespace pinmora
