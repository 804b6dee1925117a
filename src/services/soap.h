#pragma once

#include "services/sphere.h"

#include <string>
#include <string_view>
#include <variant>

namespace pinmora {

/// Why a request cannot be answered, in a sentence for who wrote it.
struct SoapFault {
    std::string reason;
};

/// The position that a SOAP 1.1 envelope asks ConvertLonLatPtToNearestPlace for. Elements are known
/// by their names within whatever prefix they have.
std::variant<Position, SoapFault> placeRequest(std::string_view envelope);

/// The envelope that answers with a place, "City, Region, Country", in the operation's namespace.
std::string placeResponse(std::string_view place, std::string_view operationNamespace);

/// The envelope that tells the client of its fault.
std::string faultResponse(const SoapFault &fault);

} // namespace pinmora
