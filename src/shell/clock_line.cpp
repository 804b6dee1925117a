#include "shell/clock_line.h"

#include "persistence/context.h"
#include "platform/translation.h"
#include "shell/clock_saying.h"
#include "shell/offset_words.h"
#include "store/image.h"
#include "store/offset.h"

#include <algorithm>

namespace pinmora {

ClockLine::ClockLine(Context &context, ObjectController<offset> &offsetObj,
                     ArrayController<image> &pictureArray, ClockSaying &saying)
    : context_(context), offsetObj_(offsetObj), pictureArray_(pictureArray), saying_(saying),
      endOfTurn_([this] { say(); }) {
    context.addObserver(*this, {.entity = &offset::description()});
    context.addObserver(*this, {.entity = &image::description(), .values = false});
    connections_.push_back(offsetObj.onChange([this](offset *) { endOfTurn_.ask(); }));
    connections_.push_back(pictureArray.selectionChanged.connect([this] { endOfTurn_.ask(); }));
    connections_.push_back(saying.words.text.onChange([this](const std::string &) { say(); }));
    say();
}

ClockLine::~ClockLine() {
    context_.removeObserver(*this);
}

bool ClockLine::someHaveTheirOwn() const {
    const offset *const stored = offsetObj_.content();
    if (!stored || stored->cameraOffsets().all().empty()) {
        return false;
    }
    const CameraOffsets own = stored->cameraOffsets();
    const std::vector<image *> photos = context_.fetch<image>();
    return std::any_of(photos.begin(), photos.end(), [&own](const image *photo) {
        return own.find(photo->camera().view()) != nullptr;
    });
}

void ClockLine::say() {
    const std::string &said = saying_.words.text.get();
    if (!pictureArray_.selectedObjects().empty() || !someHaveTheirOwn()) {
        words.text.set(said);
        return;
    }
    const std::string others =
        translated("shell", "Cameras have clocks of their own: GPS > Cameras");
    words.text.set(said == offsetSentence({}) ? others : said + " " + others);
}

} // namespace pinmora
