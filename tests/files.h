#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

/// Files of tests.
namespace pinmora::test {

/// All bytes of a file; none where it cannot be read.
inline std::string contents(const std::filesystem::path &file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Writes a new file in the place of any other, and gives its path.
inline std::filesystem::path put(const std::filesystem::path &file, std::string_view bytes) {
    std::filesystem::remove(file); // one cut and written anew is synced when it is closed
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
}

/// How many files and folders a folder has; none where it is missing.
inline std::size_t entries(const std::filesystem::path &folder) {
    std::error_code none;
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(folder, none), {}));
}

} // namespace pinmora::test
