#include "platform/exiv2_properties.h"

#include <algorithm>
#include <cmath>
#include <exiv2/exiv2.hpp>
#include <initializer_list>
#include <mutex>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/colour_profile.h"
#include "platform/image_text.h"
#include "platform/number_text.h"
#include "platform/text_encoding.h"

// One source for two versions: 0.27 hands out std::auto_ptr, 0.28 needs no enableBMFF() any more.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace pinmora {
namespace {

/// std::auto_ptr in Exiv2 0.27, std::unique_ptr from 0.28 on.
using IoPointer = decltype(Exiv2::ImageFactory::createIo(std::string()));

void lockXmp(void *mutex, bool lock) {
    auto *xmpMutex = static_cast<std::mutex *>(mutex);
    if (lock)
        xmpMutex->lock();
    else
        xmpMutex->unlock();
}

/// Once a process: quiet, safe for several threads, and with the HEIF and CR3 family enabled.
void prepareExiv2() {
    static std::mutex xmpMutex;
    static const bool prepared = [] {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        Exiv2::XmpParser::initialize(lockXmp, &xmpMutex);
#ifdef EXV_ENABLE_BMFF
        Exiv2::enableBMFF(true);
#endif
        return true;
    }();
    static_cast<void>(prepared);
}

/// Exiv2 also opens films and XMP sidecars.
bool isImageType(const std::string &mimeType) {
    return mimeType.starts_with("image/") || mimeType == "application/postscript";
}

/// The bytes of a text value, whichever type the writer gave it; nothing for numbers.
std::optional<std::string> textBytes(const Exiv2::Value &value) {
    if (const auto *text = dynamic_cast<const Exiv2::StringValueBase *>(&value))
        return text->value_;
    if (const auto *data = dynamic_cast<const Exiv2::DataValue *>(&value)) {
        std::string bytes(static_cast<std::size_t>(data->size()), '\0');
        data->copy(reinterpret_cast<Exiv2::byte *>(bytes.data()));
        return bytes;
    }
    return std::nullopt;
}

/// The bytes of a buffer, whose members the versions name differently; 0.27 hands out some buffers
/// by pointer.
template <class Buffer>
std::string_view bufferBytes(const Buffer &buffer) {
    if constexpr (std::is_pointer_v<Buffer>)
        return bufferBytes(*buffer);
    else if constexpr (requires { buffer.c_data(); })
        return {reinterpret_cast<const char *>(buffer.c_data()), buffer.size()};
    else
        return {reinterpret_cast<const char *>(buffer.pData_),
                static_cast<std::size_t>(buffer.size_)};
}

/// The quotients of a rational value; NaN where a denominator is zero.
std::vector<double> quotients(const Exiv2::Value &value) {
    std::vector<double> result;
    const auto add = [&result](const auto &rationals) {
        for (const auto &[numerator, denominator] : rationals)
            result.push_back(denominator == 0 ? std::nan("")
                                              : static_cast<double>(numerator) / denominator);
    };
    if (const auto *positive = dynamic_cast<const Exiv2::URationalValue *>(&value))
        add(positive->value_);
    else if (const auto *either = dynamic_cast<const Exiv2::RationalValue *>(&value))
        add(either->value_);
    return result;
}

/// Degrees, minutes and seconds as degrees; minutes or seconds that are missing or 0/0 count as
/// zero. Nothing without degrees or beyond `limit`.
std::optional<double> degreesFrom(const std::vector<double> &parts, double limit) {
    if (parts.empty() || !(parts[0] >= 0))
        return std::nullopt;
    double degrees = parts[0];
    double unit = 60;
    for (std::size_t i = 1; i < parts.size() && i < 3; ++i, unit *= 60)
        if (!std::isnan(parts[i]))
            degrees += parts[i] / unit;
    if (!(degrees >= 0 && degrees <= limit))
        return std::nullopt;
    return degrees;
}

/// Fills the dictionaries from one opened image.
class PropertyReader {
public:
    explicit PropertyReader(Exiv2::Image &image) : image_(image) {}

    Exiv2Reading read() {
        readTop();
        readTexts();
        readUserComment();
        readPosition();
        readIptc();
        readXmp();
        return std::move(reading_);
    }

private:
    using Keys = std::initializer_list<const char *>;

    /// The value of the first key that the image has, or null.
    const Exiv2::Value *find(Keys keys) const {
        for (const char *key : keys) {
            const auto datum = image_.exifData().findKey(Exiv2::ExifKey(key));
            if (datum != image_.exifData().end() && datum->count() > 0)
                return &datum->value();
        }
        return nullptr;
    }

