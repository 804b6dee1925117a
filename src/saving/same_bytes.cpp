#include "saving/same_bytes.h"

#include <cstring>
#include <fstream>
#include <vector>

namespace pinmora {

bool haveSameBytes(const std::filesystem::path &a, const std::filesystem::path &b) {
    std::error_code errorA;
    std::error_code errorB;
    const auto size = std::filesystem::file_size(a, errorA);
    if (std::filesystem::file_size(b, errorB) != size || errorA || errorB) {
        return false;
    }
    constexpr std::streamsize atOnce = 64 * 1024;
    std::vector<char> bufferA(atOnce);
    std::vector<char> bufferB(atOnce);
    std::ifstream fileA{a, std::ios::binary};
    std::ifstream fileB{b, std::ios::binary};
    std::uintmax_t compared = 0;
    while (fileA && fileB && compared < size) {
        fileA.read(bufferA.data(), atOnce);
        fileB.read(bufferB.data(), atOnce);
        const auto count = static_cast<std::size_t>(fileA.gcount());
        if (fileB.gcount() != fileA.gcount() ||
            std::memcmp(bufferA.data(), bufferB.data(), count) != 0) {
            return false;
        }
        compared += count;
    }
    return compared == size;
}

} // namespace pinmora
