#pragma once

#include <QString>

namespace pinmora {

struct Colours;

/// The application's style sheet in these colours: what the base style and a palette cannot say.
QString styleSheetIn(const Colours &colours);

} // namespace pinmora