    std::optional<double> number(Keys keys) const {
        const Exiv2::Value *value = find(keys);
        if (value == nullptr)
            return std::nullopt;
        // Some writers give a number as text; Exiv2 would answer with the first character's code.
        if (const auto *text = dynamic_cast<const Exiv2::StringValueBase *>(value))
            return text->value_.empty() || text->value_[0] < '0' || text->value_[0] > '9'
                       ? std::nullopt
                       : std::optional(leadingDouble(text->value_));
        const std::vector<double> rationals = quotients(*value);
        const double result =
            rationals.empty() ? static_cast<double>(value->toFloat(0)) : rationals[0];
        return std::isfinite(result) ? std::optional(result) : std::nullopt;
    }

    void setText(PropertyDictionary &dictionary, const char *name, Keys keys) {
        const Exiv2::Value *value = find(keys);
        if (value == nullptr)
            return;
        if (const auto bytes = textBytes(*value))
            dictionary.set(name, decodeUndeclaredText(*bytes));
    }

    void readTop() {
        PropertyDictionary &top = reading_.properties.top;
        if (image_.pixelWidth() > 0 && image_.pixelHeight() > 0) {
            top.set("PixelWidth", static_cast<double>(image_.pixelWidth()));
            top.set("PixelHeight", static_cast<double>(image_.pixelHeight()));
        }
        if (const auto value = number({"Exif.Image.Orientation", "Exif.PanasonicRaw.Orientation"}))
            top.set("Orientation", *value);
        // ResolutionUnit: 2 inch (also where it is missing), 3 centimetre, 1 a mere aspect ratio.
        const double unit = number({"Exif.Image.ResolutionUnit"}).value_or(2);
        const double perInch = unit == 2 ? 1 : unit == 3 ? 2.54 : 0;
        const double horizontal = perInch * number({"Exif.Image.XResolution"}).value_or(0);
        const double vertical = perInch * number({"Exif.Image.YResolution"}).value_or(0);
        if (horizontal > 0 && vertical > 0) {
            top.set("DPIWidth", horizontal);
            top.set("DPIHeight", vertical);
        }
        readColours();
    }

    /// As TIFF states it; the formats that have a header of their own for it seldom do.
    void readColours() {
        PropertyDictionary &top = reading_.properties.top;
        // 0 and 1 are grey, 5 is CMYK.
        if (const auto value = number({"Exif.Image.PhotometricInterpretation"}))
            top.set("ColorModel", *value == 5                  ? "CMYK"
                                  : *value == 0 || *value == 1 ? "Gray"
                                                               : "RGB");
        if (const auto value = number({"Exif.Image.BitsPerSample"}))
            top.set("Depth", *value);
        if (image_.iccProfileDefined())
            if (const std::string name = nameOfProfile(bufferBytes(image_.iccProfile()));
                !name.empty())
                top.set("ProfileName", name);
    }

    void readTexts() {
        PropertyDictionary &tiff = reading_.properties.tiff;
        setText(tiff, "ImageDescription", {"Exif.Image.ImageDescription"});
        setText(tiff, "Make", {"Exif.Image.Make", "Exif.PanasonicRaw.Make"});
        setText(tiff, "Model", {"Exif.Image.Model", "Exif.PanasonicRaw.Model"});
        PropertyDictionary &exif = reading_.properties.exif;
        // TIFF/EP files (some raw formats) have it in their first directory.
        setText(exif, "DateTimeOriginal",
                {"Exif.Photo.DateTimeOriginal", "Exif.Image.DateTimeOriginal"});
        setText(exif, "OffsetTimeOriginal", {"Exif.Photo.OffsetTimeOriginal"});
        setText(exif, "BodySerialNumber", {"Exif.Photo.BodySerialNumber"});
    }

    void readUserComment() {
        const Exiv2::Value *value = find({"Exif.Photo.UserComment"});
        if (value == nullptr)
            return;
        const auto *comment = dynamic_cast<const Exiv2::CommentValue *>(value);
        const Exiv2::ByteOrder order =
            comment != nullptr ? comment->byteOrder_ : image_.byteOrder();
        if (const auto bytes = textBytes(*value))
            reading_.properties.exif.set("UserComment",
                                         decodeUserComment(*bytes, order == Exiv2::bigEndian
                                                                       ? std::endian::big
                                                                       : std::endian::little));
    }

