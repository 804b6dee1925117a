#include "places/soap_envelope.h"

#include "platform/number_text.h"

namespace pinmora {

namespace {

std::string escaped(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (const char c : text) {
        switch (c) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        default:
            out += c;
        }
    }
    return out;
}

} // namespace

bool canBeAsked(const PositionTexts &position) {
    return plainDecimal(position[0]) && plainDecimal(position[1]);
}

std::string placeEnvelope(std::string_view nameSpace, const PositionTexts &position) {
    std::string out = R"(<?xml version="1.0" encoding="utf-8"?>)"
                      R"(<soap:Envelope xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance")"
                      R"( xmlns:xsd="http://www.w3.org/2001/XMLSchema")"
                      R"( xmlns:soap="http://schemas.xmlsoap.org/soap/envelope/"><soap:Body><)";
    out.append(placeOperation).append(" xmlns=\"").append(escaped(nameSpace));
    out.append("\"><point><Lon>").append(escaped(position[1]));
    out.append("</Lon><Lat>").append(escaped(position[0])).append("</Lat></point></");
    out.append(placeOperation).append("></soap:Body></soap:Envelope>");
    return out;
}

std::string placeAction(std::string_view nameSpace) {
    return std::string("\"").append(nameSpace).append(placeOperation).append("\"");
}

} // namespace pinmora
