#include "photos/photo_values.h"

#include "photos/file_names.h"
#include "platform/number_text.h"
#include "store/image.h"

namespace pinmora {
namespace {

std::optional<std::string> signedText(std::string_view sign,
                                      const std::optional<std::string> &number) {
    return number ? std::optional(std::string(sign) + *number) : std::nullopt;
}

} // namespace

std::string nullTest(const std::optional<std::string> &value) {
    return value.value_or(std::string());
}

std::optional<std::string> getLatFromGPS(const PropertyDictionary &gps) {
    const std::optional<std::string> letter = gps.text("LatitudeRef");
    if (letter == "N") {
        return signedText("+", gps.text("Latitude"));
    }
    return letter == "S" ? signedText("-", gps.text("Latitude")) : std::nullopt;
}

std::optional<std::string> getLonFromGPS(const PropertyDictionary &gps) {
    const std::optional<std::string> letter = gps.text("LongitudeRef");
    if (letter == "W") {
        return signedText("-", gps.text("Longitude"));
    }
    return letter == "E" ? signedText("+", gps.text("Longitude")) : std::nullopt;
}

std::string cameraText(const ImageProperties &properties) {
    std::string camera;
    for (const std::optional<std::string> &part :
         {properties.tiff.text("Make"), properties.tiff.text("Model"),
          properties.exif.text("BodySerialNumber")}) {
        const std::string_view text = trimmed(part ? *part : std::string_view());
        if (!text.empty()) {
            camera.append(camera.empty() ? "" : ", ").append(text);
        }
    }
    return camera;
}

PhotoValues photoValues(const std::string &name, const std::string &folder,
                        const ImageProperties &properties) {
    const std::string baseName = name.substr(0, name.find('.'));
    const auto &[top, iptc, gps, tiff, exif] = properties;
    const std::string lat = nullTest(getLatFromGPS(gps));
    const std::string lon = nullTest(getLonFromGPS(gps));
    const std::string date = nullTest(exif.text("DateTimeOriginal"));
    const bool hasPosition = !lat.empty() && !lon.empty();
    return {
        {"image_name", baseName},
        {"original_name", baseName},
        {"full_file_path", folder + "/" + name},
        {"file_path", folder},
        {"lat", lat},
        {"lon", lon},
        {"city", nullTest(iptc.text("City"))},
        {"prov", nullTest(iptc.text("Province/State"))},
        {"country", nullTest(iptc.text("Country/PrimaryLocationName"))},
        {"alt", nullTest(gps.text("Altitude"))},
        {"lat_ref", nullTest(gps.text("LatitudeRef"))},
        {"lon_ref", nullTest(gps.text("LongitudeRef"))},
        {"comments", nullTest(exif.text("UserComment"))},
        {"img_description", nullTest(tiff.text("ImageDescription"))},
        {"date", date},
        {"offset_time_original", nullTest(exif.text("OffsetTimeOriginal"))},
        {"extension", pathExtension(name)},
        {"no_capture_time", date.empty()},
        {"camera", cameraText(properties)},
        {"position_source", hasPosition ? Value(PositionSource::file) : Value()},
    };
}

} // namespace pinmora
