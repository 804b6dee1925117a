#pragma once

namespace pinmora {

/// Draws what has changed while long work keeps the event loop from it. User input and sockets are
/// held back meanwhile, so that nothing else begins. The one place where this is done; at most 30
/// times a second unless `at once`.
void redrawDuringWork(bool atOnce = false);

/// Whether that is being done: what is called then is called in the middle of long work.
bool isRedrawingDuringWork();

} // namespace pinmora
