#include "services/soap.h"

#include "platform/number_text.h"
#include "platform/xml_parser.h"
#include "services/escaped_text.h"

#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace pinmora {
namespace {

constexpr const char *envelopeBegin =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>"
    "<soap:Envelope xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
    " xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\""
    " xmlns:soap=\"http://schemas.xmlsoap.org/soap/envelope/\"><soap:Body>";
constexpr const char *envelopeEnd = "</soap:Body></soap:Envelope>";

/// Where the two numbers stand, without prefixes.
constexpr const char *lonPath = "/Envelope/Body/ConvertLonLatPtToNearestPlace/point/Lon";
constexpr const char *latPath = "/Envelope/Body/ConvertLonLatPtToNearestPlace/point/Lat";

/// No decimal number that means a position is longer, nor is any path on the way to it.
constexpr std::size_t longestNumber = 64;
constexpr std::size_t longestPath = 256;

/// Collects the two numbers, and ends the parsing at what no request has.
class RequestReader : public XmlEvents {
public:
    bool read(std::string_view envelope) {
        XmlParser parser(*this);
        parser_ = &parser;
        const bool wellFormed = parser.parse(envelope, true);
        parser_ = nullptr;
        return wellFormed;
    }

    const std::optional<std::string> &lon() const { return lon_; }
    const std::optional<std::string> &lat() const { return lat_; }

    void didStartElement(std::string_view name, const char *const *) override {
        path_ += '/';
        path_ += name.substr(name.find(':') + 1);
        if (path_.size() > longestPath) {
            parser_->stop();
        } else if (path_ == lonPath && !lon_) {
            number_ = &lon_.emplace();
        } else if (path_ == latPath && !lat_) {
            number_ = &lat_.emplace();
        } else {
            number_ = nullptr;
        }
    }

    void foundCharacters(std::string_view text) override {
        if (number_ && number_->size() + text.size() > longestNumber) {
            parser_->stop();
        } else if (number_) {
            number_->append(text);
        }
    }

    void didEndElement(std::string_view) override {
        number_ = nullptr;
        path_.resize(path_.rfind('/'));
    }

private:
    XmlParser *parser_ = nullptr;
    std::string path_;
    std::optional<std::string> lon_;
    std::optional<std::string> lat_;
    std::string *number_ = nullptr; ///< what the characters belong to
};

} // namespace

std::variant<Position, SoapFault> placeRequest(std::string_view envelope) {
    RequestReader reader;
    if (!reader.read(envelope)) {
        return SoapFault{"The envelope is not well-formed XML, or has parts that no request has."};
    }
    if (!reader.lon() || !reader.lat()) {
        return SoapFault{
            "The body has no ConvertLonLatPtToNearestPlace with a point of Lon and Lat."};
    }
    const auto lon = plainDecimal(*reader.lon());
    const auto lat = plainDecimal(*reader.lat());
    if (!lon || !lat) {
        return SoapFault{"Lon and Lat must be decimal numbers."};
    }
    if (std::abs(*lat) > 90 || std::abs(*lon) > 180) {
        return SoapFault{"Lat must lie between -90 and 90, Lon between -180 and 180."};
    }
    return Position{*lat, *lon};
}

std::string placeResponse(std::string_view place, std::string_view operationNamespace) {
    std::string envelope = envelopeBegin;
    envelope += "<ConvertLonLatPtToNearestPlaceResponse xmlns=\"";
    envelope += escapedForXml(operationNamespace);
    envelope += "\"><ConvertLonLatPtToNearestPlaceResult>";
    envelope += escapedForXml(place);
    envelope += "</ConvertLonLatPtToNearestPlaceResult></ConvertLonLatPtToNearestPlaceResponse>";
    return envelope + envelopeEnd;
}

std::string faultResponse(const SoapFault &fault) {
    std::string envelope = envelopeBegin;
    envelope += "<soap:Fault><faultcode>soap:Client</faultcode><faultstring>";
    envelope += escapedForXml(fault.reason);
    envelope += "</faultstring></soap:Fault>";
    return envelope + envelopeEnd;
}

} // namespace pinmora
