#pragma once

#include "persistence/entity_description.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace pinmora {

/// Writes records as XML elements, one a line, for files that RecordReader reads back.
///
/// An element has the entity's name and an attribute for each key that holds a value:
///
///     <track id="7" track_id="1" log_path="/home/a/walk.gpx"/>
///     <track_part track="7" time="1212278400" lat="47.38" lon="8.54" alt="" point_id="1"/>
///     <track_part time="1212278401.25" lat="47.381" lon="8.54" none="track"/>
///
/// `id` is the record's serial, left out where it is the one before plus 1. A link to another
/// record is that one's serial, left out where the record before of the same entity has the same;
/// one to no record is named in `none`. Times are seconds since 1970 UTC, numbers the shortest text
/// that reads back equal, flags 1 and 0. A text that XML cannot hold (control characters, file
/// names that are not UTF-8) stands in base64 under `KEY.base64`, and so do bytes. A key without a
/// value is left out, which is not "".
///
/// What is left out depends on what this writer wrote before, so a text is to be read by one reader
/// from the start.
class RecordWriter {
public:
    /// Appends to `out`, which must outlive the writer and may be emptied between two records.
    explicit RecordWriter(std::string &out) : out_(out) {}

    /// A record with all its values.
    void write(const Record &record);
    /// Only some values of a record: those of the keys given, which are attributes and links. A key
    /// among them that has no value is named in `none`; nothing is left out.
    void writeChanges(const Record &record, std::span<const Property *const> changed);

private:
    struct Column {
        const Property *property;
        const Record *lastTarget; ///< links: the one of the record before
    };
    struct Table {
        const EntityDescription *entity;
        std::vector<Column> columns;
    };

    Table &tableOf(const EntityDescription &entity);
    void writeLink(const Property &link, const Record *target, std::string &none);
    void end(std::string_view none);

    std::string &out_;
    std::vector<Table> tables_;
    std::uint32_t lastSerial_ = 0;
};

} // namespace pinmora
