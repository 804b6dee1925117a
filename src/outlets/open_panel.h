#pragma once

#include "outlets/controls.h"
#include "outlets/signal.h"
#include "outlets/window.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace pinmora {

/// The panel in which a person chooses files to open. Paths are bytes, as the system has them.
class OpenPanel {
public:
    static constexpr int okCode = 1;
    static constexpr int cancelCode = 0;
    /// Called once, when the panel has been answered.
    using Ended = std::function<void(OpenPanel &panel, int returnCode)>;

    // What is offered; set before the panel is begun.
    std::string title;
    std::string directory; ///< where it starts: a folder or a file; "" or one that has gone: home
    std::vector<std::string> allowedTypes; ///< extensions, exactly as files may be spelled
    std::string typesName;                 ///< what files of those types are to a person
    bool canChooseDirectories = false;     ///< folders, besides files unless those cannot be
    bool canChooseFiles = true;
    bool canCreateDirectories = false;
    std::string prompt; ///< the button that confirms; "" leaves it to the panel
    bool allowsMultipleSelection = false;

    /// Stands below what is offered while `visible`.
    CheckBox accessory;

    /// What was chosen, in the panel's order.
    const std::vector<std::string> &filenames() const { return filenames_; }

    /// Puts the panel up on a window; nothing happens while it is up.
    void beginSheet(Window &window, Ended ended) {
        if (!sheet_.isUp()) {
            filenames_.clear();
            ended_ = std::move(ended);
            sheet_.begin(window);
        }
    }
    /// Takes it down; the answer has been given.
    void close() { sheet_.end(); }

    Sheet &sheet() { return sheet_; }
    /// What choosing these files does (none: cancelling). Nothing happens while it is not up.
    void answer(std::vector<std::string> chosen) {
        if (sheet_.isUp() && ended_) {
            filenames_ = std::move(chosen);
            std::exchange(ended_, nullptr)(*this, filenames_.empty() ? cancelCode : okCode);
        }
    }

private:
    Sheet sheet_;
    Ended ended_;
    std::vector<std::string> filenames_;
};

} // namespace pinmora
