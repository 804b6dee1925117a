#include "services/place_routes.h"

#include "platform/number_text.h"
#include "services/escaped_text.h"
#include "services/names_in_box.h"
#include "services/places.h"
#include "services/soap.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace pinmora {
namespace {

constexpr const char *json = "application/json";
constexpr int badRequest = 400;
constexpr int serverError = 500;

/// A number of the query; nothing for one that is far from all angles and counts.
std::optional<double> number(const httplib::Request &request, const char *key) {
    constexpr double far = 1e6;
    const auto value = plainDecimal(request.get_param_value(key));
    return value && std::abs(*value) <= far ? value : std::nullopt;
}

/// How many answers are asked for, 1 to `most`; without a word, `usual`.
std::size_t limit(const httplib::Request &request, double usual, double most) {
    return static_cast<std::size_t>(
        std::clamp(number(request, "limit").value_or(usual), 1.0, most));
}

std::string positionFields(Position position) {
    return "\"lat\":" + decimalText(position.lat) + ",\"lon\":" + decimalText(position.lon);
}

template <typename Describe>
std::string jsonArray(const std::vector<std::size_t> &places, Describe describe) {
    std::string array = "[";
    for (const std::size_t place : places) {
        array += array.size() > 1 ? ",{" : "{";
        array += describe(place);
        array += '}';
    }
    return array += ']';
}

} // namespace

void answerSearch(const httplib::Request &request, httplib::Response &response) {
    const Gazetteer &gazetteer = Places::bundled().gazetteer();
    const auto lat = number(request, "lat");
    const auto lon = number(request, "lon");
    const auto near = lat && lon ? std::optional(Position{*lat, *lon}) : std::nullopt;
    const auto found = BundledNames::get().search().find(request.get_param_value("q"), near,
                                                         limit(request, 10, 20));
    const auto describe = [&](std::size_t place) {
        return "\"name\":" + jsonString(gazetteer.name(place)) +
               ",\"region\":" + jsonString(gazetteer.region(place)) +
               ",\"country\":" + jsonString(gazetteer.country(place)) + "," +
               positionFields(gazetteer.position(place));
    };
    response.set_content(jsonArray(found, describe), json);
}

void answerNames(const httplib::Request &request, httplib::Response &response) {
    const auto south = number(request, "south");
    const auto west = number(request, "west");
    const auto north = number(request, "north");
    const auto east = number(request, "east");
    if (!south || !west || !north || !east) {
        response.status = badRequest;
        return;
    }
    const Gazetteer &gazetteer = Places::bundled().gazetteer();
    const auto found = placesInBox(gazetteer, BundledNames::get().prominence(),
                                   {*south, *west, *north, *east}, limit(request, 100, 200));
    const auto describe = [&](std::size_t place) {
        return "\"name\":" + jsonString(gazetteer.name(place)) + "," +
               positionFields(gazetteer.position(place));
    };
    response.set_content(jsonArray(found, describe), json);
}

void answerNearestPlace(const httplib::Request &request, httplib::Response &response,
                        const char *operationNamespace) {
    constexpr const char *xml = "text/xml; charset=utf-8";
    const auto asked = placeRequest(request.body);
    if (const auto *fault = std::get_if<SoapFault>(&asked)) {
        response.status = serverError;
        response.set_content(faultResponse(*fault), xml);
        return;
    }
    const auto [place, metres] = Places::bundled().nearest(std::get<Position>(asked));
    const Gazetteer &gazetteer = Places::bundled().gazetteer();
    std::string name(gazetteer.name(place));
    name.append(", ").append(gazetteer.region(place));
    name.append(", ").append(gazetteer.country(place));
    response.set_header("Pinmora-Place-Distance", decimalText(metres, 0));
    response.set_content(placeResponse(name, operationNamespace), xml);
}

} // namespace pinmora
