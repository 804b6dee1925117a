#pragma once

#include "persistence/context.h"
#include "persistence/record.h"

#include <string>
#include <vector>

namespace pinmora::test {

/// What a record's key holds, in a form that can be compared between two contexts: of another
/// record its serial, of a set none (its members tell).
inline Value comparable(const Record &record, const Property &property) {
    if (property.kind == Property::Kind::ToOne) {
        const Record *other = property.primitive(record).toRecord();
        return other ? Value(static_cast<std::int32_t>(other->serial())) : Value();
    }
    return property.kind == Property::Kind::Attribute ? property.primitive(record) : Value();
}

/// Where the stored records of two contexts differ first: entities, order, serials and the values
/// of all keys. "" when they are the same.
inline std::string difference(const Context &a, const Context &b) {
    for (const EntityDescription *entity : a.model().entities()) {
        if (!entity->isStored()) {
            continue;
        }
        const RecordList as = a.fetch(entity->name());
        const RecordList bs = b.fetch(entity->name());
        const std::string name(entity->name());
        if (as.size() != bs.size()) {
            return name + ": " + std::to_string(as.size()) + " and " + std::to_string(bs.size());
        }
        for (std::size_t i = 0; i < as.size(); ++i) {
            if (as[i]->serial() != bs[i]->serial()) {
                return name + ": serials " + std::to_string(as[i]->serial()) + " and " +
                       std::to_string(bs[i]->serial());
            }
            for (const Property &property : entity->properties()) {
                if (comparable(*as[i], property) != comparable(*bs[i], property)) {
                    return name + " " + std::to_string(as[i]->serial()) + "." +
                           std::string(property.name);
                }
            }
        }
    }
    return {};
}

} // namespace pinmora::test
