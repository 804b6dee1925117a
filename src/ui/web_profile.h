#pragma once

#include <memory>

class QWebEngineProfile;

namespace pinmora {

/// What all map pages have in common: one disk cache for tiles, in the person's cache folder, and
/// the name under which servers see the program. Cookies and the like do not outlive the program.
/// It is made for the first who asks and goes with the last; pages must go before.
std::shared_ptr<QWebEngineProfile> sharedWebProfile();

} // namespace pinmora
