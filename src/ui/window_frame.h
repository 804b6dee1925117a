#pragma once

#include <QSize>

namespace pinmora {

/// What a usual window manager puts around a window; what ours does is known only later.
inline constexpr QSize usualFrame(2, 38);

} // namespace pinmora
