#pragma once

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace pinmora {

/// The values that are too long for a command line: Linux takes at most 128 KiB an argument, while
/// microscopes and scanners put whole documents into a description.
class LongValues {
public:
    LongValues() = default;
    ~LongValues();
    LongValues(const LongValues &) = delete;
    LongValues &operator=(const LongValues &) = delete;

    /// Writes every value that is too long into a temporary file, which lives as long as this
    /// object, and replaces its argument "-TAG=VALUE" by "-TAG<=FILE", ExifTool's form for it.
    std::error_code moveOut(std::vector<std::string> &arguments);

private:
    std::vector<std::filesystem::path> files_;
};

} // namespace pinmora
