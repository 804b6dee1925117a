#pragma once

#include <functional>
#include <string_view>

namespace pinmora {

/// Calls `take` for each element of a frame of records, with its name and its attributes (name,
/// value, name, value, ..., null), until it says false. False then, and for what is no such frame.
bool readRecordElements(
    std::string_view payload,
    const std::function<bool(std::string_view name, const char *const *attributes)> &take);

} // namespace pinmora
