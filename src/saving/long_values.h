#pragma once

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace pinmora {

/// The values that cannot be handed over as they are: Linux takes at most 128 KiB an argument,
/// while microscopes and scanners put whole documents into a description.
class LongValues {
public:
    LongValues() = default;
    ~LongValues();
    LongValues(const LongValues &) = delete;
    LongValues &operator=(const LongValues &) = delete;

    using Judge = bool (*)(const std::string &argument);

    /// Whether an argument is short enough for a command line.
    static bool fitsOnCommandLine(const std::string &argument);

    /// Writes the value of every argument that does not fit into a temporary file, which lives as
    /// long as this object, and replaces the argument "-TAG=VALUE" by "-TAG<=FILE", ExifTool's form
    /// for it.
    std::error_code moveOut(std::vector<std::string> &arguments, Judge fits = fitsOnCommandLine);

private:
    std::vector<std::filesystem::path> files_;
};

} // namespace pinmora
