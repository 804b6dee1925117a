#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace pinmora {

/// One dictionary of image properties: names to texts (UTF-8, cut at the first NUL) or numbers.
class PropertyDictionary {
public:
    using Value = std::variant<std::string, double>;

    void set(std::string_view key, Value value);
    bool contains(std::string_view key) const;

    /// The value as text: a text as it stands, a number as plain decimal text with at most 8
    /// decimals; nothing where there is no such key.
    std::optional<std::string> text(std::string_view key) const;

    /// The value as a number; a text reads as the number it begins with.
    std::optional<double> number(std::string_view key) const;

    bool isEmpty() const { return values_.empty(); }
    std::vector<std::string> names() const;

private:
    std::map<std::string, Value, std::less<>> values_;
};

/// What the header of an image file says, sorted into the customary dictionaries.
///
/// - `top`: "ColorModel", "Depth" (bits of a component), "ProfileName", "PixelWidth",
///   "PixelHeight", "DPIWidth", "DPIHeight" (72 where the file gives no resolution), "Orientation"
/// - `iptc` ("{IPTC}"): "City", "Province/State", "Country/PrimaryLocationName"
/// - `gps` ("{GPS}"): "LatitudeRef", "Latitude", "LongitudeRef", "Longitude" (unsigned degrees),
///   "Altitude" (metres, negative below sea level)
/// - `tiff` ("{TIFF}"): "ImageDescription", "Make", "Model"
/// - `exif` ("{Exif}"): "DateTimeOriginal", "OffsetTimeOriginal", "UserComment", "BodySerialNumber"
struct ImageProperties {
    PropertyDictionary top;
    PropertyDictionary iptc;
    PropertyDictionary gps;
    PropertyDictionary tiff;
    PropertyDictionary exif;

    /// The entries of the whole: those of `top`, and the dictionaries that have any.
    std::vector<std::string> topLevelNames() const;
};

/// How much of the properties is read.
enum class ImageRead {
    /// What is needed to show the picture. Of one that states how it lies, these are ten entries at
    /// the top, {TIFF} and {Exif} among them; {GPS} and {IPTC} are left out.
    Light,
    Full,
};

/// Reads the properties of the first image in a file; no pixels are decoded, and the file is only
/// opened for reading. Nothing when no reader at hand (Exiv2, Qt, libheif, LibRaw) knows it as an
/// image.
std::optional<ImageProperties> readImageProperties(const std::filesystem::path &file,
                                                   ImageRead read = ImageRead::Full);

/// How the IPTC texts in a photo are encoded.
enum class IptcEncoding {
    Absent, ///< the photo has no IPTC block
    Utf8,   ///< declared as UTF-8 (coded character set ESC % G), or undeclared and valid as such
    Other,  ///< any other
};

/// What of a photo's metadata decides how new metadata must be written into it.
struct MetadataLayout {
    IptcEncoding iptc = IptcEncoding::Absent;
    /// A position also stands in the photo's XMP block, or its format has no other place for one.
    /// XMP knows no hemisphere beside an unsigned number.
    bool positionInXmp = false;
};

MetadataLayout readMetadataLayout(const std::filesystem::path &file);

} // namespace pinmora
