// Any bytes as an image file: reading its metadata neither crashes nor hangs.

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/exiv2_properties.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    pinmora::readWithExiv2(std::as_bytes(std::span(data, size)));
    return 0;
}
