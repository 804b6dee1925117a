#include "shell/apply_report.h"

#include "matching/matcher.h"
#include "outlets/quiet_bar.h"
#include "persistence/context.h"
#include "persistence/undo_manager.h"
#include "shell/intake_words.h"
#include "store/image.h"

#include <algorithm>
#include <utility>

namespace pinmora {

namespace {

constexpr const char *appliedSubject = "applied";

std::string placedText(std::size_t placed) {
    return placed == 0
               ? "No photo has got a position."
               : counted(placed, "photo has got its position.", "photos have got their positions.");
}

} // namespace

std::string wordsOf(const ApplyOutcome &outcome) {
    std::string text;
    if (!outcome.far.empty()) {
        text = counted(outcome.far.size(), "was", "were") +
               " taken more than 5 minutes from any point of the log";
    }
    if (!outcome.untimed.empty()) {
        text += (text.empty() ? "" : "; ") + counted(outcome.untimed.size(),
                                                     "does not say when it was taken",
                                                     "do not say when they were taken");
    }
    return text.empty() ? text : text + ".";
}

ApplyReport::ApplyReport(Context &context, ArrayController<image> &pictureArray, Matcher &matcher,
                         QuietBar &quietBar, std::function<void()> selectionChanged)
    : context_(context), pictureArray_(pictureArray), quietBar_(quietBar),
      selectionChanged_(std::move(selectionChanged)),
      applied_(matcher.applied.connect([this](const ApplyOutcome &outcome) { tell(outcome); })) {
    context_.undoManager()->addObserver(*this);
}

ApplyReport::~ApplyReport() {
    context_.undoManager()->removeObserver(*this);
}

void ApplyReport::didUndo(const UndoStep &) {
    quietBar_.withdraw(appliedSubject);
}

void ApplyReport::tell(const ApplyOutcome &outcome) {
    BarMessage message{.subject = appliedSubject,
                       .head = placedText(outcome.placed),
                       .text = wordsOf(outcome),
                       .choices = {}};
    if (!message.text.empty()) {
        std::vector<std::uint32_t> serials = outcome.far;
        serials.insert(serials.end(), outcome.untimed.begin(), outcome.untimed.end());
        std::sort(serials.begin(), serials.end());
        message.choices.push_back({"Show", [this, serials] { show(serials); }});
    }
    quietBar_.post(std::move(message));
}

/// Those of them that are still there.
void ApplyReport::show(const std::vector<std::uint32_t> &serials) {
    std::vector<image *> photos;
    for (image *photo : pictureArray_.arrangedObjects()) {
        if (std::binary_search(serials.begin(), serials.end(), photo->serial())) {
            photos.push_back(photo);
        }
    }
    pictureArray_.setSelectedObjects(photos);
    selectionChanged_();
}

} // namespace pinmora
