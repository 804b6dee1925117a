#pragma once

#include "platform/date.h"

#include <optional>
#include <string_view>

namespace pinmora {

/// The instant that an ISO 8601 date and time names: "2008-06-01T09:30:00Z", "2008-06-01
/// 11:30:00.25+02:00", "20080601T0930+0130", "2008-153T09,5Z", "2008-W22-7T09:30". Extended and
/// basic form; the date by month, week or day of the year; the last part of the time with a
/// fraction (kept to the microsecond); blanks around it allowed. Without a zone it is universal
/// time. Nothing for any other text and for days and times that no calendar has.
std::optional<Date> instantFromIsoText(std::string_view text);

} // namespace pinmora
