#include "shell/remembered_clocks.h"

#include "platform/translation.h"
#include "shell/offset_words.h"

#include <utility>

namespace pinmora {

BarMessage rememberedClocksNote(const CameraOffsets &broughtIn, std::function<void()> openCameras) {
    const CameraOffsets::Map &all = broughtIn.all();
    const auto &[camera, clock] = *all.begin();
    std::string text =
        all.size() > 1
            ? translated("shell", "%n cameras have the clocks that you gave them last time.",
                         "%n camera has the clock that you gave it last time.", all.size())
            //: %1: "Canon EOS 5D: 10 min slow"
            : filled(translated("shell", "%1, as you set it last time."),
                     {offsetSentenceOf(camera, clock.signedOffset())});
    return {.subject = "remembered clocks",
            .head = {},
            .text = std::move(text),
            .choices = {{translated("shell", "Cameras…"), std::move(openCameras)}}};
}

} // namespace pinmora
