#include "saving/photo_snapshot.h"

#include "store/image.h"

namespace pinmora {

PhotoSnapshot snapshotOf(const image &photo) {
    return {
        .source = photo.full_file_path().string(),
        .wasMissing = false,
        .imageName = photo.image_name().string(),
        .extension = photo.extension().string(),
        .description = photo.img_description().string(),
        .comments = photo.comments().string(),
        .lat = photo.lat().string(),
        .lon = photo.lon().string(),
        .latRef = photo.lat_ref().string(),
        .lonRef = photo.lon_ref().string(),
        .mapDatum = photo.map_datum().string(),
        .alt = photo.alt().string(),
        .country = photo.country().string(),
        .prov = photo.prov().string(),
        .city = photo.city().string(),
        .removeOldPosition = false,
    };
}

bool hasPosition(const PhotoSnapshot &photo) {
    return !photo.lat.empty() && !photo.lon.empty();
}

} // namespace pinmora
