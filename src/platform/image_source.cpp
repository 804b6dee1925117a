#include "platform/image_source.h"

#include "platform/colour_profile.h"
#include "platform/exiv2_properties.h"
#include "platform/heif_picture.h"
#include "platform/number_text.h"
#include "platform/pixel_layout.h"
#include "platform/readable_image.h"

namespace pinmora {

void PropertyDictionary::set(std::string_view key, Value value) {
    values_.insert_or_assign(std::string(key), std::move(value));
}

bool PropertyDictionary::contains(std::string_view key) const {
    return values_.find(key) != values_.end();
}

std::optional<std::string> PropertyDictionary::text(std::string_view key) const {
    const auto found = values_.find(key);
    if (found == values_.end())
        return std::nullopt;
    if (const auto *text = std::get_if<std::string>(&found->second))
        return *text;
    return decimalText(std::get<double>(found->second));
}

std::optional<double> PropertyDictionary::number(std::string_view key) const {
    const auto found = values_.find(key);
    if (found == values_.end())
        return std::nullopt;
    if (const auto *number = std::get_if<double>(&found->second))
        return *number;
    return leadingDouble(std::get<std::string>(found->second));
}

std::vector<std::string> PropertyDictionary::names() const {
    std::vector<std::string> result;
    for (const auto &[name, value] : values_)
        result.push_back(name);
    return result;
}

std::vector<std::string> ImageProperties::topLevelNames() const {
    std::vector<std::string> names = top.names();
    // The orientation itself is an entry of {TIFF}, and Exif's block is what states it.
    const bool isStated = top.contains("Orientation");
    if (isStated || !tiff.isEmpty())
        names.emplace_back("{TIFF}");
    if (isStated || !exif.isEmpty())
        names.emplace_back("{Exif}");
    if (!gps.isEmpty())
        names.emplace_back("{GPS}");
    if (!iptc.isEmpty())
        names.emplace_back("{IPTC}");
    return names;
}

namespace {

std::optional<ImageProperties> statedProperties(const std::filesystem::path &file) {
    auto reading = readWithExiv2(file);
    ImageProperties properties;
    if (reading)
        properties = std::move(reading->properties);
    if (!properties.top.contains("PixelWidth")) {
        const auto size = sizeSeenByDecoders(file);
        if (!size && !reading)
            return std::nullopt;
        if (size) {
            properties.top.set("PixelWidth", static_cast<double>(size->width));
            properties.top.set("PixelHeight", static_cast<double>(size->height));
        }
    }
    return properties;
}

/// What is stated outside the metadata, or nowhere.
void complete(PropertyDictionary &top, const std::filesystem::path &file, std::string_view head) {
    if (!top.contains("DPIWidth")) {
        const Resolution resolution = jfifResolution(head).value_or(Resolution{72, 72});
        top.set("DPIWidth", resolution.horizontal);
        top.set("DPIHeight", resolution.vertical);
    }
    const auto own = pixelLayout(file, head);
    const PixelLayout layout = own.value_or(PixelLayout{});
    if (own || !top.contains("ColorModel"))
        top.set("ColorModel", std::string(layout.colourModel));
    if (own || !top.contains("Depth"))
        top.set("Depth", static_cast<double>(layout.depth));
    if (!top.contains("ProfileName"))
        top.set("ProfileName", std::string(standardProfileName));
    if (isHeif(head) && top.contains("Orientation"))
        top.set("Orientation", 1.0);
}

} // namespace

std::optional<ImageProperties> readImageProperties(const std::filesystem::path &file,
                                                   ImageRead read) {
    const auto head = headOfRegularFile(file);
    if (!head || !mayBeImage(*head))
        return std::nullopt;
    auto properties = statedProperties(file);
    if (!properties)
        return std::nullopt;
    complete(properties->top, file, *head);
    if (read == ImageRead::Light) {
        properties->gps = {};
        properties->iptc = {};
    }
    return properties;
}

MetadataLayout readMetadataLayout(const std::filesystem::path &file) {
    if (!headOfRegularFile(file))
        return {};
    const auto reading = readWithExiv2(file);
    // What Exiv2 cannot open may hold IPTC all the same: nobody may take it for UTF-8 then.
    return reading ? reading->layout : MetadataLayout{IptcEncoding::Other, false};
}

} // namespace pinmora
