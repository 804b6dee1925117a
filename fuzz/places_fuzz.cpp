// Any bytes as what a place-name service is asked and what it answers, and as a map page's word on
// a placement: they neither crash nor hang, and no placement is beyond the earth.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "map/placement.h"
#include "places/place_answer.h"
#include "services/soap.h"

using namespace pinmora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string text(reinterpret_cast<const char *>(data), size);
    static_cast<void>(readPlaceAnswer(text));
    static_cast<void>(readPlaceDistance(text));
    static_cast<void>(placeRequest(text));
    const auto placed = placementFrom(text);
    if (placed &&
        !(degreesWithin(placed->position[0], 90) && degreesWithin(placed->position[1], 180))) {
        std::abort();
    }
    return 0;
}
