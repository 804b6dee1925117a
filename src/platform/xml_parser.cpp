#include "platform/xml_parser.h"

#include "platform/single_byte_encoding.h"

#include <algorithm>
#include <expat.h>
#include <new>

namespace pinmora {

/// Expat's callbacks; `self` is the XmlParser.
struct XmlParser::Handlers {
    static XmlParser &parser(void *self) { return *static_cast<XmlParser *>(self); }

    static void start(void *self, const XML_Char *name, const XML_Char **attributes) {
        parser(self).events_.didStartElement(name, attributes);
    }

    static void end(void *self, const XML_Char *name) { parser(self).events_.didEndElement(name); }

    static void text(void *self, const XML_Char *text, int length) {
        parser(self).events_.foundCharacters({text, static_cast<std::size_t>(length)});
    }

    static void doctype(void *self, const XML_Char *, const XML_Char *systemId, const XML_Char *,
                        int) {
        if (systemId) {
            parser(self).externalSubset_ = systemId;
        }
    }

    /// A reference that nothing at hand explains, as the DTD that would is not read. Going on would
    /// drop it from the text in silence.
    static void skippedEntity(void *self, const XML_Char *, int) { parser(self).stop(); }

    static int encoding(void *, const XML_Char *name, XML_Encoding *encoding) {
        return mapSingleByteEncoding(name, encoding->map) ? XML_STATUS_OK : XML_STATUS_ERROR;
    }

    /// `context` is null for what belongs to the DTD.
    static int externalEntity(XML_Parser expat, const XML_Char *context, const XML_Char *,
                              const XML_Char *systemId, const XML_Char *) {
        const XmlParser &self = parser(XML_GetUserData(expat));
        const std::string_view name = systemId ? systemId : "";
        if (!context && name == self.externalSubset_) {
            return XML_STATUS_OK;
        }
        const std::optional<std::string> entity =
            self.readEntity_ ? self.readEntity_(name) : std::nullopt;
        if (!entity) {
            return XML_STATUS_ERROR;
        }
        const std::unique_ptr<XML_ParserStruct, Freer> inner(
            XML_ExternalEntityParserCreate(expat, context, nullptr));
        return inner ? XML_Parse(inner.get(), entity->data(), static_cast<int>(entity->size()), 1)
                     : XML_STATUS_ERROR;
    }
};

void XmlParser::Freer::operator()(XML_ParserStruct *parser) const {
    XML_ParserFree(parser);
}

XmlParser::XmlParser(XmlEvents &events, EntityReader readEntity)
    : events_(events), readEntity_(std::move(readEntity)), parser_(XML_ParserCreate(nullptr)) {
    if (!parser_) {
        throw std::bad_alloc();
    }
    XML_Parser expat = parser_.get();
    XML_SetUserData(expat, this);
    XML_SetElementHandler(expat, Handlers::start, Handlers::end);
    XML_SetCharacterDataHandler(expat, Handlers::text);
    XML_SetStartDoctypeDeclHandler(expat, Handlers::doctype);
    XML_SetSkippedEntityHandler(expat, Handlers::skippedEntity);
    XML_SetUnknownEncodingHandler(expat, Handlers::encoding, nullptr);
    XML_SetExternalEntityRefHandler(expat, Handlers::externalEntity);
    // Without this, references to external parameter entities would be passed over in silence.
    XML_SetParamEntityParsing(expat, XML_PARAM_ENTITY_PARSING_ALWAYS);
}

void XmlParser::setEncoding(const char *name) {
    XML_SetEncoding(parser_.get(), name);
}

bool XmlParser::parse(std::string_view bytes, bool isLast) {
    constexpr std::size_t most = std::size_t{1} << 30U; // Expat takes the length as an int
    for (; bytes.size() > most; bytes.remove_prefix(most)) {
        if (XML_Parse(parser_.get(), bytes.data(), static_cast<int>(most), 0) != XML_STATUS_OK) {
            return false;
        }
    }
    return XML_Parse(parser_.get(), bytes.data(), static_cast<int>(bytes.size()), isLast ? 1 : 0) ==
           XML_STATUS_OK;
}

void XmlParser::stop() {
    XML_StopParser(parser_.get(), XML_FALSE);
}

std::string XmlParser::fault() const {
    return XML_ErrorString(XML_GetErrorCode(parser_.get()));
}

std::size_t XmlParser::line() const {
    return skippedLines_ + static_cast<std::size_t>(XML_GetCurrentLineNumber(parser_.get()));
}

} // namespace pinmora
