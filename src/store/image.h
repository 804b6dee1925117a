#pragma once

#include "persistence/record.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// Posted when a photo has got a position; the object is a PositionTexts.
inline constexpr std::string_view locationChange = "ZemLocationChange";

/// Latitude and longitude as a photo holds them: signed decimal degrees as text.
using PositionTexts = std::array<std::string, 2>;

/// How a photo came by its position: the values of `position_source`.
namespace PositionSource {
inline constexpr std::string_view log = "log";     ///< matched with a track point
inline constexpr std::string_view map = "map";     ///< placed on the map
inline constexpr std::string_view typed = "typed"; ///< coordinates entered
inline constexpr std::string_view file = "file";   ///< read from the photo
/// Reckoned from its neighbours in time: points of a log, or photos with a position.
inline constexpr std::string_view estimated = "estimated";
} // namespace PositionSource

/// One loaded photo.
///
/// Positions are texts in signed decimal degrees ("" means none), altitudes texts in metres; the
/// hemisphere letters follow the sign of the coordinate whenever one is set.
class image : public Record {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }

    /// Base name (without extension) under which the photo will be saved.
    const Text &image_name() const { return read("image_name", image_name_); }
    void setImage_name(Text name) { changeAndMark("image_name", image_name_, std::move(name)); }
    /// Base name the photo was loaded under.
    const Text &original_name() const { return read("original_name", original_name_); }
    void setOriginal_name(Text name) {
        changeAndMark("original_name", original_name_, std::move(name));
    }
    /// The folder the photo was loaded from.
    const Text &file_path() const { return read("file_path", file_path_); }
    void setFilePath(Text path) { changeAndMark("file_path", file_path_, std::move(path)); }
    const Text &full_file_path() const { return read("full_file_path", full_file_path_); }
    void setFull_file_path(Text path) {
        change("full_file_path", full_file_path_, std::move(path));
    }
    /// Without the dot.
    const Text &extension() const { return read("extension", extension_); }
    void setExtension(Text text) { changeAndMark("extension", extension_, std::move(text)); }
    /// Bytes of the file as it was loaded, where known.
    const std::optional<double> &file_size() const { return read("file_size", file_size_); }
    void setFile_size(std::optional<double> bytes) { change("file_size", file_size_, bytes); }

    /// The capture time, or the moment of loading for a photo that has none.
    const std::optional<Date> &date() const { return read("date", date_); }
    /// Reads "YYYY:MM:DD HH:MM:SS" as clock time of the computer's zone; "" stands for now, text
    /// that does not fit leaves no date.
    void setDate(const Text &text);
    /// Whether `date` is only the moment of loading.
    const std::optional<bool> &no_capture_time() const {
        return read("no_capture_time", no_capture_time_);
    }
    void setNo_capture_time(std::optional<bool> none) {
        change("no_capture_time", no_capture_time_, none);
    }
    /// `date` where it is what the photo tells; nothing where it is only the moment of loading.
    std::optional<Date> captureTime() const {
        return no_capture_time().value_or(false) ? std::nullopt : date();
    }

    /// The time zone that the photo itself tells for its capture time, "+02:00" (Exif
    /// OffsetTimeOriginal).
    const Text &offset_time_original() const {
        return read("offset_time_original", offset_time_original_);
    }
    void setOffset_time_original(Text zone) {
        change("offset_time_original", offset_time_original_, std::move(zone));
    }

    const Text &lat() const { return read("lat", lat_); }
    void setLat(Text lat);
    const Text &lon() const { return read("lon", lon_); }
    void setLon(Text lon);
    /// Sets both at once, so that only one place-name lookup starts.
    void updateLatAndLon(const PositionTexts &position);
    /// "N" or "S"
    const Text &lat_ref() const { return read("lat_ref", lat_ref_); }
    void setLat_ref(Text letter) { changeAndMark("lat_ref", lat_ref_, std::move(letter)); }
    /// "E" or "W"
    const Text &lon_ref() const { return read("lon_ref", lon_ref_); }
    void setLon_ref(Text letter) { changeAndMark("lon_ref", lon_ref_, std::move(letter)); }
    const Text &alt() const { return read("alt", alt_); }
    void setAlt(Text alt) { changeAndMark("alt", alt_, std::move(alt)); }
    const Text &map_datum() const { return read("map_datum", map_datum_); }
    void setMap_datum(Text datum) { changeAndMark("map_datum", map_datum_, std::move(datum)); }
    /// One of PositionSource, or no value.
    const Text &position_source() const { return read("position_source", position_source_); }
    /// The gap to the point that it was placed at before does not outlive it.
    void setPosition_source(Text source);

    /// Seconds from the photo to the track point that it was placed at, as the clock stood then;
    /// negative: the point was earlier. Nothing for other positions.
    const std::optional<double> &position_gap() const {
        return read("position_gap", position_gap_);
    }
    void setPosition_gap(std::optional<double> seconds) {
        change("position_gap", position_gap_, seconds);
    }

    const Text &city() const { return read("city", city_); }
    void setCity(Text name);
    /// Province or state.
    const Text &prov() const { return read("prov", prov_); }
    void setProv(Text name) { changeAndMark("prov", prov_, std::move(name)); }
    const Text &country() const { return read("country", country_); }
    void setCountry(Text name) { changeAndMark("country", country_, std::move(name)); }
    /// Metres from the position to the place that the names are of, where they were looked up. Does
    /// not outlive the city's name or the position.
    const std::optional<double> &place_distance() const {
        return read("place_distance", place_distance_);
    }
    void setPlace_distance(std::optional<double> metres) {
        change("place_distance", place_distance_, metres);
    }
    const Text &comments() const { return read("comments", comments_); }
    void setComments(Text text) { changeAndMark("comments", comments_, std::move(text)); }
    const Text &img_description() const { return read("img_description", img_description_); }
    void setImg_description(Text text) {
        changeAndMark("img_description", img_description_, std::move(text));
    }
    /// Make, model and serial number of the camera, as far as known, joined by ", ".
    const Text &camera() const { return read("camera", camera_); }
    void setCamera(Text camera) { change("camera", camera_, std::move(camera)); }

    /// Map zoom level.
    const std::optional<std::int32_t> &zoom() const { return read("zoom", zoom_); }
    void setZoom(std::optional<std::int32_t> level) { change("zoom", zoom_, level); }
    /// 1 once a zoom level has been chosen for the photo on the map.
    const std::optional<std::int32_t> &zoom_reset() const {
        return read("zoom_reset", zoom_reset_);
    }
    void setZoom_reset(std::optional<std::int32_t> reset) {
        change("zoom_reset", zoom_reset_, reset);
    }
    /// Whether the file still exists at `full_file_path`.
    const std::optional<bool> &valid_file() const { return read("valid_file", valid_file_); }
    void setValid_file(std::optional<bool> valid) { change("valid_file", valid_file_, valid); }
    const std::optional<bool> &dirty() const { return read("dirty", dirty_); }
    void setDirty(std::optional<bool> dirty) { changeAndMark("dirty", dirty_, dirty); }

    /// Whether the photo has a position.
    bool lat_and_lon() const { return !lat().view().empty() && !lon().view().empty(); }
    bool zoom_active() const { return lat_and_lon(); }
    bool has_maker() const { return !lat_and_lon(); }
    /// "Map zoom level 12"
    std::string zoomtext() const;
    /// The date with its weekday, names in the person's language; "" without one.
    std::string theDateString() const;
    /// The date as "12 May 2008 14:05:09"; "" without one.
    std::string time_string() const;

    /// Whether a person's work on the photo has not been saved; lives in memory only.
    bool getHasChanges() const { return hasChanges_; }
    void setHasChangesTrue() { hasChanges_ = true; }
    void setHasChangesFalse() { hasChanges_ = false; }

    std::uint8_t changeMark() const override { return hasChanges_ ? 1 : 0; }
    void setChangeMark(std::uint8_t mark) override { hasChanges_ = mark != 0; }

    /// While a new record is being filled, setting its position tells nobody.
    bool loading() const { return loading_; }
    void setLoading(bool loading) { loading_ = loading; }

private:
    /// setDate() for a text, and an instant as it is.
    void setDateValue(const Value &value);
    template <class Field, class NewValue>
    void changeAndMark(std::string_view key, Field &field, NewValue &&value) {
        change(key, field, std::forward<NewValue>(value));
        hasChanges_ = true;
    }
    void setLocationDetails();
    void forgetPlaceDistance();

    Text image_name_;
    Text original_name_;
    Text file_path_;
    Text full_file_path_;
    Text extension_;
    std::optional<double> file_size_;
    std::optional<Date> date_;
    Text offset_time_original_;
    Text lat_;
    Text lon_;
    Text lat_ref_;
    Text lon_ref_;
    Text alt_;
    Text map_datum_ = "WGS-84";
    Text position_source_;
    std::optional<double> position_gap_;
    Text city_;
    Text prov_;
    Text country_;
    std::optional<double> place_distance_;
    Text comments_;
    Text img_description_;
    Text camera_;
    std::optional<std::int32_t> zoom_;
    std::optional<std::int32_t> zoom_reset_;
    std::optional<bool> no_capture_time_;
    std::optional<bool> valid_file_;
    std::optional<bool> dirty_;
    bool hasChanges_ = false;
    bool loading_ = false;
};

} // namespace pinmora
