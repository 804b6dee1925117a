#pragma once

namespace pinmora {

/// Tells the toolkit how time strips speak to assistive technology: as sliders whose value is the
/// camera's clock, in seconds, and in words. Called again it does nothing.
void makeTimeStripsAccessible();

} // namespace pinmora
