#include "outlets/progress_sheet.h"

namespace pinmora {

ProgressSheet::ProgressSheet(WorkingWindow workingWindow)
    : workingWindow_(std::move(workingWindow)) {}

void ProgressSheet::showProgressWindow(const std::string &text, const std::string &subText,
                                       double maxValue) {
    progressWindow.begin(workingWindow_());
    progressTextMain.text.set(text);
    progressTextSub.text.set(subText);
    progressIndic.maximum.set(maxValue);
    progressIndic.minimum.set(0);
    progressIndic.animating.set(true);
    progressIndic.value.set(0);
    progressWindow.display();
}

void ProgressSheet::setSubText(const std::string &subText) {
    progressTextSub.text.set(subText);
    progressWindow.display();
}

void ProgressSheet::progressWindowIncrement() {
    progressIndic.incrementBy(1);
    progressWindow.display();
}

void ProgressSheet::advance(const std::string &subText) {
    progressTextSub.text.set(subText);
    progressIndic.incrementBy(1);
    const auto now = std::chrono::steady_clock::now();
    const bool atEnd = progressIndic.value.get() >= progressIndic.maximum.get();
    if (atEnd || now - advanceDrawn_ >= std::chrono::seconds(1) / 30.0) {
        advanceDrawn_ = now;
        progressWindow.display();
    }
}

void ProgressSheet::closeProgress() {
    progressIndic.animating.set(false);
    progressWindow.end();
}

} // namespace pinmora
