#pragma once

#include "store/image.h"

#include <string>
#include <string_view>

namespace pinmora {

/// The operation that finds the place nearest to a position.
inline constexpr std::string_view placeOperation = "ConvertLonLatPtToNearestPlace";

/// Whether a position may be put into a request: both texts are wholly plain decimal numbers.
bool canBeAsked(const PositionTexts &position);

/// The SOAP 1.1 envelope that asks for the place nearest to a position, its texts as they are
/// (UTF-8, no white space between elements).
std::string placeEnvelope(std::string_view nameSpace, const PositionTexts &position);

/// The value of the "Soapaction" header, in its quotes.
std::string placeAction(std::string_view nameSpace);

} // namespace pinmora
