#include "saving/save_progress.h"

#include "outlets/status_line.h"
#include "platform/translation.h"
#include "saving/save_words.h"

#include <utility>

namespace pinmora {

SaveProgress::SaveProgress(SaveOutlets &outlets, StatusLine &statusLine,
                           WorkingWindow workingWindow)
    : outlets_(outlets), statusLine_(statusLine), workingWindow_(std::move(workingWindow)) {}

void SaveProgress::open() {
    count_ = ended_ = 0;
    quits_ = false;
    outlets_.saveProgress.text.set("");
    outlets_.cancelSaveButton.enabled.set(true);
    outlets_.saveWindow.begin(workingWindow_());
}

void SaveProgress::waitsForNames(std::size_t names) {
    outlets_.saveWhatDoing.text.set(waitingText(names));
    ProgressBar &bar = outlets_.saveIndicator;
    bar.minimum.set(0);
    bar.maximum.set(0);
    bar.animating.set(true);
}

void SaveProgress::begins(std::size_t count) {
    count_ = count;
    outlets_.saveWhatDoing.text.set(translated("saving", "Copying files and adding data"));
    ProgressBar &bar = outlets_.saveIndicator;
    bar.minimum.set(0);
    bar.maximum.set(static_cast<double>(count));
    bar.value.set(0);
    bar.animating.set(true);
    outlets_.saveWindow.display();
    outlets_.saveWindow.makeKey();
    showStatus();
}

void SaveProgress::beginsPhoto(std::size_t index) {
    outlets_.saveIndicator.value.set(static_cast<double>(index));
    const double count = outlets_.saveIndicator.maximum.get();
    outlets_.saveProgress.text.set(ofText(index + 1, static_cast<std::size_t>(count)));
}

void SaveProgress::cancels() {
    outlets_.cancelSaveButton.enabled.set(false);
    outlets_.saveWhatDoing.text.set(translated("saving", "Cancelling"));
}

void SaveProgress::copied() {
    outlets_.saveWhatDoing.text.set(translated("saving", "Updating icons"));
    outlets_.saveWindow.display();
    endSheet();
    showStatus();
}

void SaveProgress::ended(SavedPhoto::Status status) {
    const bool isPassedOver =
        status == SavedPhoto::Status::Skipped || status == SavedPhoto::Status::Stopped;
    if (isPassedOver) {
        --count_;
    } else {
        ++ended_;
    }
    showStatus();
}

void SaveProgress::quits() {
    quits_ = true;
    showStatus();
}

void SaveProgress::end() {
    endSheet();
    if (!shown_.empty() && statusLine_.text.get() == shown_) {
        statusLine_.text.set("");
    }
    shown_.clear();
}

void SaveProgress::endSheet() {
    outlets_.saveIndicator.animating.set(false);
    outlets_.saveWindow.end();
}

/// As long as the sheet is up, it says itself what is done.
void SaveProgress::showStatus() {
    if (quits_) {
        shown_ = quittingText(ended_, count_);
    } else if (!outlets_.saveWindow.isUp() && count_ > 0) {
        shown_ = writingText(ended_, count_);
    } else {
        return;
    }
    statusLine_.text.set(shown_);
}

} // namespace pinmora
