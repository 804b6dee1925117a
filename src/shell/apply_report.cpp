#include "shell/apply_report.h"

#include "matching/matcher.h"
#include "matching/neighbour_placing.h"
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

std::string wordsOf(const NeighbourOutcome &outcome) {
    return outcome.unplaced.empty()
               ? ""
               : counted(outcome.unplaced.size(), "has", "have") +
                     " no neighbours in time with a position, or no capture time.";
}

ApplyReport::ApplyReport(Context &context, ArrayController<image> &pictureArray, Matcher &matcher,
                         NeighbourPlacing &neighbours, QuietBar &quietBar,
                         std::function<void()> selectionChanged)
    : context_(context), pictureArray_(pictureArray), quietBar_(quietBar),
      selectionChanged_(std::move(selectionChanged)) {
    context_.undoManager()->addObserver(*this);
    connections_.push_back(matcher.applied.connect([this](const ApplyOutcome &outcome) {
        std::vector<std::uint32_t> toLookAt = outcome.far;
        toLookAt.insert(toLookAt.end(), outcome.untimed.begin(), outcome.untimed.end());
        tell(outcome.placed, wordsOf(outcome), std::move(toLookAt));
    }));
    connections_.push_back(neighbours.placed.connect([this](const NeighbourOutcome &outcome) {
        tell(outcome.placed, wordsOf(outcome), outcome.unplaced);
    }));
}

ApplyReport::~ApplyReport() {
    context_.undoManager()->removeObserver(*this);
}

void ApplyReport::didUndo(const UndoStep &) {
    quietBar_.withdraw(appliedSubject);
}

void ApplyReport::tell(std::size_t placed, const std::string &text,
                       std::vector<std::uint32_t> toLookAt) {
    BarMessage message{
        .subject = appliedSubject, .head = placedText(placed), .text = text, .choices = {}};
    if (!toLookAt.empty()) {
        std::sort(toLookAt.begin(), toLookAt.end());
        message.choices.push_back({"Show", [this, toLookAt] { show(toLookAt); }});
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
