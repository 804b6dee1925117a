#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// The content of a gzip file of one member, below 4 GiB; nothing where it is damaged.
std::optional<std::string> gunzip(std::string_view bytes);

} // namespace pinmora
