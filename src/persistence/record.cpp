#include "persistence/record.h"

namespace pinmora {

Value Record::valueForKey(std::string_view key) const {
    const Property &property = entity().property(key);
    if (!property.get) {
        throw UnknownKeyError(entity().name(), key);
    }
    return property.get(*this);
}

void Record::setValue(Value value, std::string_view key) {
    const Property &property = entity().property(key);
    if (!property.set) {
        throw UnknownKeyError(entity().name(), key);
    }
    property.set(*this, std::move(value));
}

Value Record::primitiveValueForKey(std::string_view key) const {
    const Property &property = entity().property(key);
    if (!property.primitive) {
        throw UnknownKeyError(entity().name(), key);
    }
    return property.primitive(*this);
}

void Record::setPrimitiveValue(Value value, std::string_view key) {
    const Property &property = entity().property(key);
    if (!property.setPrimitive) {
        throw UnknownKeyError(entity().name(), key);
    }
    property.setPrimitive(*this, std::move(value));
}

bool Record::validateValue(const Value &, std::string_view key) const {
    return entity().property(key).set != nullptr;
}

} // namespace pinmora
