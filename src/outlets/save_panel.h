#pragma once

#include "outlets/window.h"

#include <functional>
#include <string>
#include <utility>

namespace pinmora {

/// The panel in which a person says where a file is to be written. Paths are bytes, as the system
/// has them. A file that is there already is asked about by the panel itself.
class SavePanel {
public:
    static constexpr int okCode = 1;
    static constexpr int cancelCode = 0;
    /// Called once, when the panel has been answered.
    using Ended = std::function<void(SavePanel &panel, int returnCode)>;

    // What is offered; set before the panel is begun.
    std::string title;
    std::string directory;            ///< where it starts; "" leaves it to the panel
    std::string nameFieldStringValue; ///< the proposed name

    /// The whole path that was chosen; "" when none was.
    const std::string &filename() const { return filename_; }

    /// Puts the panel up on a window; nothing happens while it is up.
    void beginSheet(Window &window, Ended ended) {
        if (!sheet_.isUp()) {
            filename_.clear();
            ended_ = std::move(ended);
            sheet_.begin(window);
        }
    }
    /// Takes it down; the answer has been given.
    void close() { sheet_.end(); }

    Sheet &sheet() { return sheet_; }
    /// What choosing this file does ("": cancelling). Nothing happens while it is not up.
    void answer(std::string chosen) {
        if (sheet_.isUp() && ended_) {
            filename_ = std::move(chosen);
            std::exchange(ended_, nullptr)(*this, filename_.empty() ? cancelCode : okCode);
        }
    }

private:
    Sheet sheet_;
    Ended ended_;
    std::string filename_;
};

} // namespace pinmora
