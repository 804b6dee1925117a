#pragma once

#include <filesystem>
#include <system_error>

namespace pinmora {

/// A copy of a photo in the making: it stands in its folder under a hidden name of its own
/// (".pinmora-" and six random characters) until it is whole and gets its real one. Goes away with
/// this object if it never got one. Where a run was cut off a hidden file may stay behind; it is in
/// nobody's way.
class HiddenCopy {
public:
    /// Copies the source as copyFile() does; error() says whether that went well.
    HiddenCopy(const std::filesystem::path &source, const std::filesystem::path &folder);
    ~HiddenCopy();
    HiddenCopy(const HiddenCopy &) = delete;
    HiddenCopy &operator=(const HiddenCopy &) = delete;

    const std::error_code &error() const { return error_; }
    const std::filesystem::path &path() const { return file_; }

    /// Gives it its name; `file_exists`, and nothing done, when something has that name already.
    std::error_code placeAs(const std::filesystem::path &target);

    /// Gives it the name of a file that it takes the place of.
    std::error_code replace(const std::filesystem::path &target);

private:
    std::filesystem::path file_; ///< empty when there is none
    std::error_code error_;
};

} // namespace pinmora
