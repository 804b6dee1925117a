#include "photos/photo_types.h"

#include "photos/file_names.h"

#include <algorithm>

namespace pinmora {
namespace {

std::vector<std::string> bothCases() {
    std::vector<std::string> types;
    for (const char *extension :
         {"ps",  "epsi", "epsf", "epi", "eps", "xbm",  "hdr", "exr", "cr2",
          "dcr", "dng",  "srf",  "nef", "crw", "raf",  "orf", "mrw", "icns",
          "jpg", "jpeg", "cur",  "fax", "tif", "tiff", "jpe", "pef", "mef"}) {
        std::string upper = extension;
        std::transform(upper.begin(), upper.end(), upper.begin(), [](char letter) {
            return static_cast<char>(letter >= 'a' && letter <= 'z' ? letter - 'a' + 'A' : letter);
        });
        types.emplace_back(extension);
        types.push_back(std::move(upper));
    }
    types.emplace_back("MRW"); // the list has always named it twice
    return types;
}

} // namespace

const std::vector<std::string> &imageTypes() {
    static const std::vector<std::string> types = bothCases();
    return types;
}

const std::set<std::string, std::less<>> &imageSupportDict() {
    static const std::set<std::string, std::less<>> dict(imageTypes().begin(), imageTypes().end());
    return dict;
}

bool isPict(std::string_view path) {
    return !path.starts_with('.') && imageSupportDict().contains(pathExtension(path));
}

} // namespace pinmora
