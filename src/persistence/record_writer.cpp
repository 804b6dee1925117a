#include "persistence/record_writer.h"

#include "persistence/record.h"
#include "persistence/value_text.h"

#include <algorithm>

namespace pinmora {

namespace {

void addName(std::string &names, std::string_view name) {
    names += names.empty() ? "" : " ";
    names += name;
}

} // namespace

RecordWriter::Table &RecordWriter::tableOf(const EntityDescription &entity) {
    const auto known = std::find_if(tables_.begin(), tables_.end(),
                                    [&](const Table &table) { return table.entity == &entity; });
    if (known != tables_.end()) {
        return *known;
    }
    Table table{&entity, {}};
    for (const Property &property : entity.properties()) {
        if (property.kind == Property::Kind::Attribute || property.kind == Property::Kind::ToOne) {
            table.columns.push_back({&property, nullptr});
        }
    }
    return tables_.emplace_back(std::move(table));
}

void RecordWriter::write(const Record &record) {
    out_ += '<';
    out_ += record.entity().name();
    if (record.serial() != lastSerial_ + 1) {
        appendAttribute(out_, "id", record.serial());
    }
    lastSerial_ = record.serial();
    std::string none;
    for (Column &column : tableOf(record.entity()).columns) {
        const Value value = column.property->primitive(record);
        if (column.property->kind == Property::Kind::Attribute) {
            if (value.hasValue()) {
                appendAttribute(out_, column.property->name, column.property->type, value);
            }
        } else if (const Record *target = value.toRecord(); target != column.lastTarget) {
            column.lastTarget = target;
            writeLink(*column.property, target, none);
        }
    }
    end(none);
}

void RecordWriter::writeChanges(const Record &record, std::span<const Property *const> changed) {
    out_ += '<';
    out_ += record.entity().name();
    appendAttribute(out_, "id", record.serial());
    std::string none;
    for (const Property *property : changed) {
        const Value value = property->primitive(record);
        if (property->kind == Property::Kind::ToOne) {
            writeLink(*property, value.toRecord(), none);
        } else if (value.hasValue()) {
            appendAttribute(out_, property->name, property->type, value);
        } else {
            addName(none, property->name);
        }
    }
    end(none);
}

void RecordWriter::writeLink(const Property &link, const Record *target, std::string &none) {
    if (target && !target->isDeleted()) {
        appendAttribute(out_, link.name, target->serial());
    } else {
        addName(none, link.name);
    }
}

void RecordWriter::end(std::string_view none) {
    if (!none.empty()) {
        out_ += " none=\"";
        out_ += none;
        out_ += '"';
    }
    out_ += "/>\n";
}

} // namespace pinmora
