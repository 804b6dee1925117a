#include "saving/metadata_arguments.h"

#include "platform/number_text.h"
#include "platform/text_encoding.h"

#include <cmath>
#include <string_view>

namespace pinmora {

namespace {

/// Six decimals of a degree are 11 cm, of a metre more than anybody measures.
constexpr int decimals = 6;

class Arguments {
public:
    void add(std::string_view argument) { list_.emplace_back(argument); }
    void assign(std::string_view tag, std::string_view value) {
        std::string &argument = list_.emplace_back(1, '-');
        argument.append(tag).append(1, '=').append(value);
    }
    void assignUnlessEmpty(std::string_view tag, std::string_view value) {
        if (!value.empty()) {
            assign(tag, value);
        }
    }
    std::vector<std::string> take() { return std::move(list_); }

private:
    std::vector<std::string> list_;
};

std::string magnitude(std::string_view number) {
    return fixedText(std::abs(leadingFloat(number)), decimals);
}

std::string_view withoutOuterBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\n\v\f\r";
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos
               ? std::string_view{}
               : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isSouthOrWest(const PhotoSnapshot &photo) {
    return hasPosition(photo) && (photo.latRef == "S" || photo.lonRef == "W");
}

bool losesOldPosition(const PhotoSnapshot &photo) {
    return photo.removeOldPosition && !hasPosition(photo);
}

/// Whether a place name has a character that ExifTool would destroy in Latin-1.
bool needsUtf8(const PhotoSnapshot &photo) {
    return !fitsLatin1(photo.country) || !fitsLatin1(photo.prov) || !fitsLatin1(photo.city);
}

void addPosition(Arguments &arguments, const PhotoSnapshot &photo, const MetadataLayout &layout) {
    if (losesOldPosition(photo)) {
        arguments.assign("GPS:all", "");
        if (layout.positionInXmp) {
            arguments.assign("XMP-exif:GPS*", "");
        }
    }
    if (!hasPosition(photo)) {
        return;
    }
    arguments.assign("GPSLatitude", magnitude(photo.lat));
    arguments.assignUnlessEmpty("GPSLatitudeRef", photo.latRef);
    arguments.assign("GPSLongitude", magnitude(photo.lon));
    arguments.assignUnlessEmpty("GPSLongitudeRef", photo.lonRef);
    arguments.assignUnlessEmpty("GPSMapDatum", photo.mapDatum);
    if (layout.positionInXmp && isSouthOrWest(photo)) {
        arguments.assign("XMP-exif:GPSLatitude", magnitude(photo.lat) + ' ' + photo.latRef);
        arguments.assign("XMP-exif:GPSLongitude", magnitude(photo.lon) + ' ' + photo.lonRef);
    }
}

void addPlaceNames(Arguments &arguments, const PhotoSnapshot &photo, IptcEncoding iptc) {
    if (needsUtf8(photo)) {
        if (iptc == IptcEncoding::Other) {
            arguments.add("-tagsfromfile");
            arguments.add("@");
            arguments.add("-iptc:all");
        }
        arguments.add("-CodedCharacterSet=UTF8");
    }
    const bool emptied = losesOldPosition(photo);
    const auto assign = [&](std::string_view tag, std::string_view name) {
        emptied ? arguments.assign(tag, name) : arguments.assignUnlessEmpty(tag, name);
    };
    assign("Country-PrimaryLocationName", photo.country);
    assign("Province-State", photo.prov);
    assign("City", photo.city);
}

void addAltitude(Arguments &arguments, const PhotoSnapshot &photo) {
    const std::string_view altitude = withoutOuterBlanks(photo.alt);
    if (altitude.empty()) {
        return;
    }
    const bool below = leadingFloat(altitude) < 0;
    arguments.assign("GPSAltitude", below ? magnitude(altitude) : std::string{altitude});
    arguments.assign("GPSAltitudeRef", below ? "Below Sea Level" : "Above Sea Level");
}

} // namespace

bool needsLayout(const PhotoSnapshot &photo) {
    return needsUtf8(photo) || isSouthOrWest(photo) || losesOldPosition(photo);
}

std::vector<std::string> metadataArguments(const PhotoSnapshot &photo, const MetadataLayout &layout,
                                           const std::filesystem::path &copy) {
    Arguments arguments;
    arguments.add("-overwrite_original_in_place");
    arguments.assign("ImageDescription", photo.description);
    arguments.assign("UserComment", photo.comments);
    addPosition(arguments, photo, layout);
    addPlaceNames(arguments, photo, layout.iptc);
    addAltitude(arguments, photo);
    arguments.add(copy.native());
    return arguments.take();
}

} // namespace pinmora
