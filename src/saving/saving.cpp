#include "saving/saving.h"

#include "saving/copy_names.h"
#include "saving/hidden_copy.h"
#include "store/image.h"

#include <unordered_map>

namespace pinmora {

std::error_code Saving::copyTheFile(const std::filesystem::path &source,
                                    const std::filesystem::path &location,
                                    std::string_view fileName) const {
    HiddenCopy hidden{source, location};
    return hidden.error() ? hidden.error() : hidden.placeAs(location / fileName);
}

void Saving::updateThesePict(const std::vector<image *> &photos, const std::vector<image *> &all,
                             std::string_view base) const {
    std::vector<std::string> names;
    names.reserve(all.size());
    std::unordered_map<const image *, std::size_t> places;
    for (const image *photo : all) {
        places.emplace(photo, names.size());
        names.push_back(photo->image_name().string());
    }
    std::vector<std::size_t> chosen;
    chosen.reserve(photos.size());
    for (const image *photo : photos) {
        chosen.push_back(places.at(photo));
    }
    const std::vector<std::string> newNames = numberedNames(std::move(names), chosen, base);
    for (std::size_t i = 0; i < photos.size(); ++i) {
        photos[i]->setImage_name(newNames[i]);
    }
}

SaveOutcome Saving::save(const std::vector<PhotoSnapshot> &photos,
                         const std::filesystem::path &folder, const ToolSettings &settings,
                         SaveObserver observer) const {
    const MetadataTool tool{resourceFolder_, settings};
    return SaveRun{tool, folder, std::move(observer)}.run(photos);
}

} // namespace pinmora
