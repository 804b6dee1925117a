#include "persistence/entity_description.h"

#include "persistence/record.h"

#include <algorithm>

namespace pinmora {

EntityDescription::EntityDescription(std::string_view name, Factory factory,
                                     std::vector<Property> properties, Lifetime lifetime)
    : name_(name), factory_(factory), properties_(std::move(properties)), lifetime_(lifetime) {}

std::unique_ptr<Record> EntityDescription::make() const {
    return factory_();
}

const Property *EntityDescription::find(std::string_view key) const {
    const auto found = std::find_if(properties_.begin(), properties_.end(),
                                    [key](const Property &p) { return p.name == key; });
    return found == properties_.end() ? nullptr : &*found;
}

const Property &EntityDescription::property(std::string_view key) const {
    if (const Property *found = find(key)) {
        return *found;
    }
    throw UnknownKeyError(name_, key);
}

std::vector<std::string_view> EntityDescription::dependentsOf(std::string_view key) const {
    std::vector<std::string_view> dependents;
    for (const Property &property : properties_) {
        if (std::find(property.dependsOn.begin(), property.dependsOn.end(), key) !=
            property.dependsOn.end()) {
            dependents.push_back(property.name);
        }
    }
    return dependents;
}

const EntityDescription &Model::entity(std::string_view name) const {
    for (const EntityDescription *entity : entities_) {
        if (entity->name() == name) {
            return *entity;
        }
    }
    throw UnknownKeyError("model", name);
}

} // namespace pinmora
