#pragma once

#include "outlets/window.h"
#include "saving/save_outlets.h"
#include "saving/save_run.h"

#include <cstddef>
#include <string>

namespace pinmora {

struct StatusLine;

/// Shows how far a save has come: on its sheet until the last photo is copied, then on the status
/// line until the last tool has ended.
class SaveProgress {
public:
    /// Both must outlive it.
    SaveProgress(SaveOutlets &outlets, StatusLine &statusLine, WorkingWindow workingWindow);

    /// Puts the sheet up. Nothing of a run before is left.
    void open();
    /// Place names are waited for, of which so many are to come.
    void waitsForNames(std::size_t names);
    /// The copying of so many photos begins.
    void begins(std::size_t count);
    void beginsPhoto(std::size_t index);
    void cancels();
    /// The last photo is copied: takes the sheet down.
    void copied();
    void ended(SavedPhoto::Status status);
    /// The program is to quit afterwards.
    void quits();
    /// The run is over: takes down and clears what still shows it.
    void end();

private:
    void endSheet();
    void showStatus();

    SaveOutlets &outlets_;
    StatusLine &statusLine_;
    WorkingWindow workingWindow_;
    std::size_t count_ = 0; ///< photos that are being saved, without those passed over
    std::size_t ended_ = 0; ///< of these
    bool quits_ = false;
    std::string shown_; ///< on the status line, which others use as well
};

} // namespace pinmora
