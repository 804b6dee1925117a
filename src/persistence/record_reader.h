#pragma once

#include "persistence/entity_description.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

/// A link that could not be made yet: the other record may come later.
struct OpenLink {
    Record *record;
    const Property *property;
    std::uint32_t target; ///< the other record's serial
};

/// Makes a link, raw. False, and nothing happens, when `target` is null or of an entity that the
/// relationship does not lead to.
bool makeLink(Record &record, const Property &relationship, Record *target);

/// Reads the elements that RecordWriter writes, in their order and from the first one on. Takes
/// nothing on trust: whatever a writer could not have written is an error.
class RecordReader {
public:
    /// What an element holds: a record with all its values, or only some of its values.
    enum class Extent { Whole, Changes };
    /// Gives the record of a serial, null when there is none.
    using Find = std::function<Record *(std::uint32_t serial)>;

    /// The model must outlive the reader.
    explicit RecordReader(const Model &model);

    /// Takes an element apart; `attributes` are name, value, name, value, ..., null. False on an
    /// error.
    bool read(std::string_view element, const char *const *attributes, Extent extent);

    // What the last element was.
    const EntityDescription &entity() const { return *table_->entity; }
    std::uint32_t serial() const { return serial_; }
    /// What was wrong with it, in a sentence.
    const std::string &error() const { return error_; }

    /// One key's value; for a link, the other record's serial, 0 for no record.
    struct KeyValue {
        const Property *property;
        Value value;
        std::uint32_t target = 0;
    };
    /// The keys that the element sets, also those it sets to no value.
    std::span<KeyValue> values() { return values_; }

    /// Writes the values into a record, raw. It must be of that entity; a Whole one must be new.
    /// Links to what `find` does not give, or gives of a wrong entity, are added to `open`.
    void applyTo(Record &record, const Find &find, std::vector<OpenLink> &open);

private:
    struct Column {
        const Property *property;
        std::string base64Key;    ///< "" for what is no text
        bool isImplied;           ///< left out of a whole record, it is not what a new record has
        std::uint32_t lastTarget; ///< links: the one of the record before
        std::uint64_t readIn;     ///< the number of the element that last had it
    };
    struct Table {
        const EntityDescription *entity;
        std::vector<Column> columns;
    };

    Table *tableOf(std::string_view element);
    bool readAttribute(std::string_view name, std::string_view text);
    bool readValue(Column &column, std::string_view text, bool isBase64);
    bool readLink(Column &column, std::string_view text);
    bool readNone(std::string_view names);
    void addTarget(Column &column, std::uint32_t target);
    void addImplied();
    bool claim(Column &column);
    std::string nameOf(const Property &property) const;
    bool failUnknown(std::string_view key);
    bool fail(std::string error);

    std::vector<Table> tables_;
    Table *table_ = nullptr;
    Extent extent_ = Extent::Whole;
    std::size_t next_ = 0; ///< the column that the next attribute is expected for
    std::uint64_t elements_ = 0;
    std::uint32_t serial_ = 0;
    std::uint32_t lastSerial_ = 0;
    std::vector<KeyValue> values_;
    std::string error_;
};

} // namespace pinmora
