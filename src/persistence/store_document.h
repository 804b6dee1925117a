#pragma once

#include "persistence/context.h"
#include "persistence/record_reader.h"
#include "platform/xml_parser.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace pinmora {

/// Reads a store document (see XmlStore) into a context, block by block.
///
/// Trusts nothing that it reads. The first error ends it; the records read until then are the
/// caller's to clear.
class StoreDocument : private XmlEvents {
public:
    static constexpr std::string_view rootName = "pinmora-library";
    static constexpr std::uint32_t version = 1;

    /// The context must be new, and must outlive this.
    explicit StoreDocument(Context &context);

    /// Takes the next bytes, with `isLast` the last ones; false on an error, and from then on.
    bool parse(std::string_view bytes, bool isLast);

    const std::string &state() const { return state_; }
    /// How many elements have come.
    std::size_t elements() const { return elements_; }
    /// Where the error is, from 1, and what it is, in a sentence without its full stop.
    std::size_t line() const { return line_; }
    const std::string &error() const { return error_; }

private:
    struct WaitingLink {
        OpenLink link;
        std::size_t line;
    };

    void didStartElement(std::string_view name, const char *const *attributes) override;
    void foundCharacters(std::string_view text) override;
    void didEndElement(std::string_view name) override;

    void readRoot(std::string_view name, const char *const *attributes);
    void readRecord(std::string_view name, const char *const *attributes);
    void finish();
    Record *find(std::uint32_t serial);
    void fail(std::string error, std::size_t line);

    Context &context_;
    XmlParser parser_;
    RecordReader reader_;
    const RecordReader::Find find_;
    std::vector<const EntityDescription *> targetEntities_; ///< where links can lead
    std::unordered_map<std::uint32_t, Record *> targets_;   ///< their records by serial
    Record *lastFound_ = nullptr;
    std::vector<OpenLink> open_; ///< of the record being read
    std::vector<WaitingLink> waiting_;
    std::string state_;
    std::uint32_t next_ = 0;     ///< above all serials
    std::uint32_t expected_ = 0; ///< how many records there should be
    std::uint32_t records_ = 0;
    std::uint32_t lastSerial_ = 0;
    std::size_t elements_ = 0;
    int depth_ = 0;
    std::size_t line_ = 0;
    std::string error_;
};

} // namespace pinmora
