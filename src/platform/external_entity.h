#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// The most bytes that an external entity may have.
inline constexpr std::size_t externalEntityLimit = std::size_t{64} * 1024;

/// The bytes of an external entity of a document in `folder`. The system identifier must be the
/// bare name of a regular file there, no link, within the limit. Anything else gives nothing: a log
/// from a stranger must neither reach for other files nor for the network.
std::optional<std::string> readEntityBeside(const std::filesystem::path &folder,
                                            std::string_view systemId);

} // namespace pinmora
