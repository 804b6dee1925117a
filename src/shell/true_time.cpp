#include "shell/true_time.h"

#include "matching/matcher.h"
#include "matching/matching_outlets.h"
#include "matching/placing.h"
#include "persistence/context.h"
#include "shell/offset_words.h"
#include "store/calendar_formats.h"
#include "store/image.h"

#include <chrono>
#include <utility>

namespace pinmora {

TrueTime::TrueTime(MatchingOutlets &matching, Matcher &matcher, WorkingWindow workingWindow)
    : matching_(matching), matcher_(matcher), workingWindow_(std::move(workingWindow)),
      endOfTurn_([this] { openButton.enabled.set(photoInHand() != nullptr); }) {
    openButton.enabled.set(false);
    connections_.push_back(openButton.pressed.connect([this] { open(); }));
    connections_.push_back(setButton.pressed.connect([this] { setClock(); }));
    connections_.push_back(cancelButton.pressed.connect([this] { cancel(); }));
    connections_.push_back(taken.onChange([this](const WallClock &) { showWords(); }));
    // A selection may change in the middle of a change of the library.
    connections_.push_back(
        matching.pictureArray.selectionChanged.connect([this] { endOfTurn_.ask(); }));
    endOfTurn_.ask();
}

image *TrueTime::photoInHand() const {
    const std::vector<image *> &photos = matching_.pictureArray.selectedObjects();
    const bool isOne = photos.size() == 1 && matching_.offsetObj.content();
    return isOne && photos.front()->captureTime() ? photos.front() : nullptr;
}

void TrueTime::open() {
    image *const photo = photoInHand();
    if (!photo || !photo->context()->commitEditing()) {
        return;
    }
    LocalZone zone;
    photoName.text.set(photo->image_name().string());
    cameraSays.text.set(localizedTextFromDate(*photo->date(), shownTimeFormat, zone));
    taken.set(zone.wallClockAt(*correctedTime(*photo, *matching_.offsetObj.content())));
    showWords();
    sheet.begin(workingWindow_());
}

void TrueTime::showWords() {
    if (const image *const photo = photoInHand()) {
        LocalZone zone;
        const auto apart = zone.instantOf(taken.get()) - *photo->date();
        words.text.set(offsetSentence(std::chrono::round<std::chrono::seconds>(apart)));
    }
}

void TrueTime::setClock() {
    sheet.end();
    if (photoInHand()) {
        LocalZone zone;
        matcher_.setFromTrueTime(zone.instantOf(taken.get()));
    }
}

void TrueTime::cancel() {
    sheet.end();
}

} // namespace pinmora
