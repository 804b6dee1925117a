#include "map/feed_messages.h"

#include "map/json_text.h"
#include "map/placement.h"

#include <optional>

namespace pinmora::feed_messages {
namespace {

struct Place {
    double lat = 0;
    double lon = 0;
};

std::optional<Place> placeOf(const image &photo) {
    const std::optional<double> lat = degreesWithin(photo.lat().view(), 90);
    const std::optional<double> lon = lat ? degreesWithin(photo.lon().view(), 180) : std::nullopt;
    return lon ? std::optional(Place{*lat, *lon}) : std::nullopt;
}

/// Appends what `append` writes for each, separated by commas.
template <class Objects, class Append>
void appendList(std::string &json, const Objects &objects, Append append) {
    json += '[';
    const std::size_t empty = json.size();
    for (const auto &object : objects) {
        const std::size_t before = json.size();
        if (before > empty) {
            json += ',';
        }
        if (!append(object)) {
            json.resize(before);
        }
    }
    json += ']';
}

bool appendSerial(std::string &json, std::uint32_t serial) {
    json += std::to_string(serial);
    return true;
}

bool appendPhoto(std::string &json, const image &photo) {
    const std::optional<Place> place = placeOf(photo);
    if (place) {
        json.append(R"({"id":)").append(std::to_string(photo.serial())).append(R"(,"name":)");
        appendJson(json, photo.image_name().view());
        json += R"(,"lat":)";
        appendJson(json, place->lat);
        json += R"(,"lon":)";
        appendJson(json, place->lon);
        json += '}';
    }
    return place.has_value();
}

} // namespace

std::string allPhotos(const Context &context) {
    std::string json = R"({"kind":"photos","all":true,"photos":)";
    appendList(json, context.records<image>(),
               [&json](const image *photo) { return appendPhoto(json, *photo); });
    return json + R"(,"gone":[]})";
}

std::string changedPhotos(const std::vector<const image *> &changed,
                          std::vector<std::uint32_t> gone) {
    std::string json = R"({"kind":"photos","all":false,"photos":)";
    appendList(json, changed, [&](const image *photo) {
        const bool placed = appendPhoto(json, *photo);
        if (!placed) {
            gone.push_back(photo->serial());
        }
        return placed;
    });
    json += R"(,"gone":)";
    appendList(json, gone, [&json](std::uint32_t serial) { return appendSerial(json, serial); });
    return json + "}";
}

std::string selection(const std::vector<image *> &selected, bool clickPlaces) {
    std::string json = R"({"kind":"selection","ids":)";
    appendList(json, selected, [&json](const image *photo) {
        return placeOf(*photo) && appendSerial(json, photo->serial());
    });
    json.append(R"(,"count":)").append(std::to_string(selected.size()));
    json.append(R"(,"clickPlaces":)").append(clickPlaces ? "true" : "false");
    return json + "}";
}

} // namespace pinmora::feed_messages
