#include "platform/image_source.h"

#include "platform/exiv2_properties.h"
#include "platform/number_text.h"
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

std::optional<ImageProperties> readImageProperties(const std::filesystem::path &file) {
    const auto head = headOfRegularFile(file);
    if (!head || !mayBeImage(*head))
        return std::nullopt;

    ImageProperties properties;
    if (auto reading = readWithExiv2(file)) {
        properties = std::move(reading->properties);
    } else if (const auto size = sizeSeenByDecoders(file)) {
        properties.top.set("PixelWidth", static_cast<double>(size->width));
        properties.top.set("PixelHeight", static_cast<double>(size->height));
    } else {
        return std::nullopt;
    }
    if (!properties.top.contains("DPIWidth")) {
        if (const auto resolution = jfifResolution(*head)) {
            properties.top.set("DPIWidth", resolution->horizontal);
            properties.top.set("DPIHeight", resolution->vertical);
        }
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
