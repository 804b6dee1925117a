#pragma once

#include "gps/log_reading.h"

#include <string_view>

namespace pinmora {

class Defaults;

/// The setting that says how logs are read: a policy's name.
inline constexpr std::string_view logReadingKey = "logReading";

/// Exact, unless a person has chosen otherwise.
LogReading logReadingFrom(const Defaults &defaults);

} // namespace pinmora
