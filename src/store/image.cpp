#include "store/image.h"

#include "platform/date.h"
#include "platform/number_text.h"
#include "platform/translation.h"
#include "store/calendar_formats.h"
#include "store/library_model.h"

namespace pinmora {

namespace {

std::string_view latitudeLetter(std::string_view latitude) {
    return leadingFloat(latitude) < 0 ? "S" : "N";
}

std::string_view longitudeLetter(std::string_view longitude) {
    return leadingFloat(longitude) < 0 ? "W" : "E";
}

} // namespace

void image::setLat(Text lat) {
    setLat_ref(latitudeLetter(lat.view()));
    changeAndMark("lat", lat_, std::move(lat));
    forgetPlaceDistance();
    setLocationDetails();
}

void image::setLon(Text lon) {
    setLon_ref(longitudeLetter(lon.view()));
    changeAndMark("lon", lon_, std::move(lon));
    forgetPlaceDistance();
    setLocationDetails();
}

void image::updateLatAndLon(const PositionTexts &position) {
    changeAndMark("lat", lat_, Text(position[0]));
    changeAndMark("lon", lon_, Text(position[1]));
    setLat_ref(latitudeLetter(position[0]));
    setLon_ref(longitudeLetter(position[1]));
    forgetPlaceDistance();
    setLocationDetails();
}

void image::setPosition_source(Text source) {
    change("position_source", position_source_, std::move(source));
    if (position_gap_) {
        setPosition_gap(std::nullopt);
    }
}

void image::setCity(Text name) {
    changeAndMark("city", city_, std::move(name));
    forgetPlaceDistance();
}

void image::forgetPlaceDistance() {
    if (place_distance_) {
        setPlace_distance(std::nullopt);
    }
}

void image::setDate(const Text &text) {
    LocalZone zone;
    std::optional<Date> date;
    if (text == "") {
        date = std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
    } else {
        date = dateFromText(text.view(), exifTimeFormat, zone);
    }
    changeAndMark("date", date_, date);
}

void image::setDateValue(const Value &value) {
    if (value.toDate()) {
        changeAndMark("date", date_, value.toDate());
    } else {
        setDate(value.toText());
    }
}

void image::setLocationDetails() {
    if (!lat_and_lon() || loading_ || !context()) {
        return;
    }
    const auto &library = static_cast<const LibraryModel &>(context()->model());
    library.notifications().post(locationChange, PositionTexts{lat_.string(), lon_.string()});
    if (PlaceNameLookup *lookup = library.placeNames()) {
        lookup->lookUp(*this);
    }
    setHasChangesTrue();
}

std::string image::zoomtext() const {
    return filled(translated("store", "Map zoom level %1"), {std::to_string(zoom().value_or(0))});
}

std::string image::theDateString() const {
    LocalZone zone;
    return date() ? localizedTextFromDate(*date(), shownDayAndTimeFormat, zone) : std::string();
}

std::string image::time_string() const {
    LocalZone zone;
    return date() ? localizedTextFromDate(*date(), shownTimeFormat, zone) : std::string();
}

} // namespace pinmora
