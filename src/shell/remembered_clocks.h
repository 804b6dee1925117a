#pragma once

#include "outlets/quiet_bar.h"
#include "store/camera_offsets.h"

#include <functional>

namespace pinmora {

/// Says that cameras have the clocks again that they had the last time, and leads to them.
BarMessage rememberedClocksNote(const CameraOffsets &broughtIn, std::function<void()> openCameras);

} // namespace pinmora
