#include "persistence/record_reader.h"

#include "persistence/record.h"
#include "persistence/value_text.h"
#include "persistence/xml_text.h"
#include "platform/translation.h"

#include <algorithm>

namespace pinmora {

bool makeLink(Record &record, const Property &relationship, Record *target) {
    if (!target || &target->entity() != &relationship.target()) {
        return false;
    }
    relationship.setPrimitive(record, target);
    return true;
}

RecordReader::RecordReader(const Model &model) {
    for (const EntityDescription *entity : model.entities()) {
        if (!entity->isStored()) {
            continue;
        }
        Table &table = tables_.emplace_back(Table{entity, {}});
        const std::unique_ptr<Record> fresh = entity->make();
        for (const Property &property : entity->properties()) {
            const bool isLink = property.kind == Property::Kind::ToOne;
            if (isLink || property.kind == Property::Kind::Attribute) {
                const bool isText = !isLink && property.type == ValueType::String;
                table.columns.push_back(
                    {&property, isText ? std::string(property.name).append(base64Suffix) : "",
                     isLink || property.primitive(*fresh).hasValue(), 0, 0});
            }
        }
    }
}

RecordReader::Table *RecordReader::tableOf(std::string_view element) {
    if (table_ && table_->entity->name() == element) {
        return table_;
    }
    const auto found = std::find_if(tables_.begin(), tables_.end(), [&](const Table &table) {
        return table.entity->name() == element;
    });
    return found == tables_.end() ? nullptr : &*found;
}

bool RecordReader::read(std::string_view element, const char *const *attributes, Extent extent) {
    table_ = tableOf(element);
    if (!table_) {
        return fail(filled(translated("persistence", "there is no kind of record called %1"),
                           {quoted(element)}));
    }
    ++elements_;
    extent_ = extent;
    next_ = 0;
    values_.clear();
    // Changes name their record, whatever came before.
    serial_ = extent == Extent::Whole ? lastSerial_ + 1 : 0;
    for (; *attributes; attributes += 2) {
        if (!readAttribute(attributes[0], attributes[1])) {
            return false;
        }
    }
    if (serial_ == 0) {
        return fail(filled(translated("persistence", "%1 has no id"), {element}));
    }
    if (extent == Extent::Whole) {
        lastSerial_ = serial_;
        addImplied();
    }
    return true;
}

bool RecordReader::readAttribute(std::string_view name, std::string_view text) {
    // In the order of the table, as they are written, each is the expected one or little beyond.
    for (std::size_t tried = 0; tried < table_->columns.size(); ++tried) {
        Column &column = table_->columns[next_];
        next_ = next_ + 1 == table_->columns.size() ? 0 : next_ + 1;
        if (column.property->name == name) {
            return readValue(column, text, false);
        }
        if (!column.base64Key.empty() && column.base64Key == name) {
            return readValue(column, text, true);
        }
    }
    if (name == "id") {
        serial_ = serialFromText(text).value_or(0);
        return serial_ != 0 ||
               fail(filled(translated("persistence", "%1 is no id"), {quoted(text)}));
    }
    return name == "none" ? readNone(text) : failUnknown(name);
}

bool RecordReader::readValue(Column &column, std::string_view text, bool isBase64) {
    if (!claim(column)) {
        return false;
    }
    const Property &property = *column.property;
    if (property.kind == Property::Kind::ToOne) {
        return readLink(column, text);
    }
    std::optional<Value> value;
    if (!isBase64) {
        value = valueFromText(property.type, text);
    } else if (const std::optional<std::string> bytes = fromBase64(text)) {
        value = Value(*bytes);
    }
    if (!value) {
        return fail(filled(translated("persistence", "%1 is no value of %2"),
                           {quoted(text), nameOf(property)}));
    }
    values_.push_back({&property, std::move(*value)});
    return true;
}

bool RecordReader::readLink(Column &column, std::string_view text) {
    const std::uint32_t target = serialFromText(text).value_or(0);
    if (target == 0) {
        return fail(filled(translated("persistence", "%1 is no id for %2"),
                           {quoted(text), nameOf(*column.property)}));
    }
    addTarget(column, target);
    return true;
}

void RecordReader::addTarget(Column &column, std::uint32_t target) {
    if (extent_ == Extent::Whole) {
        column.lastTarget = target;
    }
    values_.push_back({column.property, {}, target});
}

/// The names of keys without a value, with a blank between them.
bool RecordReader::readNone(std::string_view names) {
    while (!names.empty()) {
        const std::size_t length = std::min(names.find(' '), names.size());
        const std::string_view name = names.substr(0, length);
        names.remove_prefix(std::min(length + 1, names.size()));
        const auto column = std::find_if(table_->columns.begin(), table_->columns.end(),
                                         [&](const Column &c) { return c.property->name == name; });
        if (column == table_->columns.end()) {
            return failUnknown(name);
        }
        if (!claim(*column)) {
            return false;
        }
        addTarget(*column, 0);
    }
    return true;
}

/// Adds what a whole record leaves out although a new record has something else.
void RecordReader::addImplied() {
    for (const Column &column : table_->columns) {
        if (column.isImplied && column.readIn != elements_) {
            values_.push_back({column.property, {}, column.lastTarget});
        }
    }
}

/// Whether the element has the key only once, counting all the ways in which it can.
bool RecordReader::claim(Column &column) {
    if (column.readIn == elements_) {
        return fail(
            filled(translated("persistence", "%1 is there twice"), {nameOf(*column.property)}));
    }
    column.readIn = elements_;
    return true;
}

std::string RecordReader::nameOf(const Property &property) const {
    return std::string(table_->entity->name()) + "." + std::string(property.name);
}

bool RecordReader::failUnknown(std::string_view key) {
    return fail(filled(translated("persistence", "%1 has no key %2"),
                       {table_->entity->name(), quoted(key)}));
}

bool RecordReader::fail(std::string error) {
    error_ = std::move(error);
    return false;
}

void RecordReader::applyTo(Record &record, const Find &find, std::vector<OpenLink> &open) {
    for (KeyValue &read : values_) {
        if (read.target == 0) {
            read.property->setPrimitive(record, std::move(read.value));
        } else if (!makeLink(record, *read.property, find(read.target))) {
            open.push_back({&record, read.property, read.target});
        }
    }
}

} // namespace pinmora
