#pragma once

#include "matching/offset_proposal.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string_view>

namespace pinmora {

class Context;
class NearestPoints;
class image;

/// The time zone of an Exif OffsetTimeOriginal, "+02:00", as what it is ahead of universal time.
/// Strict: nothing for any other text.
std::optional<std::chrono::seconds> zoneOfTag(std::string_view tag);

/// What the tracks of a library, and those of its photos that go by one clock, say of that clock.
/// Photos that do not tell when they were taken have nothing to say; of those that a person has
/// placed on the map or by typing the first twenty are heard.
OffsetEvidence gatherEvidence(const Context &context, NearestPoints &points,
                              std::chrono::seconds inForce,
                              const std::function<bool(const image &)> &goesByClock);

} // namespace pinmora
