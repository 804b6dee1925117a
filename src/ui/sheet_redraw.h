#pragma once

namespace pinmora {

/// Draws what has changed while long work keeps the event loop from it. User input and sockets are
/// held back meanwhile, so that nothing else begins. The one place where this is done; at most 30
/// times a second unless `at once`.
void redrawDuringWork(bool atOnce = false);

} // namespace pinmora
