#pragma once

#include "platform/date.h"

#include <string_view>
#include <vector>

namespace pinmora {

class ClockOffset;
class Context;
class offset;

/// When the photos that go by a camera's own clock, or by that of all others (""), were taken by
/// that clock as it is stored; those that tell when they were taken. Ascending.
std::vector<Date> timesByClock(const Context &context, const ClockOffset &clocks,
                               const offset &stored, std::string_view camera);

} // namespace pinmora
