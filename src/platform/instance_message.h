#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

/// The bytes by which one running program hands file paths to another; nothing when they cannot be
/// handed over: a path that is not absolute or holds a NUL, or too many of them.
std::optional<std::string> instanceMessage(const std::vector<std::string> &paths);

/// What is known of a message of which some bytes have come.
struct InstanceReading {
    bool isRefused = false;                        ///< it is none, whatever is still to come
    std::optional<std::vector<std::string>> paths; ///< once it is complete
};

InstanceReading readInstanceMessage(std::string_view bytes);

} // namespace pinmora
