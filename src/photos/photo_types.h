#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

class Defaults;

/// The setting that gives a person more types: "1".
inline constexpr std::string_view morePhotoTypesKey = "morePhotoTypes";
bool takesMorePhotoTypes(const Defaults &defaults);

/// Which files are photos, by the extensions of their names.
///
/// The fixed table holds each extension in lower and in upper case and is looked up exactly as
/// spelled. A person can have more types, which are looked up in any case of letters: those of the
/// fixed table, and others that cameras and phones write. Hidden names are never photos.
class PhotoTypes {
public:
    /// The fixed table, in the order in which an open panel offers it ("MRW" twice).
    const std::vector<std::string> &imageTypes() const;
    /// The same extensions for look-up.
    const std::set<std::string, std::less<>> &imageSupportDict() const;

    /// Whether more than the fixed table counts; at first it does not.
    bool morePhotoTypes() const { return more_; }
    void setMorePhotoTypes(bool yes) { more_ = yes; }

    /// Whether a name or path is that of a photo file.
    bool isPict(std::string_view path) const;
    /// Whether it is one for those only who have more types; it does not matter whether that is in
    /// force.
    bool isMore(std::string_view path) const;

    /// What an open panel offers now, exactly as files may be spelled.
    std::vector<std::string> panelTypes() const;

private:
    bool more_ = false;
};

} // namespace pinmora
