#include "shell/apply_report.h"

#include "matching/matcher.h"
#include "matching/neighbour_placing.h"
#include "outlets/quiet_bar.h"
#include "persistence/context.h"
#include "persistence/undo_manager.h"
#include "platform/translation.h"
#include "store/image.h"

#include <algorithm>
#include <utility>

namespace pinmora {

namespace {

constexpr const char *appliedSubject = "applied";

std::string placedText(std::size_t placed) {
    return placed == 0 ? translated("shell", "No photo has got a position.")
                       : translated("shell", "%n photos have got their positions.",
                                    "%n photo has got its position.", placed);
}

/// "" when every photo has its first position, or the one that it had.
std::string movedText(const ApplyOutcome &outcome) {
    if (outcome.moved == 0) {
        return "";
    }
    return outcome.placed == 1
               //: Of the only photo that has been placed.
               ? translated("shell", "It had another position before; Undo brings it back.")
               //: Of photos that have been placed.
               : translated("shell", "%n had other positions before; Undo brings them back.",
                            "%n had another position before; Undo brings it back.", outcome.moved);
}

/// What a person should look at.
std::string doubtsText(const ApplyOutcome &outcome) {
    //: Of photos; the start of a sentence.
    const std::string far = translated(
        "shell", "%n were taken more than 5 minutes from any point of the log",
        "%n was taken more than 5 minutes from any point of the log", outcome.far.size());
    //: Of photos; the end of a sentence.
    const std::string untimed =
        translated("shell", "%n do not say when they were taken",
                   "%n does not say when it was taken", outcome.untimed.size());
    if (!outcome.far.empty() && !outcome.untimed.empty()) {
        //: Two halves of a sentence on photos, each complete.
        return filled(translated("shell", "%1; %2."), {far, untimed});
    }
    return !outcome.far.empty() ? far + "." : !outcome.untimed.empty() ? untimed + "." : "";
}

} // namespace

std::string wordsOf(const ApplyOutcome &outcome) {
    const std::string moved = movedText(outcome);
    const std::string doubts = doubtsText(outcome);
    return doubts + (moved.empty() || doubts.empty() ? "" : " ") + moved;
}

std::string wordsOf(const NeighbourOutcome &outcome) {
    return outcome.unplaced.empty()
               ? ""
               : translated("shell",
                            "%n have no neighbours in time with a position, or no capture time.",
                            "%n has no neighbours in time with a position, or no capture time.",
                            outcome.unplaced.size());
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
        message.choices.push_back(
            {translated("shell", "Show"), [this, toLookAt] { show(toLookAt); }});
    }
    message.weight = BarWeight::Answer;
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
