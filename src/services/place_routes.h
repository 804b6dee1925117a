#pragma once

#include <httplib.h>

namespace pinmora {

// What the local server answers about places, each a handler that any thread may run.

/// "/maps/search": the places of a name, as JSON.
void answerSearch(const httplib::Request &request, httplib::Response &response);

/// "/maps/names": the places to be named in a part of the map, as JSON.
void answerNames(const httplib::Request &request, httplib::Response &response);

/// "/TerraService2.asmx": the place nearest to a position, as SOAP 1.1, in `operationNamespace`.
/// The header "Pinmora-Place-Distance" tells how far it is, in whole metres.
void answerNearestPlace(const httplib::Request &request, httplib::Response &response,
                        const char *operationNamespace);

} // namespace pinmora
