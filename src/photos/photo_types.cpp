#include "photos/photo_types.h"

#include "photos/file_names.h"
#include "platform/defaults.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace pinmora {
namespace {

constexpr std::array<std::string_view, 27> fixedTypes{
    "ps",  "epsi", "epsf", "epi", "eps", "xbm",  "hdr", "exr", "cr2",
    "dcr", "dng",  "srf",  "nef", "crw", "raf",  "orf", "mrw", "icns",
    "jpg", "jpeg", "cur",  "fax", "tif", "tiff", "jpe", "pef", "mef"};

/// What phones and later cameras write, as far as it is read at all, and pictures of the web.
constexpr std::array<std::string_view, 9> moreTypes{"heic", "heif", "cr3",  "arw", "rw2",
                                                    "srw",  "png",  "webp", "avif"};

bool isSmallLetter(char byte) {
    return byte >= 'a' && byte <= 'z';
}

char raised(char byte) {
    return static_cast<char>(isSmallLetter(byte) ? byte - 'a' + 'A' : byte);
}

std::string inUpperCase(std::string_view text) {
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), raised);
    return upper;
}

std::vector<std::string> bothCases() {
    std::vector<std::string> types;
    for (const std::string_view extension : fixedTypes) {
        types.emplace_back(extension);
        types.push_back(inUpperCase(extension));
    }
    types.emplace_back("MRW"); // the list has always named it twice
    return types;
}

/// Adds an extension in each mixture of small and capital letters: 16 for one of four letters.
void addSpellings(std::string_view extension, std::vector<std::string> &types) {
    std::vector<std::string> spellings{std::string(extension)};
    for (std::size_t at = 0; at < extension.size(); ++at) {
        const std::size_t present = isSmallLetter(extension[at]) ? spellings.size() : 0;
        for (std::size_t i = 0; i < present; ++i) {
            std::string spelling = spellings[i];
            spelling[at] = raised(spelling[at]);
            spellings.push_back(std::move(spelling));
        }
    }
    types.insert(types.end(), spellings.begin(), spellings.end());
}

bool contains(const auto &types, std::string_view extension) {
    const std::string upper = inUpperCase(extension);
    return std::any_of(types.begin(), types.end(),
                       [&](std::string_view type) { return inUpperCase(type) == upper; });
}

} // namespace

bool takesMorePhotoTypes(const Defaults &defaults) {
    return defaults.text(morePhotoTypesKey) == "1";
}

const std::vector<std::string> &PhotoTypes::imageTypes() const {
    static const std::vector<std::string> types = bothCases();
    return types;
}

const std::set<std::string, std::less<>> &PhotoTypes::imageSupportDict() const {
    static const std::set<std::string, std::less<>> dict(imageTypes().begin(), imageTypes().end());
    return dict;
}

bool PhotoTypes::isPict(std::string_view path) const {
    return (!path.starts_with('.') && imageSupportDict().contains(pathExtension(path))) ||
           (more_ && isMore(path));
}

bool PhotoTypes::isMore(std::string_view path) const {
    const std::string_view extension = pathExtension(path);
    return !path.starts_with('.') && !imageSupportDict().contains(extension) &&
           (contains(fixedTypes, extension) || contains(moreTypes, extension));
}

std::vector<std::string> PhotoTypes::panelTypes() const {
    if (!more_) {
        return imageTypes();
    }
    std::vector<std::string> types;
    for (const std::string_view extension : fixedTypes) {
        addSpellings(extension, types);
    }
    for (const std::string_view extension : moreTypes) {
        addSpellings(extension, types);
    }
    return types;
}

} // namespace pinmora
