#include "persistence/property.h"
#include "store/image.h"

namespace pinmora {

const EntityDescription &image::description() {
    using I = image;
    static const EntityDescription entity(
        "image", []() -> std::unique_ptr<Record> { return std::make_unique<I>(); },
        {
            attribute<&I::image_name, &I::setImage_name, &I::image_name_>("image_name"),
            attribute<&I::original_name, &I::setOriginal_name, &I::original_name_>("original_name"),
            attribute<&I::file_path, &I::setFilePath, &I::file_path_>("file_path"),
            attribute<&I::full_file_path, &I::setFull_file_path, &I::full_file_path_>(
                "full_file_path"),
            attribute<&I::extension, &I::setExtension, &I::extension_>("extension"),
            attribute<&I::file_size, &I::setFile_size, &I::file_size_>("file_size"),
            attribute<&I::date, &I::setDateValue, &I::date_>("date"),
            attribute<&I::no_capture_time, &I::setNo_capture_time, &I::no_capture_time_>(
                "no_capture_time"),
            attribute<&I::offset_time_original, &I::setOffset_time_original,
                      &I::offset_time_original_>("offset_time_original"),
            attribute<&I::lat, &I::setLat, &I::lat_>("lat"),
            attribute<&I::lon, &I::setLon, &I::lon_>("lon"),
            attribute<&I::lat_ref, &I::setLat_ref, &I::lat_ref_>("lat_ref"),
            attribute<&I::lon_ref, &I::setLon_ref, &I::lon_ref_>("lon_ref"),
            attribute<&I::alt, &I::setAlt, &I::alt_>("alt"),
            attribute<&I::map_datum, &I::setMap_datum, &I::map_datum_>("map_datum"),
            attribute<&I::position_source, &I::setPosition_source, &I::position_source_>(
                "position_source"),
            attribute<&I::position_gap, &I::setPosition_gap, &I::position_gap_>("position_gap"),
            attribute<&I::city, &I::setCity, &I::city_>("city"),
            attribute<&I::prov, &I::setProv, &I::prov_>("prov"),
            attribute<&I::country, &I::setCountry, &I::country_>("country"),
            attribute<&I::place_distance, &I::setPlace_distance, &I::place_distance_>(
                "place_distance"),
            attribute<&I::comments, &I::setComments, &I::comments_>("comments"),
            attribute<&I::img_description, &I::setImg_description, &I::img_description_>(
                "img_description"),
            attribute<&I::camera, &I::setCamera, &I::camera_>("camera"),
            attribute<&I::zoom, &I::setZoom, &I::zoom_>("zoom"),
            attribute<&I::zoom_reset, &I::setZoom_reset, &I::zoom_reset_>("zoom_reset"),
            attribute<&I::valid_file, &I::setValid_file, &I::valid_file_>("valid_file"),
            attribute<&I::dirty, &I::setDirty, &I::dirty_>("dirty"),
            derived<&I::lat_and_lon>("lat_and_lon", {"lat", "lon"}),
            derived<&I::zoom_active>("zoom_active", {"lat", "lon"}),
            derived<&I::has_maker>("has_maker", {"lat", "lon"}),
            derived<&I::zoomtext>("zoomtext", {"zoom"}),
            derived<&I::theDateString>("theDateString", {"date"}),
            derived<&I::time_string>("time_string", {"date"}),
        });
    return entity;
}

} // namespace pinmora
