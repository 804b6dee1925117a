#include "shell/cameras.h"

#include "matching/clock_offset.h"
#include "persistence/context.h"
#include "shell/offset_words.h"
#include "store/image.h"
#include "store/offset.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

namespace pinmora {
namespace {

void count(CameraInUse &camera, const image &photo) {
    ++camera.photos;
    if (const std::optional<Date> taken = photo.captureTime()) {
        camera.first = std::min(camera.first.value_or(*taken), *taken);
        camera.last = std::max(camera.last.value_or(*taken), *taken);
    }
}

/// What two have in common does not tell which is which.
void nameThem(std::vector<CameraInUse> &cameras) {
    std::map<std::string, int> called;
    for (const CameraInUse &one : cameras) {
        ++called[cameraName(one.camera)];
    }
    for (CameraInUse &one : cameras) {
        one.name = cameraName(one.camera);
        const std::size_t serial = one.camera.rfind(", ");
        if (called[one.name] > 1 && serial != std::string::npos) {
            one.name += one.camera.substr(serial);
        }
    }
}

} // namespace

Cameras::Cameras(Context &context, ObjectController<offset> &offsetObj, ClockOffset &clockOffset,
                 WorkingWindow workingWindow)
    : context_(context), offsetObj_(offsetObj), clockOffset_(clockOffset),
      workingWindow_(std::move(workingWindow)), endOfTurn_([this] {
          if (sheet.isUp()) {
              cameras.set(gather());
          }
      }) {
    context.addObserver(*this, {.entity = &offset::description()});
    context.addObserver(*this, {.entity = &image::description(), .values = false});
    connections_.push_back(closeButton.pressed.connect([this] { close(); }));
}

Cameras::~Cameras() {
    context_.removeObserver(*this);
}

void Cameras::open() {
    if (context_.count<image>() > 0 && context_.commitEditing()) {
        cameras.set(gather());
        sheet.begin(workingWindow_());
    }
}

void Cameras::close() {
    sheet.end();
}

void Cameras::setHasOwnClock(const std::string &camera, bool own) {
    clockOffset_.setHasOwnClock(camera, own);
}

void Cameras::setClock(const std::string &camera, const ClockParts &parts) {
    if (clockOffset_.clock(camera) != parts.signedOffset()) {
        clockOffset_.setClock(camera, parts.signedOffset());
    }
}

std::vector<CameraInUse> Cameras::gather() const {
    std::map<std::string, CameraInUse, std::less<>> known;
    for (const image *photo : context_.records<image>()) {
        auto found = known.find(photo->camera().view());
        if (found == known.end()) {
            const std::string camera = photo->camera().string();
            found = known.emplace(camera, CameraInUse{.camera = camera, .name = {}}).first;
        }
        count(found->second, *photo);
    }
    std::vector<CameraInUse> all;
    const offset *const stored = offsetObj_.content();
    for (auto &[camera, one] : known) {
        const ClockParts *const own = stored ? stored->cameraOffsets().find(camera) : nullptr;
        one.hasOwnClock = own != nullptr;
        one.clock = own ? *own : stored ? stored->parts() : ClockParts();
        all.push_back(std::move(one));
    }
    nameThem(all);
    std::stable_sort(all.begin(), all.end(), [](const CameraInUse &a, const CameraInUse &b) {
        return std::pair(a.camera.empty(), std::string_view(a.name)) <
               std::pair(b.camera.empty(), std::string_view(b.name));
    });
    return all;
}

} // namespace pinmora
