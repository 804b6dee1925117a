#include "platform/external_entity.h"

#include "platform/input_file.h"

#include <fcntl.h>

namespace pinmora {

std::optional<std::string> readEntityBeside(const std::filesystem::path &folder,
                                            std::string_view systemId) {
    if (systemId.empty() || systemId.find_first_of("/\\") != std::string_view::npos) {
        return std::nullopt;
    }
    InputFile file;
    if (file.open(folder / systemId, O_NOFOLLOW)) {
        return std::nullopt;
    }
    std::string bytes(externalEntityLimit + 1, '\0');
    const auto block = file.read(bytes);
    if (!block || block->size() > externalEntityLimit) {
        return std::nullopt;
    }
    bytes.resize(block->size());
    return bytes;
}

} // namespace pinmora
