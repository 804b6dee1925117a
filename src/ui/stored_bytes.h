#pragma once

#include <QByteArray>

#include <string_view>

namespace pinmora {

class Defaults;

// Settings are texts: bytes (the layout of windows) are kept in base 64.

/// Empty where there are none.
QByteArray storedBytes(const Defaults &defaults, std::string_view key);
void storeBytes(Defaults &defaults, std::string_view key, const QByteArray &bytes);

} // namespace pinmora
