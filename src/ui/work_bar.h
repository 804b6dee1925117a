#pragma once

#include "ui/bindings.h"

class QProgressBar;

namespace pinmora {

/// A thin bar that shows how far long work has come; it moves to and fro while there is no range
/// to fill.
QProgressBar *makeWorkBar(ProgressBar &progress, Bindings &bindings);

} // namespace pinmora
