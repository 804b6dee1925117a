#pragma once

#include "persistence/context.h"
#include "store/image.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace pinmora {

/// What the map page is told to draw, as JSON. A position that is no place on the earth in plain
/// decimals is left out.
namespace feed_messages {

/// Points that one message holds at most: more could not be told apart on a map, and a page would
/// be slow with them.
inline constexpr std::size_t mostPoints = 200'000;

/// All tracks of the library; of too many points, every so-manieth of each track and its ends.
/// Times are what a clock on the wall shows, in seconds as if it showed universal time.
std::string tracks(const Context &context, std::size_t most = mostPoints);

/// All photos that have a position.
std::string allPhotos(const Context &context);

/// Photos that have changed, and the serials of those that have gone.
std::string changedPhotos(const std::vector<const image *> &changed,
                          std::vector<std::uint32_t> gone);

/// The selected photos; `clickPlaces`: a click on the map places them.
std::string selection(const std::vector<image *> &selected, bool clickPlaces);

} // namespace feed_messages

} // namespace pinmora
