#pragma once

#include "platform/date.h"

#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

// The moment of the next check as the settings keep it, in universal time to the second:
// "2024-05-31T18:03:00Z".

std::string checkDateText(Date date);
/// Nothing for any other text.
std::optional<Date> checkDateFrom(std::string_view text);

} // namespace pinmora
