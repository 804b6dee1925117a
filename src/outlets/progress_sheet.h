#pragma once

#include "outlets/controls.h"
#include "outlets/window.h"

#include <chrono>
#include <string>

namespace pinmora {

/// The sheet that shows how far long work has come. It is drawn at once after every change, unless
/// said otherwise.
class ProgressSheet {
public:
    explicit ProgressSheet(WorkingWindow workingWindow);

    /// Puts the sheet up on the working window with the bar at 0 of `maxValue`.
    void showProgressWindow(const std::string &text, const std::string &subText, double maxValue);
    void setSubText(const std::string &subText);
    void progressWindowIncrement();
    /// Both of these at once, for work in very many small steps: it is drawn only 30 times a
    /// second, and at the end of the bar.
    void advance(const std::string &subText);
    /// Nothing happens when the sheet is not up.
    void closeProgress();

    Sheet progressWindow;
    TextField progressTextMain;
    TextField progressTextSub;
    ProgressBar progressIndic;

private:
    WorkingWindow workingWindow_;
    std::chrono::steady_clock::time_point advanceDrawn_;
};

} // namespace pinmora
