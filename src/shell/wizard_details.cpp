#include "shell/wizard_details.h"

#include "persistence/context.h"
#include "platform/number_text.h"
#include "platform/translation.h"
#include "store/image.h"

#include <algorithm>

namespace pinmora {

WizardDetails::WizardDetails(Context &context, ArrayController<image> &pictureArray,
                             TextField &offsetText2)
    : context_(context), pictureArray_(pictureArray), endOfTurn_([this] { showSelection(); }) {
    context.addObserver(*this, {.entity = &image::description()});
    connections_.push_back(
        pictureArray.selectionChanged.connect([this] { endOfTurn_.ask(); })); // may still go on
    connections_.push_back(offsetText2.text.onChange(
        [this](const std::string &text) { tiemWithOffset2.text.set(std::string(trimmed(text))); }));
    showSelection();
}

WizardDetails::~WizardDetails() {
    context_.removeObserver(*this);
}

void WizardDetails::didChange(Record &, std::string_view key) {
    constexpr std::array shown{"image_name", "date", "lat", "lon"};
    if (std::find(shown.begin(), shown.end(), key) != shown.end()) {
        endOfTurn_.ask();
    }
}

void WizardDetails::showSelection() {
    const std::vector<image *> &photos = pictureArray_.selectedObjects();
    const image *const photo = photos.size() == 1 ? photos.front() : nullptr;
    pictureData2.text.set(photo ? photo->image_name().string()
                          : photos.empty()
                              ? std::string()
                              : translated("shell", "%n photos", "%n photo", photos.size()));
    time2.text.set(photo ? std::string(trimmed(photo->time_string())) : "");
    latitude2.text.set(photo ? photo->lat().string() : "");
    longitude2.text.set(photo ? photo->lon().string() : "");
}

} // namespace pinmora
