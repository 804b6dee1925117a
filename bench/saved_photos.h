#pragma once

#include "saving/photo_snapshot.h"

#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace pinmora::bench {

/// So many copies of a photo in a new folder, as saving is to know of them.
inline std::vector<PhotoSnapshot> photosFrom(const std::filesystem::path &sample,
                                             const std::filesystem::path &folder,
                                             std::size_t count) {
    std::filesystem::create_directory(folder);
    std::vector<PhotoSnapshot> photos(count);
    for (std::size_t i = 0; i < count; ++i) {
        PhotoSnapshot &photo = photos[i];
        photo.source = folder / std::to_string(i);
        std::filesystem::copy_file(sample, photo.source);
        photo.imageName = std::to_string(i);
        photo.extension = "jpg";
        photo.description = "On the way up";
        photo.lat = "47.14951";
        photo.lon = "8.51652";
        photo.latRef = "N";
        photo.lonRef = "E";
        photo.mapDatum = "WGS-84";
        photo.alt = "925.4";
        photo.country = "Schweiz";
        photo.prov = photo.city = "Zug";
    }
    return photos;
}

/// A figure of work that failed would mean nothing.
inline void require(bool fine, const std::string &otherwise) {
    if (!fine) {
        throw std::runtime_error(otherwise);
    }
}

} // namespace pinmora::bench
