#pragma once

#include <string>

namespace pinmora {

// Why a text that a person has typed cannot be what it is to be, as a sentence; "" when it can.

/// The address of something on the web.
std::string webAddressProblem(const std::string &text);
/// Where tiles come from: an address with {z}, {x} and {y} in it.
std::string tileAddressProblem(const std::string &text);
/// The host, or the namespace, that a place-name service expects; "" is none.
std::string placeHostProblem(const std::string &text);
std::string placeNamespaceProblem(const std::string &text);

} // namespace pinmora
