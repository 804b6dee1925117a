#include "shell/clock_saying.h"

#include "matching/clock_offset.h"
#include "matching/matching_outlets.h"
#include "persistence/context.h"
#include "platform/translation.h"
#include "shell/offset_words.h"
#include "store/offset.h"

#include <chrono>
#include <optional>
#include <string>

namespace pinmora {

ClockSaying::ClockSaying(Context &context, MatchingOutlets &matching, ClockOffset &clockOffset)
    : context_(context), matching_(matching), clockOffset_(clockOffset) {
    context.addObserver(*this, {.entity = &offset::description()});
    connections_.push_back(matching.offsetObj.onChange([this](offset *) { say(); }));
    connections_.push_back(matching.pictureArray.selectionChanged.connect([this] { say(); }));
    connections_.push_back(
        clockOffset.turning.onChange([this](const std::optional<ClockTurn> &) { say(); }));
    say();
}

ClockSaying::~ClockSaying() {
    context_.removeObserver(*this);
}

void ClockSaying::say() {
    const std::string camera = clockOffset_.cameraInHand();
    std::chrono::seconds apart = clockOffset_.clock(camera);
    const std::optional<ClockTurn> &turn = clockOffset_.turning.get();
    if (turn && turn->camera == camera) {
        apart += turn->by;
    }
    heading.text.set(camera.empty()
                         ? translated("shell", "Camera clock")
                         : filled(translated("shell", "Camera clock · %1"), {modelName(camera)}));
    words.text.set(offsetSentenceOf(camera, apart));
}

} // namespace pinmora