    void readPosition() {
        PropertyDictionary &gps = reading_.properties.gps;
        const auto setAngle = [&](const char *name, double limit) {
            const std::string key = std::string("Exif.GPSInfo.GPS") + name;
            if (const Exiv2::Value *value = find({key.c_str()}))
                if (const auto degrees = degreesFrom(quotients(*value), limit))
                    gps.set(name, *degrees);
            const Exiv2::Value *reference = find({(key + "Ref").c_str()});
            const auto letter = reference != nullptr ? textBytes(*reference) : std::nullopt;
            if (letter && !letter->empty() && letter->front() > ' ')
                gps.set(std::string(name) + "Ref", letter->substr(0, 1));
        };
        setAngle("Latitude", 90);
        setAngle("Longitude", 180);
        if (const auto altitude = number({"Exif.GPSInfo.GPSAltitude"})) {
            const bool isBelowSea = number({"Exif.GPSInfo.GPSAltitudeRef"}) == 1.0;
            gps.set("Altitude", isBelowSea ? -std::abs(*altitude) : *altitude);
        }
    }

    std::optional<std::string> iptcBytes(const char *key) const {
        const auto datum = image_.iptcData().findKey(Exiv2::IptcKey(key));
        if (datum == image_.iptcData().end())
            return std::nullopt;
        return textBytes(datum->value());
    }

    bool iptcIsUtf8() const {
        const auto &data = image_.iptcData();
        return std::all_of(data.begin(), data.end(), [](const Exiv2::Iptcdatum &datum) {
            return isUtf8(textBytes(datum.value()).value_or(""));
        });
    }

    void readXmp() {
        const auto &xmp = image_.xmpData();
        const std::string type = image_.mimeType();
        reading_.layout.positionInXmp =
            xmp.findKey(Exiv2::XmpKey("Xmp.exif.GPSLatitude")) != xmp.end() ||
            type == "image/x-canon-crw" || type == "application/postscript";
    }

    void readIptc() {
        if (image_.iptcData().empty())
            return;
        const std::string declared = iptcBytes("Iptc.Envelope.CharacterSet").value_or("");
        reading_.layout.iptc = declaresUtf8(declared) || (declared.empty() && iptcIsUtf8())
                                   ? IptcEncoding::Utf8
                                   : IptcEncoding::Other;
        static constexpr std::pair<const char *, const char *> texts[] = {
            {"City", "Iptc.Application2.City"},
            {"Province/State", "Iptc.Application2.ProvinceState"},
            {"Country/PrimaryLocationName", "Iptc.Application2.CountryName"},
        };
        for (const auto &[name, key] : texts)
            if (const auto bytes = iptcBytes(key))
                reading_.properties.iptc.set(name, decodeIptcText(*bytes, declared));
    }

    Exiv2::Image &image_;
    Exiv2Reading reading_;
};

/// Reads all metadata; false when that failed and gave nothing at all.
bool readMetadata(Exiv2::Image &image) {
    try {
        image.readMetadata();
        return true;
    } catch (...) {
        return !image.exifData().empty() || !image.iptcData().empty() || image.pixelWidth() > 0;
    }
}

/// Calls `read` with the opened image, Exiv2 being ready; whatever the library throws ends here.
template <typename Open, typename Read>
auto withImage(Open open, Read read) -> decltype(read(std::declval<Exiv2::Image &>())) {
    try {
        prepareExiv2();
        const auto image = Exiv2::ImageFactory::open(open());
        if (!image.get() || !isImageType(image->mimeType()) || !readMetadata(*image))
            return {};
        return read(*image);
    } catch (...) {
        return {};
    }
}

std::optional<Exiv2Reading> readingOf(Exiv2::Image &image) {
    return PropertyReader(image).read();
}

/// A FileIo of its own: ImageFactory would take a name like "http:x.jpg" for an address.
auto opening(const std::filesystem::path &file) {
    return [&file] { return IoPointer(new Exiv2::FileIo(file.string())); };
}

} // namespace

std::optional<Exiv2Reading> readWithExiv2(const std::filesystem::path &file) {
    return withImage(opening(file), readingOf);
}

std::optional<Exiv2Reading> readWithExiv2(std::span<const std::byte> bytes) {
    const auto *data = reinterpret_cast<const Exiv2::byte *>(bytes.data());
    const auto open = [&] {
        return IoPointer(new Exiv2::MemIo(data, static_cast<long>(bytes.size())));
    };
    return withImage(open, readingOf);
}

std::string thumbnailSeenByExiv2(const std::filesystem::path &file) {
    return withImage(opening(file), [](Exiv2::Image &image) {
        return std::string(bufferBytes(Exiv2::ExifThumbC(image.exifData()).copy()));
    });
}

} // namespace pinmora
