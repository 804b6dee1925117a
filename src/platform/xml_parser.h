#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct XML_ParserStruct;

namespace pinmora {

/// What a document consists of, in its order. Names are as written in the file, prefix included.
class XmlEvents {
public:
    virtual ~XmlEvents() = default;
    /// `attributes` are name, value, name, value, ..., null.
    virtual void didStartElement(std::string_view name, const char *const *attributes) = 0;
    /// A run of text (UTF-8); the text of one element may come in several.
    virtual void foundCharacters(std::string_view text) = 0;
    virtual void didEndElement(std::string_view name) = 0;
};

/// Gives the bytes of an external entity by its system identifier; nothing where there is none, or
/// where it may not be had.
using EntityReader = std::function<std::optional<std::string>(std::string_view systemId)>;

/// A streaming XML parser: Expat, with the single-byte encodings that it does not know itself.
///
/// External entities come from an EntityReader and from nowhere else; a document that asks for one
/// that it does not give is malformed. An external DTD is not read; a document that
/// uses what only the DTD explains is malformed, one that merely names it is not. Expat's limits
/// against the expansion of entities into entities are in force.
class XmlParser {
public:
    /// Without a reader a document has no external entities. `events` must outlive the parser.
    explicit XmlParser(XmlEvents &events, EntityReader readEntity = {});

    /// Tells the encoding, whatever the document says of itself; before the first bytes.
    void setEncoding(const char *name);

    /// Takes the next bytes, with `isLast` the last ones; false when the document is malformed, and
    /// from then on.
    bool parse(std::string_view bytes, bool isLast);

    /// Within an event: ends the parsing, and has parse() say false. Events that have begun may
    /// still come to their end.
    void stop();

    /// What parse() found malformed, in a few words; "parsing aborted" after stop().
    std::string fault() const;

    /// The line that is being parsed, from 1. Costs a walk over what has come since the last call.
    std::size_t line() const;
    /// Counts lines that stood before the first byte given to parse().
    void skipLines(std::size_t count) { skippedLines_ = count; }

private:
    struct Handlers;
    struct Freer {
        void operator()(XML_ParserStruct *parser) const;
    };

    XmlEvents &events_;
    EntityReader readEntity_;
    std::unique_ptr<XML_ParserStruct, Freer> parser_;
    std::optional<std::string> externalSubset_; ///< system identifier of the external DTD, if any
    std::size_t skippedLines_ = 0;
};

} // namespace pinmora
